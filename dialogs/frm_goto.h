// Goto (10): continue at a label.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmGoto : public FuncDialog {
 public:
  frmGoto();

  ui::Label lblGotoLabel{*this, "lblGotoLabel", "Goto Label:"};
  ui::ComboBox cboLabel{*this, "cboLabel"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool CheckBeforeLabel() override { return RequireLabel(cboLabel); }
  bool Accept(std::string& parameters) override;
};

}  // namespace kq
