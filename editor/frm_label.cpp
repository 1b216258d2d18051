#include "editor/frm_label.h"

#include <algorithm>

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/navigation.h"
#include "ui/platform/platform.h"

namespace kq {

std::string ListedLabel(int line) {
  std::string text = RTrim(View(LineTable[line].LineLabel));
  text.erase(std::min(text.find('\0'), text.size()));
  return text;
}

bool FillLabelList(ui::ListBox& list) {
  list.Clear();
  const int count = EditList().ListCount();
  for (int line = 0; line < count; ++line) {
    if (!FieldEmpty(View(LineTable[line].LineLabel))) list.AddItem(ListedLabel(line));
  }
  if (list.ListCount() == 0) {
    ui::platform().MsgBox("Can't find any labels.", ui::vbExclamation | ui::vbOKOnly,
                          "Goto Label Error");
    return false;
  }
  list.SetListIndex(0);
  return true;
}

LabelListForm::LabelListForm(std::string name, std::string caption)
    : PickListForm(std::move(name), std::move(caption)) {
  lstLabel.SetSorted(true);
  WireList(lstLabel, 3000);
  WireButtons(cmdOk, cmdCancel);
  PlaceList(lstLabel, 2, cmdOk, cmdCancel, 0);
  Move(0, 0, 3400, 3600);
}

// The list is filled when the dialog becomes active, so that it always shows the labels
// of the program as it stands.
void LabelListForm::Form_Load() {
  CenterForm(*this);
  if (!FillLabelList(lstLabel)) Unload();
}

frmLabel::frmLabel() : LabelListForm("frmLabel", "Goto Label") {}

void frmLabel::cmdOk_Click() {
  const std::string wanted = lstLabel.List(lstLabel.ListIndex()) + '\0';
  const int count = EditList().ListCount();
  for (int line = 0; line < count; ++line) {
    const std::string_view label = View(LineTable[line].LineLabel);
    if (RTrim(label) == wanted && !FieldEmpty(label)) SelectOnlyLine(line);
  }
  Unload();
}

}  // namespace kq
