#include "editor/frm_goto_func.h"

#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/navigation.h"
#include "ui/platform/platform.h"

namespace kq {

frmGotoFunc::frmGotoFunc() : Form("frmGotoFunc", "Goto Function") {
  lstFunc.SetSorted(true);
  lstFunc.SetColumns(2);
  lstFunc.SetWidth(4400);
  lstFunc.OnDblClick = [this] { cmdOk_Click(); };
  lstFunc.OnKeyPress = [this](int& k) {
    if (k == 13) {
      k = 0;
      cmdOk_Click();
    }
  };
  cmdOk.OnClick = [this] { cmdOk_Click(); };
  cmdCancel.OnClick = [this] { Unload(); };
  cmdOk.SetWidth(1200);
  cmdCancel.SetWidth(1200);
  Place(lstFunc, 0, 0, 1, 2);
  Place(cmdOk, 1, 0);
  Place(cmdCancel, 1, 1);
  Move(0, 0, 4800, 3600);
}

void frmGotoFunc::Form_Load() {
  CenterForm(*this);
  FuncOk = false;
  bool used[kFuncCount] = {};
  const int count = EditList().ListCount();
  for (int line = 0; line < count; ++line) {
    const int f = LineTable[line].LineFuncNo;
    if (f >= 0 && f < kFuncCount) used[f] = true;
  }
  for (int n = 0; n < kFuncCount; ++n) {
    if (FieldEmpty(View(FuncNames[n])) || !used[n]) continue;
    if (!ShowAllFunctions && (n == 54 || n == 55)) continue;
    lstFunc.AddItem(Text(FuncNames[n]));
  }
  lstFunc.SetListIndex(0);
}

void frmGotoFunc::cmdOk_Click() {
  FuncPick = true;
  const std::string selected = RTrim(lstFunc.List(lstFunc.ListIndex()));
  int found = -1;
  for (int n = 0; n < kFuncCount; ++n) {
    if (Text(FuncNames[n]) == selected) found = n;
  }
  if (found < 0) {
    ui::ProgramError("Selected function " + selected + " not found cmdOk_Click in frmGotoFunc.");
  }
  SearchFuncNo = static_cast<int16_t>(found);
  FirstSearch(SearchKind::Function);
  Unload();
}

}  // namespace kq
