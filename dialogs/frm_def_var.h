// Define Variable: the application's variables, added, renamed, retyped and removed on two
// aligned lists (the visible sorted names, the hidden types), written back on OK.
#pragma once

#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace kq {

class frmDefVar : public ui::Form {
 public:
  frmDefVar();

  ui::Label lblVariable{*this, "lblVariable", "Variable to add:"};
  ui::TextBox txtName{*this, "txtName"};
  ui::ListBox lstVariable{*this, "lstVariable"};
  ui::ListBox lstDataType{*this, "lstDataType"};
  ui::Frame fraDataType{*this, "fraDataType", "Data type"};
  ui::OptionButton optDataType[3] = {{*this, "optDataType", "Long", 0},
                                     {*this, "optDataType", "Double", 1},
                                     {*this, "optDataType", "String", 2}};
  ui::CommandButton cmdAdd{*this, "cmdAdd", "&Add"};
  ui::CommandButton cmdModify{*this, "cmdModify", "&Modify"};
  ui::CommandButton cmdDelete{*this, "cmdDelete", "&Delete"};
  ui::CommandButton cmdClear{*this, "cmdClear", "C&lear"};
  ui::CommandButton cmdOk{*this, "cmdOk", "&Ok"};
  ui::CommandButton cmdCancel{*this, "cmdCancel", "&Cancel"};

 protected:
  void Form_Load() override;

 private:
  void txtName_Change();
  void txtName_KeyPress(int& keyAscii);
  void optDataType_KeyPress(int Index, int& keyAscii);
  void lstVariable_Click();
  void cmdAdd_Click();
  void cmdModify_Click();
  void cmdDelete_Click();
  void cmdClear_Click();
  void cmdOk_Click();
  void cmdCancel_Click();
  // Modify and Delete follow the selection, Clear the list's content.
  void EnableSelectionButtons();
  void MarkChanged();
};

}  // namespace kq
