#include "editor/frm_goto_func.h"

#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/navigation.h"
#include "ui/platform/platform.h"

namespace kq {

frmGotoFunc::frmGotoFunc() : FuncListForm("frmGotoFunc", "Goto Function", 2, 4400, 4800, 3600) {}

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
    if (used[n] && PickerOffers(n)) lstFunc.AddItem(Text(FuncNames[n]));
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
