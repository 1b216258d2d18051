// Goto Function: the functions that the program's lines use; the first line of the one
// chosen is selected, and it stays the key of Next Function.
#pragma once

#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace kq {

class frmGotoFunc : public ui::Form {
 public:
  frmGotoFunc();

  ui::ListBox lstFunc{*this, "lstFunc"};
  ui::CommandButton cmdOk{*this, "cmdOk", "&Ok"};
  ui::CommandButton cmdCancel{*this, "cmdCancel", "&Cancel"};

 protected:
  void Form_Load() override;

 private:
  void cmdOk_Click();
};

}  // namespace kq
