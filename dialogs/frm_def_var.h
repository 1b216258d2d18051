// Define Variable: the application's variables, added, renamed, retyped and removed on two
// aligned lists (the visible sorted names, the hidden types), written back on OK.
#pragma once

#include "dialogs/declaration_form.h"
#include "ui/model/controls.h"
#include "ui/model/list_controls.h"

namespace kq {

class frmDefVar : public DeclarationForm {
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
  void optDataType_KeyPress(int Index, int& keyAscii);
  void lstVariable_Click() override;
  void cmdAdd_Click() override;
  void cmdModify_Click() override;
  void cmdDelete_Click() override;
  void cmdClear_Click() override;
  void cmdOk_Click() override;
};

}  // namespace kq
