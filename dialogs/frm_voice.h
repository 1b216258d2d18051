// Voice (18): plays up to five voice files of a voice path in order, chosen from the files
// of the path's folder, with targets for hang-up and error.
#pragma once

#include "dialogs/func_dialog.h"
#include "ui/model/file_controls.h"
#include "ui/model/media_control.h"

namespace kq {

class frmVoice : public FuncDialog {
 public:
  static constexpr int kMaxVoiceFiles = 5;
  frmVoice();

  ui::Label lblPathVar{*this, "lblPathVar", "Voice path:"};
  ui::ComboBox cboPathVar{*this, "cboPathVar"};
  ui::Label lblVoice{*this, "lblVoice", "Selectable voice files:"};
  ui::DriveListBox drvVoice{*this, "drvVoice"};
  ui::DirListBox dirVoice{*this, "dirVoice"};
  ui::FileListBox filVoice{*this, "filVoice"};
  ui::Label lblSeletedVoice{*this, "lblSeletedVoice", "Selected voice files:"};
  ui::ListBox lstSelectedVoice{*this, "lstSelectedVoice"};
  ui::CommandButton cmdAdd{*this, "cmdAdd", "&Add"};
  ui::CommandButton cmdDelete{*this, "cmdDelete", "&Delete"};
  ui::CommandButton cmdClear{*this, "cmdClear", "C&lear"};
  ui::CommandButton cmdPlay{*this, "cmdPlay", "&Play"};
  ui::CheckBox chkDisableHangup{*this, "chkDisableHangup", "Disable hangup detection"};
  ui::Label lblHangup{*this, "lblHangup", "On hangup goto:"};
  ui::Label lblError{*this, "lblError", "On error goto:"};
  ui::ComboBox cboLabel[2] = {{*this, "cboLabel", 0}, {*this, "cboLabel", 1}};
  // The hidden player of cmdPlay.
  ui::MMControl MMControl1{*this, "MMControl1"};

 protected:
  void Form_Unload() override;
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool CheckBeforeLabel() override;
  bool Accept(std::string& parameters) override;

 private:
  void cboPathVar_Click();
  void drvVoice_Change();
  void dirVoice_Change();
  void lstSelectedVoice_Click();
  void cmdAdd_Click();
  void cmdDelete_Click();
  void cmdClear_Click();
  void cmdPlay_Click();
  // Drive, folder and file list to a folder; a failure has had its path message.
  void ShowFolder(const std::string& folder);
};

}  // namespace kq
