// R Switch (15): interrupt the line for a number of milliseconds.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmRSwitch : public FuncDialog {
 public:
  frmRSwitch();

  ui::Label lblRSwitch{*this, "lblRSwitch", "Interrupt line in:"};
  ui::ComboBox cboInterrupt{*this, "cboInterrupt"};
  ui::Label lblMS{*this, "lblMS", "ms"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
};

}  // namespace kq
