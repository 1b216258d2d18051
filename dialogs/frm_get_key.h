// Get Keys (7): reads keys the caller presses into a variable, with a number of keys, a
// termination key, a timeout and targets for hang-up, error and timeout.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmGetKey : public FuncDialog {
 public:
  frmGetKey();

  ui::Label lblVariable{*this, "lblVariable", "Variable:"};
  ui::ComboBox cboVariable{*this, "cboVariable"};
  ui::Label lblNoOfDigits{*this, "lblNoOfDigits", "Number of keys:"};
  ui::ComboBox cboNoOfKeys{*this, "cboNoOfKeys"};
  ui::Label lblTermDigit{*this, "lblTermDigit", "Termination key:"};
  ui::ComboBox cboTermKey{*this, "cboTermKey"};
  ui::Label lblTimeout{*this, "lblTimeout", "Sec. before timeout:"};
  ui::TextBox txtSec{*this, "txtSec"};
  ui::CheckBox chkDisableHangup{*this, "chkDisableHangup", "Disable hangup detection"};
  ui::CheckBox chkTerminate{*this, "chkTerminate", "Terminate previous sound function"};
  ui::Label lblHangupLabel{*this, "lblHangupLabel", "On hangup goto:"};
  ui::Label lblErrorLabel{*this, "lblErrorLabel", "On error goto:"};
  ui::Label lblTimeoutLabel{*this, "lblTimeoutLabel", "On timeout goto:"};
  ui::ComboBox cboLabel[3] = {
      {*this, "cboLabel", 0}, {*this, "cboLabel", 1}, {*this, "cboLabel", 2}};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool CheckBeforeLabel() override;
  bool Accept(std::string& parameters) override;

 private:
  void cboVariable_Click();
  // The numbers of keys a variable of the shown type can take; keyCount selects its row.
  void GetListBoxNoOfKeys(int32_t keyCount);
};

}  // namespace kq
