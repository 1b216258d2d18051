#include "dialogs/frm_def_var.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

frmDefVar::frmDefVar() : Form("frmDefVar", "Define Variable") {
  txtName.SetMaxLength(14);
  txtName.SetWidth(2400);
  txtName.OnChange = [this] { txtName_Change(); };
  txtName.OnKeyPress = [this](int& k) { txtName_KeyPress(k); };
  lstVariable.SetSorted(true);
  lstVariable.SetWidth(2400);
  lstVariable.OnClick = [this] { lstVariable_Click(); };
  lstVariable.OnDblClick = [this] { cmdModify_Click(); };
  lstDataType.SetVisible(false);
  for (int i = 0; i < 3; ++i) {
    optDataType[i].OnKeyPress = [this, i](int& k) { optDataType_KeyPress(i, k); };
    fraDataType.Place(optDataType[i], i, 0);
  }
  cmdAdd.SetDefault(true);
  cmdAdd.SetEnabled(false);
  cmdModify.SetEnabled(false);
  cmdDelete.SetEnabled(false);
  cmdAdd.OnClick = [this] { cmdAdd_Click(); };
  cmdModify.OnClick = [this] { cmdModify_Click(); };
  cmdDelete.OnClick = [this] { cmdDelete_Click(); };
  cmdClear.OnClick = [this] { cmdClear_Click(); };
  cmdOk.OnClick = [this] { cmdOk_Click(); };
  cmdCancel.OnClick = [this] { cmdCancel_Click(); };
  for (ui::CommandButton* b : {&cmdAdd, &cmdModify, &cmdDelete, &cmdClear, &cmdOk, &cmdCancel}) {
    b->SetWidth(1200);
  }

  Place(lblVariable, 0, 0);
  Place(txtName, 1, 0);
  Place(lstVariable, 2, 0, 6, 1);
  Place(fraDataType, 0, 1, 3, 1);
  Place(cmdAdd, 0, 2);
  Place(cmdModify, 1, 2);
  Place(cmdDelete, 2, 2);
  Place(cmdClear, 3, 2);
  Place(cmdOk, 6, 2);
  Place(cmdCancel, 7, 2);
  Move(0, 0, 6600, 4800);
}

void frmDefVar::Form_Load() {
  CenterForm(*this);
  optDataType[0].SetValue(true);
  // Blank entries are skipped wherever they stand; OK closes the gaps.
  for (const VarRef& v : PrgHdr.Variable) {
    if (FieldEmpty(View(v.VarRefName))) continue;
    lstVariable.AddItem(NulToBlank(View(v.VarRefName)));
    lstDataType.AddItem(Num(v.VarRefType), lstVariable.NewIndex());
  }
  cmdClear.SetEnabled(lstVariable.ListCount() > 0);
}

void frmDefVar::MarkChanged() {
  ChangedFlag = true;
  PrgHdr.CompiledFlag = 0;
}

void frmDefVar::EnableSelectionButtons() {
  const bool selected = lstVariable.SelCount() > 0;
  cmdModify.SetEnabled(selected);
  cmdDelete.SetEnabled(selected);
}

void frmDefVar::txtName_Change() {
  cmdAdd.SetEnabled(!txtName.Text().empty());
}

void frmDefVar::txtName_KeyPress(int& keyAscii) {
  LegalInput(txtName, 2, keyAscii);
}

void frmDefVar::optDataType_KeyPress(int /*Index*/, int& keyAscii) {
  keyAscii = 0;
  ui::platform().Beep();
}

void frmDefVar::lstVariable_Click() {
  txtName.SetText("");
  const int index = lstVariable.ListIndex();
  if (index >= 0) {
    const double type = Val(lstDataType.List(index));
    if (type >= 0 && type <= 2) optDataType[static_cast<int>(type)].SetValue(true);
  }
  EnableSelectionButtons();
}

void frmDefVar::cmdAdd_Click() {
  const std::string& name = txtName.Text();
  if (lstVariable.ListCount() >= kMaxVariables) {
    ui::platform().MsgBox("Maximum number of variables are " + Str(int64_t{kMaxVariables}),
                          ui::vbOKOnly | ui::vbExclamation, "Variable add error");
  } else {
    bool exists = false;
    // The item one past the end reads as empty, as the list control answers it.
    for (int i = 0; i <= lstVariable.ListCount() && !exists; ++i) {
      exists = RTrim(lstVariable.List(i)) == name;
    }
    if (exists) {
      ui::platform().MsgBox("Variable " + name + " exist already.",
                            ui::vbOKOnly | ui::vbExclamation, "Variable add error");
    } else {
      lstVariable.AddItem(name);
      const int at = lstVariable.NewIndex();
      for (int i = 0; i < 3; ++i) {
        if (optDataType[i].Value()) lstDataType.AddItem(Num(i), at);
      }
      txtName.SetText("");
      cmdClear.SetEnabled(lstVariable.ListCount() > 0);
      lstVariable.SetListIndex(at);
    }
  }
  txtName.SetFocus();
  MarkChanged();
}

void frmDefVar::cmdModify_Click() {
  txtName.SetText(RTrim(lstVariable.List(lstVariable.ListIndex())));
  cmdDelete_Click();
  txtName.SetFocus();
  cmdModify.SetEnabled(lstVariable.SelCount() > 0);
  MarkChanged();
}

void frmDefVar::cmdDelete_Click() {
  const int index = lstVariable.ListIndex();
  if (index >= 0 && lstVariable.Selected(index)) {
    lstVariable.RemoveItem(index);
    lstDataType.RemoveItem(index);
  } else {
    ui::platform().Beep();
  }
  EnableSelectionButtons();
  cmdClear.SetEnabled(lstVariable.ListCount() > 0);
  MarkChanged();
}

void frmDefVar::cmdClear_Click() {
  if (ui::platform().MsgBox("Clear all the variables ?", ui::vbOKCancel | ui::vbExclamation,
                            "Confirm clear") == ui::vbOK) {
    lstVariable.Clear();
    lstDataType.Clear();
    cmdModify.SetEnabled(false);
    cmdDelete.SetEnabled(false);
    cmdClear.SetEnabled(false);
  }
  txtName.SetText("");
  txtName.SetFocus();
  MarkChanged();
}

void frmDefVar::cmdOk_Click() {
  // A name still in the box is added first; a refusal is shown and the dialog closes.
  if (!txtName.Text().empty()) cmdAdd_Click();
  VarRef blank{};
  blank.VarRefType = kVarNone;
  SetField(blank.VarRefName, "");
  for (VarRef& v : PrgHdr.Variable) v = blank;
  for (int i = 0; i < lstVariable.ListCount() && i < kMaxVariables; ++i) {
    PrgHdr.Variable[i].VarRefType = static_cast<int32_t>(Val(lstDataType.List(i)));
    SetField(PrgHdr.Variable[i].VarRefName, RTrim(lstVariable.List(i)));
  }
  Unload();
}

void frmDefVar::cmdCancel_Click() {
  Unload();
}

}  // namespace kq
