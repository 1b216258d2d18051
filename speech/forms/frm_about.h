// The About box: the program and its file format, the machine it runs on, a sound on
// opening, and the key that shows or hides the spare functions.
#pragma once

#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/media_control.h"

namespace kq {

class frmAbout : public ui::Form {
 public:
  frmAbout();

  ui::Label lblTitle{*this, "lblTitle", ""};
  ui::Label lblVersion{*this, "lblVersion", ""};
  ui::Label lblFileVersion{*this, "lblFileVersion", ""};
  ui::Label lblOperatingSystem{*this, "lblOperatingSystem", ""};
  ui::Label lblCpu{*this, "lblCpu", ""};
  ui::Label lblTotalPhysical{*this, "lblTotalPhysical", ""};
  ui::Label lblAvailablePhysical{*this, "lblAvailablePhysical", ""};
  ui::Label lblTotalVirtual{*this, "lblTotalVirtual", ""};
  ui::Label lblAvailableVirtual{*this, "lblAvailableVirtual", ""};
  ui::CommandButton cmdExit{*this, "cmdExit", "E&xit"};
  ui::MMControl MMControl1{*this, "MMControl1"};

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void cmdExit_Click();
  void cmdExit_KeyPress(int& keyAscii);
};

}  // namespace kq
