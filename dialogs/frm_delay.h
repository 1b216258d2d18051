// Delay (4): wait a number of milliseconds.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmDelay : public FuncDialog {
 public:
  frmDelay();

  ui::Label lblDelay{*this, "lblDelay", "Delay:"};
  ui::TextBox txtDelay{*this, "txtDelay"};
  ui::Label lblMS{*this, "lblMS", "ms"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
};

}  // namespace kq
