// Get Date (6): the variable that receives the date, and its format.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmGetDate : public FuncDialog {
 public:
  frmGetDate();

  ui::Label lblGetDateLabel{*this, "lblGetDateLabel", "Variable to store date:"};
  ui::ComboBox cboVariable{*this, "cboVariable"};
  ui::Label lblDateFormat{*this, "lblDateFormat", "Date format:"};
  ui::ComboBox cboDateFormat{*this, "cboDateFormat"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
};

}  // namespace kq
