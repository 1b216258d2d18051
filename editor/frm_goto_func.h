// Goto Function: the functions that the program's lines use; the first line of the one
// chosen is selected, and it stays the key of Next Function.
#pragma once

#include "dialogs/frm_func.h"

namespace kq {

class frmGotoFunc : public FuncListForm {
 public:
  frmGotoFunc();

 protected:
  void Form_Load() override;

 private:
  void cmdOk_Click() override;
};

}  // namespace kq
