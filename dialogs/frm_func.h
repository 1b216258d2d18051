// The function picker: the names of the live functions, sorted; the choice sets FuncPick,
// FuncNo, FuncName and FuncLine.
#pragma once

#include "dialogs/pick_list_form.h"

namespace kq {

// True for a function that the pickers offer: a named slot, and the spare functions 54
// and 55 only while all functions are asked for.
bool PickerOffers(int funcNo);

// Function names in a sorted list of several columns with Ok and Cancel. The function
// picker and Goto Function differ in the names they list and in what Ok does.
class FuncListForm : public PickListForm {
 public:
  ui::ListBox lstFunc{*this, "lstFunc"};
  ui::CommandButton cmdOk{*this, "cmdOk", "&Ok"};
  ui::CommandButton cmdCancel{*this, "cmdCancel", "&Cancel"};

 protected:
  // The buttons stand under the last two columns of the list.
  FuncListForm(std::string name, std::string caption, int columns, int listWidth, int width,
               int height);
};

class frmFunc : public FuncListForm {
 public:
  frmFunc();

 protected:
  void Form_Load() override;

 private:
  void cmdOk_Click() override;
};

}  // namespace kq
