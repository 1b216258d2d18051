// The function picker: the names of the live functions, sorted; the choice sets FuncPick,
// FuncNo, FuncName and FuncLine.
#pragma once

#include "dialogs/pick_list_form.h"

namespace kq {

// True for a function that the pickers offer: a named slot, and the spare functions 54
// and 55 only while all functions are asked for.
bool PickerOffers(int funcNo);

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
