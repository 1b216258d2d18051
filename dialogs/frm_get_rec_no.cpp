#include "dialogs/frm_get_rec_no.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

frmGetRecNo::frmGetRecNo() : TableLabelDialog("frmGetRecNo", "Get Record Number", 38) {
  cboVariable.SetStyle(ui::ComboBox::Style::DropdownList);
  cboVariable.SetWidth(2400);
  cboVariable.OnKeyPress = [](int& k) { SwallowEnter(k); };
  Place(lblRecNo, 3, 0);
  Place(cboVariable, 3, 1, 1, 2);
  PlaceButtonRow(4, 3);
  Move(0, 0, 4800, 2900);
}

void frmGetRecNo::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const TableTargetRec& r = rec.GetRecordNo;
  GetListBoxDBTbl(cboName, View(r.TableName));
  GetListBoxLabel(cboLabel, View(r.ErrorLabel.LabelRefName));
  GetListBoxVar(true, false, false, cboVariable, r.Target);
}

bool frmGetRecNo::Accept(std::string& parameters) {
  TableTargetRec& r = WorkRecord.GetRecordNo;
  SetField(r.TableName, cboName.Text());
  SetField(r.ErrorLabel.LabelRefName, LabelText(cboLabel));
  AssignListBoxVar(cboVariable, -1, r.Target);
  parameters = RTrimZ(View(r.TableName));
  return true;
}

// The error label comes before the variable here.
std::string frmGetRecNo::Decorate(std::string line) {
  const TableTargetRec& r = WorkRecord.GetRecordNo;
  line = AppendLabelParm(line, " E=", View(r.ErrorLabel.LabelRefName));
  return line + " Record number=" + RTrimZ(View(r.Target.VarRefName));
}

}  // namespace kq
