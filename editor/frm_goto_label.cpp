#include "editor/frm_goto_label.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/frm_label.h"
#include "editor/navigation.h"
#include "ui/platform/platform.h"

namespace kq {

frmGotoLabel::frmGotoLabel() : Form("frmGotoLabel", "Goto Label Parm.") {
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

void frmGotoLabel::Form_Load() {
  CenterForm(*this);
  if (!FillLabelList(lstLabel)) Unload();
}

void frmGotoLabel::cmdOk_Click() {
  const std::string name = RTrim(lstLabel.List(lstLabel.ListIndex()));
  bool listed = false;
  const int count = EditList().ListCount();
  for (int line = 0; line < count && !listed; ++line) {
    const std::string_view label = View(LineTable[line].LineLabel);
    listed = !FieldEmpty(label) && RTrim(label) == name + '\0';
  }
  if (!listed) {
    ui::ProgramError("Selected label " + name + " not found cmdOk_Click in frmGotoLabel.");
  }
  AssignField(SearchLabel.LabelRefName, name + '\0');
  SearchLabel.LabelRefLine = -1;
  FirstSearch(SearchKind::Label);
  Unload();
}

}  // namespace kq
