#include "dialogs/frm_def_var.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

frmDefVar::frmDefVar() : DeclarationForm("frmDefVar", "Define Variable", "Variable", "variables") {
  Bind({txtName, lstVariable, lstDataType, cmdAdd, cmdModify, cmdDelete, cmdClear, cmdOk,
        cmdCancel});
  SetUpNameAndLists(14);
  for (int i = 0; i < 3; ++i) {
    optDataType[i].OnKeyPress = [this, i](int& k) { optDataType_KeyPress(i, k); };
    fraDataType.Place(optDataType[i], i, 0);
  }
  SetUpButtons(/*clearEnabled=*/true);

  Place(lblVariable, 0, 0);
  Place(txtName, 1, 0);
  Place(lstVariable, 2, 0, 6, 1);
  Place(fraDataType, 0, 1, 3, 1);
  PlaceButtons(0, 6, 2);
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
  EnableClear();
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
    ShowListFull(kMaxVariables);
  } else if (Listed(name)) {
    ShowExists(name);
  } else {
    lstVariable.AddItem(name);
    const int at = lstVariable.NewIndex();
    for (int i = 0; i < 3; ++i) {
      if (optDataType[i].Value()) lstDataType.AddItem(Num(i), at);
    }
    txtName.SetText("");
    EnableClear();
    lstVariable.SetListIndex(at);
  }
  txtName.SetFocus();
  MarkChanged();
}

void frmDefVar::cmdModify_Click() {
  TakeSelectedIntoBox();
  MarkChanged();
}

void frmDefVar::cmdDelete_Click() {
  RemoveSelected();
  EnableSelectionButtons();
  EnableClear();
  MarkChanged();
}

void frmDefVar::cmdClear_Click() {
  if (ConfirmClear()) {
    cmdModify.SetEnabled(false);
    cmdDelete.SetEnabled(false);
    cmdClear.SetEnabled(false);
  }
  AfterClear();
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

}  // namespace kq
