// Convert Speech Files: WAVE files converted one at a time to the application's speech
// format, with the source and the result played back.
#pragma once

#include "ui/model/controls.h"
#include "ui/model/file_controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"
#include "ui/model/media_control.h"

namespace kq {

class frmConvert : public ui::Form {
 public:
  frmConvert();

  ui::Label lblSource{*this, "lblSource", "Speech files to be converted:"};
  ui::DriveListBox drvSource{*this, "drvSource"};
  ui::DirListBox dirSource{*this, "dirSource"};
  ui::FileListBox filSource{*this, "filSource"};
  ui::Label LabelTarget{*this, "LabelTarget", "Converted speech files:"};
  ui::DriveListBox drvTarget{*this, "drvTarget"};
  ui::DirListBox dirTarget{*this, "dirTarget"};
  ui::FileListBox filTarget{*this, "filTarget"};
  ui::Label lblPathVar{*this, "lblPathVar", "Voice path:"};
  ui::ComboBox cboTargetPathVar{*this, "cboTargetPathVar"};
  ui::CommandButton cmdConvert{*this, "cmdConvert", "&Convert ->"};
  ui::CommandButton cmdSourcePlay{*this, "cmdSourcePlay", "Play &Source"};
  ui::CommandButton cmdTargetPlay{*this, "cmdTargetPlay", "Play &Target"};
  ui::CommandButton cmdExit{*this, "cmdExit", "E&xit"};
  ui::MMControl MMControl1{*this, "MMControl1"};

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void drvSource_Change();
  void dirSource_Change();
  void drvTarget_Change();
  void dirTarget_Change();
  void cboTargetPathVar_Click();
  void cmdConvert_Click();
  void cmdSourcePlay_Click();
  void cmdTargetPlay_Click();
  void cmdExit_Click();

  // The first click on the path list (the selection made by Load) does nothing.
  bool skipClick_ = false;
};

}  // namespace kq
