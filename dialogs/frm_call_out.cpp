#include "dialogs/frm_call_out.h"

#include "dialogs/data_slots.h"
#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

namespace {
// A Long or String variable, or a typed number; any String key may be typed.
constexpr VarSlot kNumber{true, false, true, 0, 2};

// The keyword in front of an outcome's target: its row right-trimmed. The rows of no dial
// tone and error were never given a text and add nothing.
std::string Keyword(int index) {
  std::string row = NameRow(CallOutTags, index);
  row = row.substr(0, row.find('\0'));
  return RTrim(row);
}
}  // namespace

frmCallOut::frmCallOut() : FuncDialog("frmCallOut", "Call Out", 5) {
  SetUpVarSlot(cboVariable, kNumber);
  txtTimeout.SetMaxLength(2);
  txtTimeout.SetWidth(500);
  txtTimeout.OnKeyPress = [this](int& k) { LegalInput(txtTimeout, 3, k); };
  chkWaitForDialTone.SetWidth(2400);
  PlaceLabelRow();
  Place(lblDial, 1, 0, 1, 2);
  Place(cboVariable, 2, 0, 1, 2);
  for (int i = 0; i < kOutcomes; ++i) {
    lblOutcome[i].SetWidth(2400);
    cboLabel[i].SetWidth(2400);
    cboLabel[i].OnKeyPress = [this, i](int& k) { LegalLabelKey(cboLabel[i], k); };
    Place(lblOutcome[i], 3 + i, 0);
    Place(cboLabel[i], 3 + i, 1);
  }
  Place(lblNoAnswTimeout, 10, 0);
  Place(txtTimeout, 10, 1);
  Place(chkWaitForDialTone, 11, 0, 1, 2);
  PlaceButtonRow(12, 2);
  Move(0, 0, 5600, 6000);
}

void frmCallOut::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const CallOutRec& r = rec.CallOut;
  FillVarSlot(cboVariable, kNumber, r.Number);
  for (int i = 0; i < kOutcomes; ++i) GetListBoxLabel(cboLabel[i], View(r.OutcomeLabel[i]));
  txtTimeout.SetText(Num(r.Rings));
  chkWaitForDialTone.SetValue(r.WaitForDialTone == 1 ? 1 : 0);
}

bool frmCallOut::CheckBeforeLabel() {
  // Busy tone, answer, no call progress and no answer need their targets; intercept, no dial
  // tone and error may go on with the next line.
  for (const int i : {0, 1, 2, 4}) {
    if (!RequireLabel(cboLabel[i])) return false;
  }
  const double rings = Val(txtTimeout.Text());
  if (Trim(txtTimeout.Text()).empty() || rings < 1 || rings > 60) return Refuse(txtTimeout);
  return true;
}

bool frmCallOut::Accept(std::string& parameters) {
  CallOutRec& r = WorkRecord.CallOut;
  for (int i = 0; i < kOutcomes; ++i) SetField(r.OutcomeLabel[i], LabelText(cboLabel[i]));
  r.Rings = static_cast<int32_t>(Val(txtTimeout.Text()));
  r.WaitForDialTone = chkWaitForDialTone.Value();
  // Only a whole number is stored; any other text leaves the number as it was.
  AssignListBoxVar(cboVariable, 0, r.Number);

  parameters = VarName(r.Number) + " ";
  for (int i = 0; i < kOutcomes; ++i) {
    if (FieldEmpty(View(r.OutcomeLabel[i]))) continue;
    parameters += Keyword(i) + RTrimZ(View(r.OutcomeLabel[i])) + " ";
  }
  parameters += " NOR=" + Str(int64_t{r.Rings}) + " Wait=" + NameRow(YesNoNames, r.WaitForDialTone);
  return true;
}

}  // namespace kq
