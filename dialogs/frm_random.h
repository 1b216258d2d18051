// Random (11): lower <= Long variable <= upper.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmRandom : public FuncDialog {
 public:
  frmRandom();

  ui::TextBox txtLower{*this, "txtLower"};
  ui::Label lblLessEqual[2] = {{*this, "lblLessEqual", "<=", 0}, {*this, "lblLessEqual", "<=", 1}};
  ui::ComboBox cboVariable{*this, "cboVariable"};
  ui::TextBox txtUpper{*this, "txtUpper"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
};

}  // namespace kq
