#include "editor/navigation.h"

#include <string>

#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/document.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/commands.h"
#include "editor/frm_goto_func.h"
#include "editor/frm_goto_label.h"
#include "editor/frm_goto_path.h"
#include "editor/frm_goto_var.h"
#include "editor/frm_label.h"
#include "editor/frm_line_no.h"
#include "editor/select_line.h"
#include "ui/model/list_controls.h"
#include "ui/platform/platform.h"

namespace kq {

int16_t SearchFuncNo = -1;
VarRef SearchVar = [] {
  VarRef v{};
  v.VarRefType = kVarNone;
  SetField(v.VarRefName, "");
  return v;
}();
LabelRef SearchLabel = [] {
  LabelRef l{};
  SetField(l.LabelRefName, "");
  l.LabelRefLine = -1;
  return l;
}();
int32_t SearchPathType = -1;
char SearchPathName[28];

namespace {

template <class Form>
void Show() {
  Form form;
  form.ShowModal();
}

}  // namespace

void ResetSearchState() {
  SearchFuncNo = -1;
  SearchVar.VarRefType = kVarNone;
  SetField(SearchVar.VarRefName, "");
  SetField(SearchLabel.LabelRefName, "");
  SearchLabel.LabelRefLine = -1;
  SearchPathType = -1;
  SetField(SearchPathName, "");
}

bool SearchHit(SearchKind kind, int line) {
  switch (kind) {
    case SearchKind::Function:
      return LineTable[line].LineFuncNo == SearchFuncNo;
    case SearchKind::Variable:
      return FoundVarFunc(line, SearchVar);
    case SearchKind::Label:
      return FoundLblFunc(line, View(SearchLabel.LabelRefName));
    case SearchKind::Path:
      return FoundPathFunc(line, SearchPathType, View(SearchPathName));
  }
  return false;
}

void ShowNotFound(SearchKind kind, bool fromDialog) {
  std::string text;
  switch (kind) {
    case SearchKind::Function:
      text = "Selected function " + Text(FuncNames[SearchFuncNo]) + " not found.";
      break;
    case SearchKind::Variable:
      text = "Selected variable " + Text(SearchVar.VarRefName) + " not found.";
      break;
    case SearchKind::Label:
      text = "Selected label " + Text(SearchLabel.LabelRefName) + " not found.";
      break;
    case SearchKind::Path:
      text = std::string(fromDialog ? "Selected path variable " : "Selected path ") +
             Text(SearchPathName) + " not found.";
      break;
  }
  ui::platform().MsgBox(text, ui::vbOKOnly, "Not Found");
}

void FirstSearch(SearchKind kind) {
  const int count = EditList().ListCount();
  for (int line = 0; line < count; ++line) {
    if (SearchHit(kind, line)) {
      SelectOnlyLine(line);
      return;
    }
  }
  ShowNotFound(kind, true);
}

void NextSearch(SearchKind kind) {
  ui::ListBox& list = EditList();
  const int count = list.ListCount();
  int s = -1;
  for (int line = 0; line < count && s < 0; ++line) {
    if (list.Selected(line)) s = line;
  }
  int hit = -1;
  for (int line = s + 1; line < count && hit < 0; ++line) {
    if (SearchHit(kind, line)) hit = line;
  }
  // Behind the selected line nothing: once more from the top, the selected line included.
  for (int line = 0; s >= 0 && hit < 0 && line < count; ++line) {
    if (SearchHit(kind, line)) hit = line;
  }
  if (hit >= 0) {
    SelectOnlyLine(hit);
  } else {
    ShowNotFound(kind);
  }
}

void GotoCommand(int index) {
  switch (index) {
    case 0:
      Show<frmLineNo>();
      break;
    case 1:
      Show<frmLabel>();
      break;
    case 2:
      Show<frmGotoFunc>();
      break;
    case 3:
      if (SearchFuncNo == -1) {
        Show<frmGotoFunc>();
      } else {
        NextSearch(SearchKind::Function);
      }
      break;
    case 4:
      Show<frmGotoVar>();
      break;
    case 5:
      if (FieldEmpty(View(SearchVar.VarRefName))) {
        Show<frmGotoVar>();
      } else {
        NextSearch(SearchKind::Variable);
      }
      break;
    case 6:
      Show<frmGotoLabel>();
      break;
    case 7:
      if (FieldEmpty(View(SearchLabel.LabelRefName))) {
        Show<frmGotoLabel>();
      } else {
        NextSearch(SearchKind::Label);
      }
      break;
    case 8:
      Show<frmGotoPath>();
      break;
    case 9:
      if (FieldEmpty(View(SearchPathName))) {
        Show<frmGotoPath>();
      } else {
        NextSearch(SearchKind::Path);
      }
      break;
    default:
      break;  // the menu has ten items
  }
}

}  // namespace kq
