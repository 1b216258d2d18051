// The function picker: the names of the live functions, sorted; the choice sets FuncPick,
// FuncNo, FuncName and FuncLine.
#pragma once

#include "dialogs/pick_list_form.h"

namespace kq {

class frmFunc : public PickListForm {
 public:
  frmFunc();

  ui::ListBox lstFunc{*this, "lstFunc"};
  ui::CommandButton cmdOk{*this, "cmdOk", "&Ok"};
  ui::CommandButton cmdCancel{*this, "cmdCancel", "&Cancel"};

 protected:
  void Form_Load() override;

 private:
  void cmdOk_Click() override;
};

}  // namespace kq
