#include "dialogs/frm_random.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {
constexpr double kLargestUpper = 32767;
}

frmRandom::frmRandom() : FuncDialog("frmRandom", "Random", 11) {
  for (ui::TextBox* t : {&txtLower, &txtUpper}) {
    t->SetMaxLength(5);
    t->SetWidth(900);
    t->OnKeyPress = [t](int& k) { LegalInput(*t, 3, k); };
  }
  cboVariable.SetStyle(ui::ComboBox::Style::DropdownList);
  cboVariable.SetWidth(2400);
  cboVariable.OnKeyPress = [](int& k) { SwallowEnter(k); };
  PlaceLabelRow();
  Place(txtLower, 1, 0);
  Place(lblLessEqual[0], 1, 1);
  Place(cboVariable, 1, 2);
  Place(lblLessEqual[1], 1, 3);
  Place(txtUpper, 1, 4);
  PlaceButtonRow(2, 5);
  Move(0, 0, 6600, 1900);
}

void frmRandom::LoadFields(const RecordSet& rec, bool /*modify*/) {
  GetListBoxVar(true, false, false, cboVariable, rec.Random.Target);
  txtLower.SetText(Num(rec.Random.Lower));
  txtUpper.SetText(Num(rec.Random.Upper));
}

bool frmRandom::Accept(std::string& parameters) {
  if (txtLower.Text().empty()) {
    txtLower.SetFocus();
    ui::platform().Beep();
    return false;
  }
  const double lower = Val(txtLower.Text());
  const double upper = Val(txtUpper.Text());
  if (txtUpper.Text().empty() || upper > kLargestUpper || upper <= lower) {
    txtUpper.SetFocus();
    ui::platform().Beep();
    return false;
  }
  RandomRec& r = WorkRecord.Random;
  AssignListBoxVar(cboVariable, kVarLong, r.Target);
  // Five digits at most: both values fit.
  r.Lower = static_cast<int32_t>(lower);
  r.Upper = static_cast<int32_t>(upper);
  parameters = Num(r.Lower) + " <= " + RTrimZ(View(r.Target.VarRefName)) + " <= " + Num(r.Upper);
  return true;
}

}  // namespace kq
