#include "dialogs/frm_func.h"

#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

frmFunc::frmFunc() : Form("frmFunc", "Function") {
  lstFunc.SetSorted(true);
  lstFunc.SetColumns(3);
  lstFunc.SetWidth(6600);
  lstFunc.OnDblClick = [this] { cmdOk_Click(); };
  lstFunc.OnKeyPress = [this](int& k) { lstFunc_KeyPress(k); };
  cmdOk.SetWidth(1200);
  cmdCancel.SetWidth(1200);
  cmdOk.OnClick = [this] { cmdOk_Click(); };
  cmdCancel.OnClick = [this] { cmdCancel_Click(); };
  Place(lstFunc, 0, 0, 1, 3);
  Place(cmdOk, 1, 1);
  Place(cmdCancel, 1, 2);
  Move(0, 0, 7000, 4200);
}

void frmFunc::Form_Load() {
  CenterForm(*this);
  FuncPick = false;
  for (int n = 0; n < kFuncCount; ++n) {
    if (FieldEmpty(View(FuncNames[n]))) continue;
    // The spare functions show only when all functions are asked for.
    if (!ShowAllFunctions && (n == 54 || n == 55)) continue;
    lstFunc.AddItem(RTrimZ(View(FuncNames[n])));
  }
  lstFunc.SetListIndex(0);
}

void frmFunc::cmdOk_Click() {
  FuncPick = true;
  const std::string selected = RTrim(lstFunc.List(lstFunc.ListIndex()));
  bool found = false;
  for (int n = 0; n < kFuncCount; ++n) {
    if (RTrimZ(View(FuncNames[n])) == selected) {
      FuncNo = static_cast<int16_t>(n);
      FuncName = std::string(View(FuncNames[n]));
      FuncLine = NulToBlank(View(FuncNames[n]));
      found = true;
    }
  }
  if (!found) {
    ui::ProgramError("Selected function " + selected + " not found cmdOk_Click in frmFunc.");
  }
  Unload();
}

void frmFunc::cmdCancel_Click() {
  Unload();
}

void frmFunc::lstFunc_KeyPress(int& keyAscii) {
  if (keyAscii == 13) {
    keyAscii = 0;
    cmdOk_Click();
  }
}

}  // namespace kq
