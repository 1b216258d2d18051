// Goto Path Parameter: the first line that uses the path variable chosen, by path type
// and name; it stays the key of Next Path Parameter.
#pragma once

#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace kq {

class frmGotoPath : public ui::Form {
 public:
  frmGotoPath();

  ui::Label lblSelectPath{*this, "lblSelectPath", "Select path type:"};
  ui::ComboBox cboPath{*this, "cboPath"};
  ui::ListBox lstVariable{*this, "lstVariable"};
  ui::CommandButton cmdOk{*this, "cmdOk", "&Ok"};
  ui::CommandButton cmdCancel{*this, "cmdCancel", "&Cancel"};

 protected:
  void Form_Load() override;

 private:
  void cboPath_Click();
  void cmdOk_Click();
};

}  // namespace kq
