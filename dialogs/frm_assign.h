// Assign (0): target = value, a variable or a constant, with a label for a conversion
// error.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmAssign : public FuncDialog {
 public:
  frmAssign();

  ui::Label lblAssign{*this, "lblAssign", "Variable to assign a value or variable:"};
  ui::ComboBox cboVar[2] = {{*this, "cboVar", 0}, {*this, "cboVar", 1}};
  ui::Label lblEqual{*this, "lblEqual", "="};
  ui::Label lblError{*this, "lblError", "On conversion error goto:"};
  ui::ComboBox cboLabel{*this, "cboLabel"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
  std::string Decorate(std::string line) override;

 private:
  void cboVar_Change(int Index);
  void cboVar_GotFocus(int Index);
  void cboVar_KeyPress(int Index, int& keyAscii);
  void RefreshVarNo();

  int16_t VarNo = 0;  // the variable table index of the target
};

}  // namespace kq
