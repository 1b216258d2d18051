// Placeholder entry points until the dialogs land; replaced by the dialog library.
#include "dialogs/dialogs.h"
#include "document/state.h"
#include "ui/platform/platform.h"

namespace kq {

void GetFuncParm(int) {
  FuncOk = false;
  ui::platform().MsgBox("This function's dialog is not available yet.", ui::vbOKOnly, "Function");
}
void ShowFunctionPicker() {
  FuncPick = false;
}
void ShowDefineVariables() {}
void ShowDefinePaths() {}
void ShowDefineTables() {}

}  // namespace kq
