// Goto Function: the functions that the program's lines use; the first line of the one
// chosen is selected, and it stays the key of Next Function.
#pragma once

#include "dialogs/pick_list_form.h"

namespace kq {

class frmGotoFunc : public PickListForm {
 public:
  frmGotoFunc();

  ui::ListBox lstFunc{*this, "lstFunc"};
  ui::CommandButton cmdOk{*this, "cmdOk", "&Ok"};
  ui::CommandButton cmdCancel{*this, "cmdCancel", "&Cancel"};

 protected:
  void Form_Load() override;

 private:
  void cmdOk_Click() override;
};

}  // namespace kq
