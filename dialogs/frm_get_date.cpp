#include "dialogs/frm_get_date.h"

#include "dialogs/data_slots.h"
#include "document/catalogue.h"
#include "document/state.h"

namespace kq {

namespace {
constexpr VarSlot kVariable{true, false, true, -1, -1};
}

frmGetDate::frmGetDate() : FuncDialog("frmGetDate", "Get Date", 6) {
  SetUpVarSlot(cboVariable, kVariable);
  cboDateFormat.SetStyle(ui::ComboBox::Style::DropdownList);
  cboDateFormat.SetWidth(1500);
  cboDateFormat.OnKeyPress = [](int& k) { SwallowEnter(k); };
  PlaceLabelRow();
  Place(lblGetDateLabel, 1, 0, 1, 2);
  Place(cboVariable, 2, 0, 1, 2);
  Place(lblDateFormat, 3, 0);
  Place(cboDateFormat, 3, 1);
  PlaceButtonRow(4, 2);
  Move(0, 0, 4200, 2900);
}

void frmGetDate::LoadFields(const RecordSet& rec, bool /*modify*/) {
  FillVarSlot(cboVariable, kVariable, rec.GetDate.Target);
  FillNameList(cboDateFormat, DateFormatNames, rec.GetDate.Format);
}

bool frmGetDate::Accept(std::string& parameters) {
  FormatTargetRec& r = WorkRecord.GetDate;
  // A format the list does not hold (a damaged line) has to be chosen anew.
  if (cboDateFormat.ListIndex() < 0) return Refuse(cboDateFormat);
  r.Format = cboDateFormat.ListIndex();
  ReadVarSlot(cboVariable, kVariable, r.Target);
  parameters = VarName(r.Target) + "=" + NameRow(DateFormatNames, r.Format);
  return true;
}

}  // namespace kq
