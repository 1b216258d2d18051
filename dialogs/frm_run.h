// Run (53): starts a program of a General path, with optional parameters, waiting for its
// end or not.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmRun : public FuncDialog {
 public:
  frmRun();

  ui::Label lblPathVar{*this, "lblPathVar", "Path variable:"};
  ui::ComboBox cboPathVar{*this, "cboPathVar"};
  ui::Label lblFileVar{*this, "lblFileVar", "Program to run:"};
  ui::ComboBox cboFileVar{*this, "cboFileVar"};
  ui::Label lblParameters{*this, "lblParameters", "Parameters:"};
  ui::ComboBox cboParmVar{*this, "cboParmVar"};
  ui::CheckBox chkTermination{*this, "chkTermination", "Wait for termination of program"};
  ui::Label lblError{*this, "lblError", "On error goto:"};
  ui::ComboBox cboLabel{*this, "cboLabel"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
  std::string Decorate(std::string line) override;
};

}  // namespace kq
