// Calculate (2): target = operand operator operand, with a label for an error.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmCalculate : public FuncDialog {
 public:
  frmCalculate();

  ui::Label lblCalculateLabel{*this, "lblCalculateLabel", "Calculate:"};
  ui::ComboBox cboVar[3] = {{*this, "cboVar", 0}, {*this, "cboVar", 1}, {*this, "cboVar", 2}};
  ui::Label Label1{*this, "Label1", "="};
  ui::ComboBox cboOperator{*this, "cboOperator"};
  ui::Label lblError{*this, "lblError", "On error goto:"};
  ui::ComboBox cboLabel{*this, "cboLabel"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
  std::string Decorate(std::string line) override;

 private:
  void cboVar_Click(int Index);
  void cboVar_GotFocus(int Index);
  void cboVar_KeyPress(int Index, int& keyAscii);
  // The operands offer the variables that the type of the target can take.
  void FillOperands(const VarRef& left, const VarRef& right);
  int32_t TargetType() const;

  int16_t VarNo = 0;      // the variable table index of the target
  int16_t PrevVarNo = 0;  // its value before the last change
};

}  // namespace kq
