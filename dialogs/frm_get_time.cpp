#include "dialogs/frm_get_time.h"

#include "dialogs/data_slots.h"
#include "document/catalogue.h"
#include "document/state.h"

namespace kq {

namespace {
constexpr VarSlot kVariable{true, false, true, -1, -1};
}

frmGetTime::frmGetTime() : FuncDialog("frmGetTime", "Get Time", 8) {
  SetUpVarSlot(cboVariable, kVariable);
  cboTimeFormat.SetStyle(ui::ComboBox::Style::DropdownList);
  cboTimeFormat.SetWidth(1500);
  cboTimeFormat.OnKeyPress = [](int& k) { SwallowEnter(k); };
  PlaceLabelRow();
  Place(lblGetTimeLabel, 1, 0, 1, 2);
  Place(cboVariable, 2, 0, 1, 2);
  Place(lblTimeFormat, 3, 0);
  Place(cboTimeFormat, 3, 1);
  PlaceButtonRow(4, 2);
  Move(0, 0, 4200, 2900);
}

void frmGetTime::LoadFields(const RecordSet& rec, bool /*modify*/) {
  FillVarSlot(cboVariable, kVariable, rec.GetTime.Target);
  FillNameList(cboTimeFormat, TimeFormatNames, rec.GetTime.Format);
}

bool frmGetTime::Accept(std::string& parameters) {
  FormatTargetRec& r = WorkRecord.GetTime;
  // A format the list does not hold (a damaged line) has to be chosen anew.
  if (cboTimeFormat.ListIndex() < 0) return Refuse(cboTimeFormat);
  r.Format = cboTimeFormat.ListIndex();
  ReadVarSlot(cboVariable, kVariable, r.Target);
  parameters = VarName(r.Target) + "=" + NameRow(TimeFormatNames, r.Format);
  return true;
}

}  // namespace kq
