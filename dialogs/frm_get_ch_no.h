// Get Channel No. (41): the Long variable that receives the number of the channel.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmGetChNo : public FuncDialog {
 public:
  frmGetChNo();

  ui::Label lblGetChNoLabel{*this, "lblGetChNoLabel", "Channel number:"};
  ui::ComboBox cboVariable{*this, "cboVariable"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
};

}  // namespace kq
