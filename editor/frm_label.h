// Goto Label: lists the labels of the program and selects the line that carries the one
// chosen.
#pragma once

#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace kq {

class frmLabel : public ui::Form {
 public:
  frmLabel();

  ui::ListBox lstLabel{*this, "lstLabel"};
  ui::CommandButton cmdOk{*this, "cmdOk", "&Ok"};
  ui::CommandButton cmdCancel{*this, "cmdCancel", "&Cancel"};

 protected:
  void Form_Load() override;

 private:
  void cmdOk_Click();
};

// Fills the list with the labels of all lines that have one; false (after the box "Can't
// find any labels.") when there is none. Shared by both label dialogs.
bool FillLabelList(ui::ListBox& list);

}  // namespace kq
