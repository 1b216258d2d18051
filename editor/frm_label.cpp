#include "editor/frm_label.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/navigation.h"
#include "ui/platform/platform.h"

namespace kq {

bool FillLabelList(ui::ListBox& list) {
  list.Clear();
  const int count = EditList().ListCount();
  for (int line = 0; line < count; ++line) {
    if (!FieldEmpty(View(LineTable[line].LineLabel))) list.AddItem(Text(LineTable[line].LineLabel));
  }
  if (list.ListCount() == 0) {
    ui::platform().MsgBox("Can't find any labels.", ui::vbExclamation | ui::vbOKOnly,
                          "Goto Label Error");
    return false;
  }
  list.SetListIndex(0);
  return true;
}

frmLabel::frmLabel() : Form("frmLabel", "Goto Label") {
  lstLabel.SetSorted(true);
  lstLabel.SetWidth(3000);
  lstLabel.OnDblClick = [this] { cmdOk_Click(); };
  lstLabel.OnKeyPress = [this](int& k) {
    if (k == 13) {
      k = 0;
      cmdOk_Click();
    }
  };
  cmdOk.OnClick = [this] { cmdOk_Click(); };
  cmdCancel.OnClick = [this] { Unload(); };
  cmdOk.SetWidth(1200);
  cmdCancel.SetWidth(1200);
  Place(lstLabel, 0, 0, 1, 2);
  Place(cmdOk, 1, 0);
  Place(cmdCancel, 1, 1);
  Move(0, 0, 3400, 3600);
}

// The list is filled when the dialog becomes active, so that it always shows the labels
// of the program as it stands.
void frmLabel::Form_Load() {
  CenterForm(*this);
  if (!FillLabelList(lstLabel)) Unload();
}

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
