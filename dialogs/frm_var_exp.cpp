#include "dialogs/frm_var_exp.h"

#include "dialogs/data_slots.h"
#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

frmVarExp::frmVarExp() : FuncDialog("frmVarExp", "Variable Export", 17) {
  lstVariable.SetSorted(true);
  lstVariable.SetWidth(2400);
  lstVariable.OnClick = [this] { lstVariable_Click(); };
  lstVariable.OnDblClick = [this] { cmdAdd_Click(); };
  lstDataType.SetVisible(false);
  lstExpVariable.SetWidth(2400);
  lstExpVariable.OnClick = [this] { lstExpVariable_Click(); };
  lstExpVariable.OnDblClick = [this] { lstExpVariable_DblClick(); };
  lstExpDataType.SetVisible(false);
  // The type options only show the type of the item chosen.
  for (ui::OptionButton& o : optDataType) o.SetEnabled(false);
  for (ui::OptionButton& o : optExpDataType) o.SetEnabled(false);
  cmdAdd.SetWidth(1200);
  cmdAdd.OnClick = [this] { cmdAdd_Click(); };
  cmdDelete.SetWidth(1200);
  cmdDelete.SetEnabled(false);
  cmdDelete.OnClick = [this] { cmdDelete_Click(); };
  cmdClear.SetWidth(1200);
  cmdClear.OnClick = [this] { cmdClear_Click(); };
  for (ui::ComboBox* c : {&cboFieldSeparator, &cboTextDelimiter, &cboPathVar}) {
    c->SetStyle(ui::ComboBox::Style::DropdownList);
    c->SetWidth(2400);
    c->OnKeyPress = [](int& k) { SwallowEnter(k); };
  }
  cboVariable.SetWidth(2400);
  cboVariable.OnKeyPress = [this](int& k) { LegalInput(cboVariable, kVarString, k); };
  cboLabel.SetWidth(2400);
  cboLabel.OnKeyPress = [this](int& k) { LegalLabelKey(cboLabel, k); };

  for (int i = 0; i < 3; ++i) {
    fraDataType[0].Place(optDataType[i], 0, i);
    fraDataType[1].Place(optExpDataType[i], 0, i);
  }
  PlaceLabelRow();
  Place(lblDefVar, 1, 0);
  Place(lblExpVar, 1, 2);
  Place(lstVariable, 2, 0, 4, 1);
  Place(cmdAdd, 2, 1);
  Place(cmdDelete, 3, 1);
  Place(cmdClear, 4, 1);
  Place(lstExpVariable, 2, 2, 4, 1);
  Place(fraDataType[0], 6, 0);
  Place(fraDataType[1], 6, 2);
  Place(lblDelimiter, 7, 0);
  Place(cboFieldSeparator, 7, 1, 1, 2);
  Place(lblTextQualifier, 8, 0);
  Place(cboTextDelimiter, 8, 1, 1, 2);
  Place(lblPathVar, 9, 0);
  Place(cboPathVar, 9, 1, 1, 2);
  Place(lblVar, 10, 0);
  Place(cboVariable, 10, 1, 1, 2);
  Place(lblError, 11, 0);
  Place(cboLabel, 11, 1, 1, 2);
  PlaceButtonRow(12, 3);
  Move(0, 0, 7800, 7200);
}

void frmVarExp::ShowType(ui::OptionButton (&options)[3], const std::string& type) {
  const double t = Val(type);
  if (t >= 0 && t <= 2) options[static_cast<int>(t)].SetValue(true);
}

int frmVarExp::SelectedExport() const {
  const int index = lstExpVariable.ListIndex();
  return lstExpVariable.Selected(index) ? index : -1;
}

void frmVarExp::LoadFields(const RecordSet& rec, bool modify) {
  const VarExportRec& r = rec.VarExport;
  for (const VarRef& v : PrgHdr.Variable) {
    if (FieldEmpty(View(v.VarRefName))) continue;
    lstVariable.AddItem(NulToBlank(View(v.VarRefName)));
    lstDataType.AddItem(Num(v.VarRefType), lstVariable.NewIndex());
  }
  if (lstVariable.ListCount() > 0) lstVariable.SetListIndex(0);
  if (modify) {
    for (const VarRef& v : r.ExportVar) {
      if (FieldEmpty(View(v.VarRefName))) continue;
      lstExpVariable.AddItem(NulToBlank(View(v.VarRefName)));
      lstExpDataType.AddItem(Num(v.VarRefType));
    }
  }
  FillNameList(cboFieldSeparator, FieldSepNames, r.FieldSep);
  FillNameList(cboTextDelimiter, TextDelimNames, r.TextDelim);
  GetListBoxPathVar(cboPathVar, kPathExport, View(r.ExportPath));
  GetListBoxVar(true, true, true, cboVariable, r.ExportFile);
  GetListBoxLabel(cboLabel, View(r.ErrorLabel.LabelRefName));
}

void frmVarExp::lstVariable_Click() {
  const int index = lstVariable.ListIndex();
  if (index >= 0) ShowType(optDataType, lstDataType.List(index));
}

void frmVarExp::lstExpVariable_Click() {
  const int index = lstExpVariable.ListIndex();
  if (index >= 0) ShowType(optExpDataType, lstExpDataType.List(index));
  cmdDelete.SetEnabled(SelectedExport() >= 0);
}

// A double click only clears the selection: the next Add then goes to the end.
void frmVarExp::lstExpVariable_DblClick() {
  DeselectListBox(lstExpVariable);
}

void frmVarExp::cmdAdd_Click() {
  const int left = lstVariable.ListIndex();
  if (lstExpVariable.ListCount() >= kMaxExportVars) {
    ui::platform().MsgBox("Maximum number of export variables are " + Str(int64_t{kMaxExportVars}),
                          ui::vbOKOnly | ui::vbExclamation, "Export variable add error");
  } else if (left >= 0) {
    const std::string name = RTrim(lstVariable.List(left));
    bool exists = false;
    for (int i = 0; i < lstExpVariable.ListCount() && !exists; ++i) {
      exists = RTrim(lstExpVariable.List(i)) == name;
    }
    if (exists) {
      ui::platform().MsgBox("Variable " + name + " exist already.",
                            ui::vbOKOnly | ui::vbExclamation, "Variable add error");
    } else {
      const std::string type = lstDataType.List(left);
      const int before = SelectedExport();
      if (before >= 0) {
        lstExpVariable.AddItem(lstVariable.List(left), before);
        lstExpDataType.AddItem(type, before);
        DeselectListBox(lstExpVariable);
      } else {
        lstExpVariable.AddItem(lstVariable.List(left));
        lstExpDataType.AddItem(type);
      }
      ShowType(optExpDataType, type);
    }
  }
  lstVariable.SetFocus();
}

void frmVarExp::cmdDelete_Click() {
  const int index = SelectedExport();
  if (index >= 0) {
    lstExpVariable.RemoveItem(index);
    lstExpDataType.RemoveItem(index);
  } else {
    ui::platform().Beep();
  }
  cmdDelete.SetEnabled(SelectedExport() >= 0);
  lstVariable.SetFocus();
}

void frmVarExp::cmdClear_Click() {
  if (ui::platform().MsgBox("Clear all the export variables ?", ui::vbOKCancel | ui::vbExclamation,
                            "Confirm clear") != ui::vbOK) {
    return;
  }
  lstExpVariable.Clear();
  lstExpDataType.Clear();
  cmdDelete.SetEnabled(false);
}

bool frmVarExp::Accept(std::string& parameters) {
  if (lstExpVariable.ListCount() == 0) return Refuse(lstExpVariable);
  if (cboVariable.Text().empty()) return Refuse(cboVariable);
  VarExportRec& r = WorkRecord.VarExport;
  r.FieldSep = cboFieldSeparator.ListIndex();
  r.TextDelim = cboTextDelimiter.ListIndex();
  SetField(r.ExportPath, cboPathVar.Text());
  AssignListBoxVar(cboVariable, kVarString, r.ExportFile);
  SetField(r.ErrorLabel.LabelRefName, LabelText(cboLabel));
  for (VarRef& v : r.ExportVar) v = BlankVarRef;
  for (int i = 0; i < lstExpVariable.ListCount() && i < kMaxExportVars; ++i) {
    r.ExportVar[i].VarRefType = static_cast<int32_t>(Val(lstExpDataType.List(i)));
    SetField(r.ExportVar[i].VarRefName, RTrim(lstExpVariable.List(i)));
  }

  parameters =
      RTrimZ(View(r.ExportPath)) + "\\" + VarName(r.ExportFile) + " Exp=" + VarName(r.ExportVar[0]);
  for (int i = 1; i < lstExpVariable.ListCount() && i < kMaxExportVars; ++i) {
    parameters += " & " + VarName(r.ExportVar[i]);
  }
  parameters += "  FS=" + RTrim(NameRow(FieldSepNames, r.FieldSep)) +
                "  TD=" + RTrim(NameRow(TextDelimNames, r.TextDelim));
  return true;
}

std::string frmVarExp::Decorate(std::string line) {
  return AppendLabelParm(line, " E=", View(WorkRecord.VarExport.ErrorLabel.LabelRefName));
}

}  // namespace kq
