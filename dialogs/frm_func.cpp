#include "dialogs/frm_func.h"

#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/functions.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

bool PickerOffers(int funcNo) {
  if (FieldEmpty(View(FuncNames[funcNo]))) return false;
  return ShowAllFunctions || (funcNo != ToInt(Fn::CTBusConnect) && funcNo != ToInt(Fn::Prototype));
}

FuncListForm::FuncListForm(std::string name, std::string caption, int columns, int listWidth,
                           int width, int height)
    : PickListForm(std::move(name), std::move(caption)) {
  lstFunc.SetSorted(true);
  lstFunc.SetColumns(columns);
  WireList(lstFunc, listWidth);
  WireButtons(cmdOk, cmdCancel);
  PlaceList(lstFunc, columns, cmdOk, cmdCancel, columns - 2);
  Move(0, 0, width, height);
}

frmFunc::frmFunc() : FuncListForm("frmFunc", "Function", 3, 6600, 7000, 4200) {}

void frmFunc::Form_Load() {
  CenterForm(*this);
  FuncPick = false;
  for (int n = 0; n < kFuncCount; ++n) {
    if (PickerOffers(n)) lstFunc.AddItem(RTrimZ(View(FuncNames[n])));
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

}  // namespace kq
