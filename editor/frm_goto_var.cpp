#include "editor/frm_goto_var.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/navigation.h"
#include "ui/platform/platform.h"

namespace kq {

frmGotoVar::frmGotoVar() : Form("frmGotoVar", "Goto Variable Parameter") {
  lstVariable.SetSorted(true);
  lstVariable.SetWidth(3000);
  lstVariable.OnClick = [this] { lstVariable_Click(); };
  lstVariable.OnDblClick = [this] { cmdOk_Click(); };
  lstVariable.OnKeyPress = [this](int& k) {
    if (k == 13) {
      k = 0;
      cmdOk_Click();
    }
  };
  lstDataType.SetVisible(false);
  cmdOk.OnClick = [this] { cmdOk_Click(); };
  cmdCancel.OnClick = [this] { Unload(); };
  cmdOk.SetWidth(1200);
  cmdCancel.SetWidth(1200);
  for (int i = 0; i < 3; ++i) fraDataType.Place(optDataType[i], i, 0);
  Place(lstVariable, 0, 0, 3, 1);
  Place(fraDataType, 0, 1, 3, 1);
  Place(cmdOk, 3, 0);
  Place(cmdCancel, 3, 1);
  Move(0, 0, 5200, 3800);
}

void frmGotoVar::Form_Load() {
  CenterForm(*this);
  optDataType[0].SetValue(true);
  for (const VarRef& v : PrgHdr.Variable) {
    if (FieldEmpty(View(v.VarRefName))) continue;
    lstVariable.AddItem(NulToBlank(RTrim(View(v.VarRefName))));
    lstDataType.AddItem(Num(v.VarRefType), lstVariable.NewIndex());
  }
  lstVariable.SetListIndex(0);
}

// The option buttons are a display: they show the type of the chosen name.
void frmGotoVar::lstVariable_Click() {
  const int type = static_cast<int>(Val(lstDataType.List(lstVariable.ListIndex())));
  if (type >= kVarLong && type <= kVarString) optDataType[2 - type].SetValue(true);
}

void frmGotoVar::cmdOk_Click() {
  const std::string name = RTrim(lstVariable.List(lstVariable.ListIndex()));
  bool declared = false;
  for (const VarRef& v : PrgHdr.Variable) {
    if (Text(v.VarRefName) == name) {
      declared = true;
      break;
    }
  }
  if (!declared) {
    ui::ProgramError("Selected variable " + name + " not found cmdOk_Click in frmGotoVar.");
  }
  SearchVar.VarRefType = static_cast<int32_t>(Val(lstDataType.List(lstVariable.ListIndex())));
  AssignField(SearchVar.VarRefName, name + '\0');
  FirstSearch(SearchKind::Variable);
  Unload();
}

}  // namespace kq
