#include "editor/frm_goto_label.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/frm_label.h"
#include "editor/navigation.h"
#include "ui/platform/platform.h"

namespace kq {

frmGotoLabel::frmGotoLabel() : LabelListForm("frmGotoLabel", "Goto Label Parm.") {}

void frmGotoLabel::cmdOk_Click() {
  const std::string name = RTrim(lstLabel.List(lstLabel.ListIndex()));
  bool listed = false;
  const int count = EditList().ListCount();
  for (int line = 0; line < count && !listed; ++line) {
    listed = !FieldEmpty(View(LineTable[line].LineLabel)) && ListedLabel(line) == name;
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
