// Return (14): back from a subroutine, with an optional error label.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmReturn : public FuncDialog {
 public:
  frmReturn();

  ui::Label lblError{*this, "lblError", "On error goto:"};
  ui::ComboBox cboError{*this, "cboError"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
  std::string Decorate(std::string line) override;
};

}  // namespace kq
