// Goto Label Parameter: the first line that refers to the label chosen; the label stays
// the key of Next Label Parameter.
#pragma once

#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace kq {

class frmGotoLabel : public ui::Form {
 public:
  frmGotoLabel();

  ui::ListBox lstLabel{*this, "lstLabel"};
  ui::CommandButton cmdOk{*this, "cmdOk", "&Ok"};
  ui::CommandButton cmdCancel{*this, "cmdCancel", "&Cancel"};

 protected:
  void Form_Load() override;

 private:
  void cmdOk_Click();
};

}  // namespace kq
