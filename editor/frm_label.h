// Goto Label: lists the labels of the program and selects the line that carries the one
// chosen.
#pragma once

#include "dialogs/pick_list_form.h"

namespace kq {

// The labels of the program in a sorted list with Ok and Cancel, filled at load (the dialog
// closes at once, after its message, when no line has a label). The two label dialogs
// differ only in what Ok does with the label chosen.
class LabelListForm : public PickListForm {
 public:
  LabelListForm(std::string name, std::string caption);

  ui::ListBox lstLabel{*this, "lstLabel"};
  ui::CommandButton cmdOk{*this, "cmdOk", "&Ok"};
  ui::CommandButton cmdCancel{*this, "cmdCancel", "&Cancel"};

 protected:
  void Form_Load() override;
};

class frmLabel : public LabelListForm {
 public:
  frmLabel();

 private:
  void cmdOk_Click() override;
};

// The label of a line as the label lists show it: right-trimmed and ending at its NUL. A
// label field that fills its 16 characters (a file made elsewhere) is listed whole.
std::string ListedLabel(int line);

// Fills the list with the labels of all lines that have one; false (after the box "Can't
// find any labels.") when there is none. Shared by both label dialogs.
bool FillLabelList(ui::ListBox& list);

}  // namespace kq
