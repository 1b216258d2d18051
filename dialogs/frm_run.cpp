#include "dialogs/frm_run.h"

#include "dialogs/data_slots.h"
#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

namespace {
// The program and its parameters: String variables, or typed text as a String constant.
constexpr VarSlot kText{false, false, true, kVarString, -1};
}  // namespace

frmRun::frmRun() : FuncDialog("frmRun", "Run", 53) {
  cboPathVar.SetStyle(ui::ComboBox::Style::DropdownList);
  cboPathVar.SetWidth(2400);
  cboPathVar.OnKeyPress = [](int& k) { SwallowEnter(k); };
  SetUpVarSlot(cboFileVar, kText);
  SetUpVarSlot(cboParmVar, kText);
  chkTermination.SetWidth(3600);
  cboLabel.SetWidth(2400);
  cboLabel.OnKeyPress = [this](int& k) { LegalLabelKey(cboLabel, k); };
  PlaceLabelRow();
  Place(lblPathVar, 1, 0);
  Place(cboPathVar, 1, 1);
  Place(lblFileVar, 2, 0);
  Place(cboFileVar, 2, 1);
  Place(lblParameters, 3, 0);
  Place(cboParmVar, 3, 1);
  Place(chkTermination, 4, 0, 1, 2);
  Place(lblError, 5, 0);
  Place(cboLabel, 5, 1);
  PlaceButtonRow(6, 3);
  Move(0, 0, 6600, 4000);
}

void frmRun::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const RunRec& r = rec.Run;
  GetListBoxPathVar(cboPathVar, kPathGeneral, View(r.RunPath));
  GetListBoxVar(false, false, true, cboFileVar, r.FileVar);
  GetListBoxVar(false, false, true, cboParmVar, r.Parameters);
  chkTermination.SetValue(r.WaitForTermination != 0 ? 1 : 0);
  GetListBoxLabel(cboLabel, View(r.ErrorLabel.LabelRefName));
}

bool frmRun::Accept(std::string& parameters) {
  if (RTrim(cboFileVar.Text()).empty()) return Refuse(cboFileVar);
  RunRec& r = WorkRecord.Run;
  SetField(r.RunPath, RTrim(cboPathVar.Text()));
  AssignListBoxVar(cboFileVar, kVarString, r.FileVar);
  AssignListBoxVar(cboParmVar, kVarString, r.Parameters);
  r.WaitForTermination = chkTermination.Value();
  SetField(r.ErrorLabel.LabelRefName, LabelText(cboLabel));
  parameters = RTrimZ(View(r.RunPath)) + "\\" + VarName(r.FileVar);
  if (!FieldEmpty(View(r.Parameters.VarRefName))) parameters += " P=" + VarName(r.Parameters);
  parameters += " Term=" + NameRow(YesNoNames, r.WaitForTermination);
  return true;
}

std::string frmRun::Decorate(std::string line) {
  return AppendLabelParm(line, " E=", View(WorkRecord.Run.ErrorLabel.LabelRefName));
}

}  // namespace kq
