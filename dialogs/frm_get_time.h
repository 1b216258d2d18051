// Get Time (8): the variable that receives the time, and its format.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmGetTime : public FuncDialog {
 public:
  frmGetTime();

  ui::Label lblGetTimeLabel{*this, "lblGetTimeLabel", "Variable to store time:"};
  ui::ComboBox cboVariable{*this, "cboVariable"};
  ui::Label lblTimeFormat{*this, "lblTimeFormat", "Time format:"};
  ui::ComboBox cboTimeFormat{*this, "cboTimeFormat"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
};

}  // namespace kq
