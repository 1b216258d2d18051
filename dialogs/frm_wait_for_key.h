// Wait for Key (20): waits for one key and goes to the target of that key, with targets for
// hang-up, an undefined key and timeout or error.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmWaitForKey : public FuncDialog {
 public:
  static constexpr int kKeys = 19;
  frmWaitForKey();

  ui::Label lblKey[10] = {
      {*this, "lblKey", "Key 0 goto label:", 0}, {*this, "lblKey", "Key 1 goto label:", 1},
      {*this, "lblKey", "Key 2 goto label:", 2}, {*this, "lblKey", "Key 3 goto label:", 3},
      {*this, "lblKey", "Key 4 goto label:", 4}, {*this, "lblKey", "Key 5 goto label:", 5},
      {*this, "lblKey", "Key 6 goto label:", 6}, {*this, "lblKey", "Key 7 goto label:", 7},
      {*this, "lblKey", "Key 8 goto label:", 8}, {*this, "lblKey", "Key 9 goto label:", 9}};
  ui::Label lblKeySquare{*this, "lblKeySquare", "Key # goto label:"};
  ui::Label lblKeyStar{*this, "lblKeyStar", "Key * goto label:"};
  ui::Label lblKeyA{*this, "lblKeyA", "Key A goto label:"};
  ui::Label lblKeyB{*this, "lblKeyB", "Key B goto label:"};
  ui::Label lblKeyC{*this, "lblKeyC", "Key C goto label:"};
  ui::Label lblKeyD{*this, "lblKeyD", "Key D goto label:"};
  ui::Label lblHangup{*this, "lblHangup", "On hangup goto:"};
  ui::Label lblError{*this, "lblError", "On undefined key goto:"};
  ui::Label lblTimeout{*this, "lblTimeout", "On timeout/error goto:"};
  ui::ComboBox cboLabel[kKeys] = {
      {*this, "cboLabel", 0},  {*this, "cboLabel", 1},  {*this, "cboLabel", 2},
      {*this, "cboLabel", 3},  {*this, "cboLabel", 4},  {*this, "cboLabel", 5},
      {*this, "cboLabel", 6},  {*this, "cboLabel", 7},  {*this, "cboLabel", 8},
      {*this, "cboLabel", 9},  {*this, "cboLabel", 10}, {*this, "cboLabel", 11},
      {*this, "cboLabel", 12}, {*this, "cboLabel", 13}, {*this, "cboLabel", 14},
      {*this, "cboLabel", 15}, {*this, "cboLabel", 16}, {*this, "cboLabel", 17},
      {*this, "cboLabel", 18}};
  ui::Label lblSec{*this, "lblSec", "Sec. before timeout:"};
  ui::TextBox txtSec{*this, "txtSec"};
  ui::CheckBox chkTerminate{*this, "chkTerminate", "Terminate previous sound function"};
  ui::CheckBox chkDisableHangup{*this, "chkDisableHangup", "Disable hangup detection"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool CheckBeforeLabel() override;
  bool Accept(std::string& parameters) override;

 private:
  ui::Label& KeyCaption(int index);
};

}  // namespace kq
