// Condition (3): IF left operator right THEN GOTO label [ELSE GOTO label].
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmCondition : public FuncDialog {
 public:
  frmCondition();

  ui::Label lblCondition{*this, "lblCondition", "Condition:"};
  ui::Label lblIf{*this, "lblIf", "IF"};
  ui::ComboBox cboVar[2] = {{*this, "cboVar", 0}, {*this, "cboVar", 1}};
  ui::ComboBox cboOperator{*this, "cboOperator"};
  ui::Label lblThenLabel{*this, "lblThenLabel", "THEN GOTO"};
  ui::Label lblElseLabel{*this, "lblElseLabel", "ELSE GOTO"};
  ui::ComboBox cboLabel[2] = {{*this, "cboLabel", 0}, {*this, "cboLabel", 1}};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;

 private:
  void cboVar_Click(int Index);
  void cboVar_GotFocus(int Index);
  void cboVar_KeyPress(int Index, int& keyAscii);
  void cboLabel_KeyPress(int Index, int& keyAscii);
  // The right side offers the variables that suit the type of the left one.
  void FillRightSide(const VarRef& value);
  int32_t LeftType() const;

  int16_t VarNo = 0;  // the variable table index of the left side
};

}  // namespace kq
