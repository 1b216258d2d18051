// Remark (13): a line of text that documents the application.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmRemark : public FuncDialog {
 public:
  frmRemark();

  ui::Label lblRemark{*this, "lblRemark", "Remark:"};
  ui::TextBox txtRemark{*this, "txtRemark"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;

 private:
  void txtRemark_KeyPress(int& keyAscii);
};

}  // namespace kq
