// Dial Number (37): dial a number or the number a variable holds, optionally after a dial
// tone, with targets for no dial tone and for an error.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmDialNo : public FuncDialog {
 public:
  frmDialNo();

  ui::Label lblDial{*this, "lblDial", "Number or variable to dial:"};
  ui::ComboBox cboVariable{*this, "cboVariable"};
  ui::CheckBox chkWaitForDialTone{*this, "chkWaitForDialTone", "Wait for dial tone"};
  ui::Label lblNoDialToneLabel{*this, "lblNoDialToneLabel", "On no dial tone goto:"};
  ui::Label lblErrorLabel{*this, "lblErrorLabel", "On error goto:"};
  ui::ComboBox cboLabel[2] = {{*this, "cboLabel", 0}, {*this, "cboLabel", 1}};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool CheckBeforeLabel() override;
  bool Accept(std::string& parameters) override;
  std::string Decorate(std::string line) override;

 private:
  void chkWaitForDialTone_Click();
  void EnableNoDialTone(bool enabled);
};

}  // namespace kq
