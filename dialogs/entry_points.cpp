// The dialogs the editor opens from its menus.
#include "dialogs/dialogs.h"
#include "dialogs/frm_def_var.h"
#include "dialogs/frm_func.h"

namespace kq {

void ShowFunctionPicker() {
  frmFunc picker;
  picker.ShowModal();
}

void ShowDefineVariables() {
  frmDefVar dialog;
  dialog.ShowModal();
}

// The path and table declarations come with their own dialogs.
void ShowDefinePaths() {}
void ShowDefineTables() {}

}  // namespace kq
