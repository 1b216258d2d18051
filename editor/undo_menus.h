// The Edit menu's items beyond the described ones: Undo, Redo, Cut, Copy and Paste, with
// the history of the document's changes behind them. The main window owns one and opens
// an EditScope for each command that may change the document.
#pragma once

#include <vector>

#include "editor/undo_history.h"
#include "ui/model/menu.h"

namespace kq {

class FrmEdit;

class EditMenus {
 public:
  explicit EditMenus(FrmEdit& form);
  ~EditMenus();
  EditMenus(const EditMenus&) = delete;
  EditMenus& operator=(const EditMenus&) = delete;

  ui::Menu mnuEditSeparator;
  ui::Menu mnuEditUndo;
  ui::Menu mnuEditRedo;
  ui::Menu mnuEditCut;
  ui::Menu mnuEditCopy;
  ui::Menu mnuEditPaste;

  void mnuEditUndo_Click();
  void mnuEditRedo_Click();
  void mnuEditCut_Click();
  void mnuEditCopy_Click();
  void mnuEditPaste_Click();

  // The scopes of the described commands that change the document.
  EditScope ScopeOfEditItem(int index);
  EditScope ScopeOfDefineItem(int index);
  EditScope ScopeOfInsertFile();

  // A document was made new, opened or closed.
  void DocumentReplaced();

  EditHistory& History() { return history_; }

 private:
  void Refresh();
  // The menus whose states the commands set, in one order.
  std::vector<ui::Menu*> CommandMenus();
  // The menus that follow the line count, after a paste that changed it.
  void FollowLineCount();

  FrmEdit& form_;
  EditHistory history_;
};

}  // namespace kq
