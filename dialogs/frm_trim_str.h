// Trim String (44): target = TRIM( source ), leading, trailing or both.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmTrimStr : public FuncDialog {
 public:
  frmTrimStr();

  ui::ComboBox cboVar[2] = {{*this, "cboVar", 0}, {*this, "cboVar", 1}};
  ui::Label lblEqual{*this, "lblEqual", "= TRIM("};
  ui::Frame fraAction{*this, "fraAction", "Action"};
  ui::OptionButton optAction[3] = {
      {*this, "optAction", "Remove leading spaces", 0},
      {*this, "optAction", "Remove trailing spaces", 1},
      {*this, "optAction", "Remove both leading and trailing spaces", 2}};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
};

}  // namespace kq
