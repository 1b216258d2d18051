#include "dialogs/frm_get_no_rec.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

frmGetNoRec::frmGetNoRec() : TableLabelDialog("frmGetNoRec", "Get No. Of Records", 39) {
  cboVariable.SetStyle(ui::ComboBox::Style::DropdownList);
  cboVariable.SetWidth(2400);
  cboVariable.OnKeyPress = [](int& k) { SwallowEnter(k); };
  Place(lblVariable, 3, 0);
  Place(cboVariable, 3, 1);
  Place(lblNoRec, 3, 2);
  PlaceButtonRow(4, 3);
  Move(0, 0, 6600, 2900);
}

void frmGetNoRec::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const TableTargetRec& r = rec.GetNoOfRec;
  GetListBoxDBTbl(cboName, View(r.TableName));
  GetListBoxLabel(cboLabel, View(r.ErrorLabel.LabelRefName));
  GetListBoxVar(true, false, false, cboVariable, r.Target);
}

bool frmGetNoRec::Accept(std::string& parameters) {
  TableTargetRec& r = WorkRecord.GetNoOfRec;
  SetField(r.TableName, cboName.Text());
  SetField(r.ErrorLabel.LabelRefName, LabelText(cboLabel));
  AssignListBoxVar(cboVariable, -1, r.Target);
  parameters = RTrimZ(View(r.TableName)) + " Variable " + RTrimZ(View(r.Target.VarRefName)) +
               "=No. of records in database table";
  return true;
}

// The error label comes after the variable here.
std::string frmGetNoRec::Decorate(std::string line) {
  return AppendLabelParm(line, " E=", View(WorkRecord.GetNoOfRec.ErrorLabel.LabelRefName));
}

}  // namespace kq
