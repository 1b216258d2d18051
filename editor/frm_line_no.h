// Goto Line Number: selects the line of the number typed.
#pragma once

#include "dialogs/pick_list_form.h"

namespace kq {

class frmLineNo : public PickListForm {
 public:
  frmLineNo();

  ui::Label lblLineNo{*this, "lblLineNo", "Line Number:"};
  ui::TextBox txtLineNo{*this, "txtLineNo"};
  ui::CommandButton cmdOk{*this, "cmdOk", "&Ok"};
  ui::CommandButton cmdCancel{*this, "cmdCancel", "&Cancel"};

 protected:
  void Form_Load() override;

 private:
  void cmdOk_Click() override;
  void txtLineNo_KeyPress(int& keyAscii);
};

}  // namespace kq
