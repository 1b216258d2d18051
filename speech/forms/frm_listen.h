// Listen To Speech Files: plays any speech file of the system, whatever its format, by
// converting it to a temporary WAVE file first.
#pragma once

#include "ui/model/controls.h"
#include "ui/model/file_controls.h"
#include "ui/model/form.h"
#include "ui/model/media_control.h"

namespace kq {

class frmListen : public ui::Form {
 public:
  frmListen();

  ui::DriveListBox drvPath{*this, "drvPath"};
  ui::DirListBox dirPath{*this, "dirPath"};
  ui::FileListBox filPath{*this, "filPath"};
  ui::CommandButton cmdPlay{*this, "cmdPlay", "&Play"};
  ui::CommandButton cmdExit{*this, "cmdExit", "E&xit"};
  ui::MMControl MMControl1{*this, "MMControl1"};

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void drvPath_Change();
  void dirPath_Change();
  void cmdPlay_Click();
  void cmdExit_Click();
};

}  // namespace kq
