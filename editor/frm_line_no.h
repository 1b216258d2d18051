// Goto Line Number: selects the line of the number typed.
#pragma once

#include "ui/model/controls.h"
#include "ui/model/form.h"

namespace kq {

class frmLineNo : public ui::Form {
 public:
  frmLineNo();

  ui::Label lblLineNo{*this, "lblLineNo", "Line Number:"};
  ui::TextBox txtLineNo{*this, "txtLineNo"};
  ui::CommandButton cmdOk{*this, "cmdOk", "&Ok"};
  ui::CommandButton cmdCancel{*this, "cmdCancel", "&Cancel"};

 protected:
  void Form_Load() override;

 private:
  void cmdOk_Click();
  void txtLineNo_KeyPress(int& keyAscii);
};

}  // namespace kq
