// Prototype (55): general-purpose parameter slots for a function that the run-time program
// selects by number: eight flags, eight variables, eight labels, one path type with four of
// its path variables, and a database table. The dialog gives the slots no meaning.
// (The form is meant to be set in a smaller font than the others; the window model has no
// fonts yet.)
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmPrototype : public FuncDialog {
 public:
  frmPrototype();

  ui::Label lblFunction{*this, "lblFunction", "Function:"};
  ui::ComboBox cboVariable{*this, "cboVariable"};
  // The captions of the slot rows; lblLabel (0) is the line's own "Label:".
  ui::Label lblSlots[4] = {{*this, "lblLabel", "Check(0..7):", 1},
                           {*this, "lblLabel", "Variables(0..7):", 2},
                           {*this, "lblLabel", "Labels (0..7):", 3},
                           {*this, "lblLabel", "Path type/variables (0..3):", 4}};
  ui::CheckBox chkChoice[8] = {
      {*this, "chkChoice", "Enable 0", 0}, {*this, "chkChoice", "Enable 1", 1},
      {*this, "chkChoice", "Enable 2", 2}, {*this, "chkChoice", "Enable 3", 3},
      {*this, "chkChoice", "Enable 4", 4}, {*this, "chkChoice", "Enable 5", 5},
      {*this, "chkChoice", "Enable 6", 6}, {*this, "chkChoice", "Enable 7", 7}};
  ui::ComboBox cboVar[8] = {{*this, "cboVar", 0}, {*this, "cboVar", 1}, {*this, "cboVar", 2},
                            {*this, "cboVar", 3}, {*this, "cboVar", 4}, {*this, "cboVar", 5},
                            {*this, "cboVar", 6}, {*this, "cboVar", 7}};
  ui::ComboBox cboLabel[8] = {{*this, "cboLabel", 0}, {*this, "cboLabel", 1},
                              {*this, "cboLabel", 2}, {*this, "cboLabel", 3},
                              {*this, "cboLabel", 4}, {*this, "cboLabel", 5},
                              {*this, "cboLabel", 6}, {*this, "cboLabel", 7}};
  ui::ComboBox cboPath{*this, "cboPath"};
  ui::ComboBox cboPathVar[4] = {{*this, "cboPathVar", 0},
                                {*this, "cboPathVar", 1},
                                {*this, "cboPathVar", 2},
                                {*this, "cboPathVar", 3}};
  ui::Label lblName{*this, "lblName", "Database table:"};
  ui::ComboBox cboName{*this, "cboName"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;

 private:
  void cboPath_Click();
  int32_t ShownPathType();
};

}  // namespace kq
