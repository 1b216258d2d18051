// Get Day Of Week (36): the variable that receives the day's number, and how the week is
// numbered.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmGetDayOfWeek : public FuncDialog {
 public:
  frmGetDayOfWeek();

  ui::Label lblGetDayLabel{*this, "lblGetDayLabel", "Variable to store day of week number:"};
  ui::ComboBox cboVariable{*this, "cboVariable"};
  ui::Frame fraNumbering{*this, "fraNumbering", "Day of week numbering"};
  ui::OptionButton optNumbering[2] = {
      {*this, "optNumbering", "1=Monday, 2=Tuesday ... 7=Sunday", 0},
      {*this, "optNumbering", "1=Sunday, 2=Monday ... 7=Saturday", 1}};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
};

}  // namespace kq
