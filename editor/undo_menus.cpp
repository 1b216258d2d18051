#include "editor/undo_menus.h"

#include <vector>

#include "document/file.h"
#include "document/header.h"
#include "document/state.h"
#include "editor/frm_edit.h"
#include "editor/line_clipboard.h"
#include "editor/line_editing.h"
#include "ui/platform/clipboard.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

constexpr const char* kEditItemNames[kEditItems] = {"Add", "Insert", "Modify", "Delete", "Clear"};
constexpr LineMoves kEditItemMoves[kEditItems] = {LineMoves::None, LineMoves::InsertAtCurrent,
                                                  LineMoves::None, LineMoves::DeleteSelected,
                                                  LineMoves::None};
constexpr const char* kDefineItemNames[] = {"Variables",      "Export Paths", "Message Paths",
                                            "Number Paths",   "Voice Paths",  "General Paths",
                                            "Database Tables"};

void PasteRefused(const std::string& text) {
  ui::platform().MsgBox(text, ui::vbOKOnly | ui::vbExclamation, "Paste");
}

}  // namespace

EditMenus::EditMenus(FrmEdit& form)
    : mnuEditSeparator(form, "mnuEditSeparator", "-"),
      mnuEditUndo(form, "mnuEditUndo", "&Undo"),
      mnuEditRedo(form, "mnuEditRedo", "&Redo"),
      mnuEditCut(form, "mnuEditCut", "Cu&t"),
      mnuEditCopy(form, "mnuEditCopy", "C&opy"),
      mnuEditPaste(form, "mnuEditPaste", "&Paste"),
      form_(form) {
  // Shortcuts that none of the described items use (Ctrl+X and Ctrl+V are Define's).
  mnuEditUndo.SetShortcut("Ctrl+Z");
  mnuEditRedo.SetShortcut("Ctrl+Y");
  mnuEditCut.SetShortcut("Ctrl+Shift+X");
  mnuEditCopy.SetShortcut("Ctrl+C");
  mnuEditPaste.SetShortcut("Ctrl+Shift+V");
  for (ui::Menu* item :
       {&mnuEditSeparator, &mnuEditUndo, &mnuEditRedo, &mnuEditCut, &mnuEditCopy, &mnuEditPaste}) {
    item->SetHelpContextID(form.mnuEdit.HelpContextID());
    form.mnuEdit.Append(*item);
  }
  mnuEditUndo.OnClick = [this] { mnuEditUndo_Click(); };
  mnuEditRedo.OnClick = [this] { mnuEditRedo_Click(); };
  mnuEditCut.OnClick = [this] { mnuEditCut_Click(); };
  mnuEditCopy.OnClick = [this] { mnuEditCopy_Click(); };
  mnuEditPaste.OnClick = [this] { mnuEditPaste_Click(); };
  history_.changed = [this] { Refresh(); };
  history_.captureMenus = [this] {
    std::vector<bool> states;
    for (const ui::Menu* m : CommandMenus()) states.push_back(m->Enabled());
    return states;
  };
  history_.restoreMenus = [this](const std::vector<bool>& states) {
    const std::vector<ui::Menu*> menus = CommandMenus();
    for (size_t i = 0; i < menus.size() && i < states.size(); ++i) menus[i]->SetEnabled(states[i]);
  };
  Refresh();
}

EditMenus::~EditMenus() {
  history_.changed = nullptr;
  history_.captureMenus = nullptr;
  history_.restoreMenus = nullptr;
  for (ui::Menu* item :
       {&mnuEditSeparator, &mnuEditUndo, &mnuEditRedo, &mnuEditCut, &mnuEditCopy, &mnuEditPaste}) {
    form_.mnuEdit.Remove(*item);
  }
}

EditScope EditMenus::ScopeOfEditItem(int index) {
  const bool known = index >= 0 && index < kEditItems;
  return EditScope(history_, known ? kEditItemNames[index] : "Edit",
                   known ? kEditItemMoves[index] : LineMoves::None);
}

EditScope EditMenus::ScopeOfDefineItem(int index) {
  const bool known = index >= 0 && index < 7;
  return EditScope(history_, known ? kDefineItemNames[index] : "Define", LineMoves::None);
}

EditScope EditMenus::ScopeOfInsertFile() {
  return EditScope(history_, "Insert File", LineMoves::InsertAtCurrent);
}

void EditMenus::DocumentReplaced() {
  history_.Clear();
}

void EditMenus::Refresh() {
  const std::string undo = history_.UndoName();
  const std::string redo = history_.RedoName();
  mnuEditUndo.SetCaption(undo.empty() ? "&Undo" : "&Undo " + undo);
  mnuEditUndo.SetEnabled(history_.CanUndo());
  mnuEditRedo.SetCaption(redo.empty() ? "&Redo" : "&Redo " + redo);
  mnuEditRedo.SetEnabled(history_.CanRedo());
  const bool lines = form_.lstEdit.ListCount() > 0;
  mnuEditCut.SetEnabled(lines);
  mnuEditCopy.SetEnabled(lines);
}

std::vector<ui::Menu*> EditMenus::CommandMenus() {
  std::vector<ui::Menu*> menus;
  for (int i = 2; i <= 7; ++i) menus.push_back(&form_.mnuFileItem[i]);
  for (int i = 0; i < kEditItems; ++i) menus.push_back(&form_.mnuEditItem[i]);
  for (ui::Menu* m : {&form_.mnuGoto, &form_.mnuCompile, &form_.mnuPrint}) menus.push_back(m);
  return menus;
}

void EditMenus::FollowLineCount() {
  const int count = form_.lstEdit.ListCount();
  for (int i = 2; i <= 6; ++i) form_.mnuFileItem[i].SetEnabled(count != 0);
  form_.mnuEditItem[0].SetEnabled(count < kUserLines);
  form_.mnuEditItem[1].SetEnabled(count != 0 && count < kUserLines);
  for (int i = 2; i <= 4; ++i) form_.mnuEditItem[i].SetEnabled(count != 0);
  form_.mnuGoto.SetEnabled(count != 0);
  form_.mnuCompile.SetEnabled(count != 0);
  form_.mnuPrint.SetEnabled(count != 0);
}

void EditMenus::mnuEditUndo_Click() {
  history_.Undo();
}

void EditMenus::mnuEditRedo_Click() {
  history_.Redo();
}

void EditMenus::mnuEditCopy_Click() {
  const std::vector<int> lines = form_.lstEdit.SelectedIndexes();
  if (lines.empty()) return;
  ui::clipboard().Set(LinesClipboardData(lines));
}

void EditMenus::mnuEditCut_Click() {
  if (form_.lstEdit.SelCount() == 0) return;
  mnuEditCopy_Click();
  const EditScope scope(history_, "Cut", LineMoves::DeleteSelected);
  DeleteLines(form_);
}

void EditMenus::mnuEditPaste_Click() {
  std::vector<uint8_t> image;
  switch (ReadLines(ui::clipboard().Get(), image)) {
    case LinesCheck::Ok:
      break;
    case LinesCheck::Absent:
      PasteRefused("The clipboard holds no KQEdit lines.");
      return;
    case LinesCheck::LaterFormat:
      PasteRefused("The lines on the clipboard come from a later KQEdit and cannot be pasted.");
      return;
    case LinesCheck::Damaged:
      PasteRefused("The lines on the clipboard are damaged and cannot be pasted.");
      return;
  }
  const int count = form_.lstEdit.ListCount();
  const EditScope scope(history_, "Paste", LineMoves::InsertAtCurrent);
  std::string title = "Clipboard";
  InsertFileBytes(title, image, form_.lstEdit.ListIndex());
  if (form_.lstEdit.ListCount() != count) FollowLineCount();
}

}  // namespace kq
