// Define Database Tables: the application's tables, each a name and 24 fields bound to
// declared variables. The visible sorted list holds the names, the hidden one beside it the
// column list of each table ("001,003,000,..." : 24 groups of a combo position and a comma).
#pragma once

#include <string>

#include "dialogs/declaration_form.h"
#include "ui/model/controls.h"
#include "ui/model/list_controls.h"

namespace kq {

class frmDefDBTbl : public DeclarationForm {
 public:
  static constexpr int kFields = 24;

  frmDefDBTbl();

  ui::Label lblVariable{*this, "lblVariable", "Database table name to add/modify:"};
  ui::TextBox txtName{*this, "txtName"};
  ui::ListBox lstVariable{*this, "lstVariable"};
  ui::ListBox lstColumnVar{*this, "lstColumnVar"};
  ui::Label lblHeader{*this, "lblHeader",
                      "Field              Variable                Field             Variable"};
  ui::Label lblColumn[kFields] = {{*this, "lblColumn", "01:", 0},  {*this, "lblColumn", "02:", 1},
                                  {*this, "lblColumn", "03:", 2},  {*this, "lblColumn", "04:", 3},
                                  {*this, "lblColumn", "05:", 4},  {*this, "lblColumn", "06:", 5},
                                  {*this, "lblColumn", "07:", 6},  {*this, "lblColumn", "08:", 7},
                                  {*this, "lblColumn", "09:", 8},  {*this, "lblColumn", "10:", 9},
                                  {*this, "lblColumn", "11:", 10}, {*this, "lblColumn", "12:", 11},
                                  {*this, "lblColumn", "13:", 12}, {*this, "lblColumn", "14:", 13},
                                  {*this, "lblColumn", "15:", 14}, {*this, "lblColumn", "16:", 15},
                                  {*this, "lblColumn", "17:", 16}, {*this, "lblColumn", "18:", 17},
                                  {*this, "lblColumn", "19:", 18}, {*this, "lblColumn", "20:", 19},
                                  {*this, "lblColumn", "21:", 20}, {*this, "lblColumn", "22:", 21},
                                  {*this, "lblColumn", "23:", 22}, {*this, "lblColumn", "24:", 23}};
  ui::ComboBox cboVariable[kFields] = {
      {*this, "cboVariable", 0},  {*this, "cboVariable", 1},  {*this, "cboVariable", 2},
      {*this, "cboVariable", 3},  {*this, "cboVariable", 4},  {*this, "cboVariable", 5},
      {*this, "cboVariable", 6},  {*this, "cboVariable", 7},  {*this, "cboVariable", 8},
      {*this, "cboVariable", 9},  {*this, "cboVariable", 10}, {*this, "cboVariable", 11},
      {*this, "cboVariable", 12}, {*this, "cboVariable", 13}, {*this, "cboVariable", 14},
      {*this, "cboVariable", 15}, {*this, "cboVariable", 16}, {*this, "cboVariable", 17},
      {*this, "cboVariable", 18}, {*this, "cboVariable", 19}, {*this, "cboVariable", 20},
      {*this, "cboVariable", 21}, {*this, "cboVariable", 22}, {*this, "cboVariable", 23}};
  ui::CommandButton cmdAdd{*this, "cmdAdd", "&Add"};
  ui::CommandButton cmdModify{*this, "cmdModify", "&Modify"};
  ui::CommandButton cmdDelete{*this, "cmdDelete", "&Delete"};
  ui::CommandButton cmdClear{*this, "cmdClear", "C&lear"};
  ui::CommandButton cmdOk{*this, "cmdOk", "&Ok"};
  ui::CommandButton cmdCancel{*this, "cmdCancel", "&Cancel"};

 protected:
  void Form_Load() override;

 private:
  void txtName_KeyPress(int& keyAscii) override;
  void lstVariable_Click() override;
  void cmdAdd_Click() override;
  void cmdModify_Click() override;
  void cmdDelete_Click() override;
  void cmdClear_Click() override;
  void cmdOk_Click() override;

  // The column list of one table entry as the combos will show it; the combos are set too.
  std::string LoadColumns(int table);
  // The column list of what the 24 combos show now.
  std::string ColumnsOfCombos() const;
  // Every field combo back to its blank first item.
  void UnbindAll();
};

}  // namespace kq
