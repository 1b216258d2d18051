// The function picker: the names of the live functions, sorted; the choice sets FuncPick,
// FuncNo, FuncName and FuncLine.
#pragma once

#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace kq {

class frmFunc : public ui::Form {
 public:
  frmFunc();

  ui::ListBox lstFunc{*this, "lstFunc"};
  ui::CommandButton cmdOk{*this, "cmdOk", "&Ok"};
  ui::CommandButton cmdCancel{*this, "cmdCancel", "&Cancel"};

 protected:
  void Form_Load() override;

 private:
  void cmdOk_Click();
  void cmdCancel_Click();
  void lstFunc_KeyPress(int& keyAscii);
};

}  // namespace kq
