// Gosub (9): call the subroutine at a label, with an optional error label.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmGosub : public FuncDialog {
 public:
  frmGosub();

  ui::Label lblGosubLabel{*this, "lblGosubLabel", "Gosub Label:"};
  ui::ComboBox cboLabel{*this, "cboLabel"};
  ui::Label lblError{*this, "lblError", "On error goto:"};
  ui::ComboBox cboError{*this, "cboError"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool CheckBeforeLabel() override { return RequireLabel(cboLabel); }
  bool Accept(std::string& parameters) override;
  std::string Decorate(std::string line) override;
};

}  // namespace kq
