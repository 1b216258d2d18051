// Record Sound (12): records the caller into a message file of a message path, with a time
// limit, silence handling and targets for hang-up, error and silence.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmRecordSound : public FuncDialog {
 public:
  frmRecordSound();

  ui::Label lblPathVar{*this, "lblPathVar", "Message path:"};
  ui::ComboBox cboPathVar{*this, "cboPathVar"};
  ui::Label lblRecordFile{*this, "lblRecordFile", "File name:"};
  ui::ComboBox cboVariable{*this, "cboVariable"};
  ui::Label lblRecordTime{*this, "lblRecordTime", "Max. sec. recording time:"};
  ui::TextBox txtRecordSec{*this, "txtRecordSec"};
  ui::Label lblSilenceTimeout{*this, "lblSilenceTimeout", "Sec. before silence timeout:"};
  ui::TextBox txtTimeoutSec{*this, "txtTimeoutSec"};
  ui::CheckBox chkCounterActive{*this, "chkCounterActive", "Sound file counter active"};
  ui::CheckBox chkAppend{*this, "chkAppend", "Append"};
  ui::CheckBox chkBeepBeforeRecording{*this, "chkBeepBeforeRecording", "Beep before recording"};
  ui::CheckBox chkDoNotRecordSilence{*this, "chkDoNotRecordSilence", "Don't record silence"};
  ui::CheckBox chkBeepDuringSilence{*this, "chkBeepDuringSilence", "Beep during silence"};
  ui::CheckBox chkDisableHangup{*this, "chkDisableHangup", "Disable hangup detection"};
  ui::Label lblHangup{*this, "lblHangup", "On hangup goto:"};
  ui::Label lblError{*this, "lblError", "On error goto:"};
  ui::Label lblSilence{*this, "lblSilence", "On silence goto:"};
  ui::ComboBox cboLabel[3] = {
      {*this, "cboLabel", 0}, {*this, "cboLabel", 1}, {*this, "cboLabel", 2}};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool CheckBeforeLabel() override;
  bool Accept(std::string& parameters) override;
};

}  // namespace kq
