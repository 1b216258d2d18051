// The dialogs the editor opens from its menus.
#include "dialogs/dialogs.h"
#include "dialogs/frm_def_db_tbl.h"
#include "dialogs/frm_def_path.h"
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

// The kind of path comes from the Define menu item, in DefineItemIndex.
void ShowDefinePaths() {
  frmDefPath dialog;
  dialog.ShowModal();
}

void ShowDefineTables() {
  frmDefDBTbl dialog;
  dialog.ShowModal();
}

}  // namespace kq
