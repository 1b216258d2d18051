// The common part of the declaration dialogs (variables, paths, database tables): a name box,
// a visible sorted list of names with a hidden list beside it holding what each name stands
// for, and the Add/Modify/Delete/Clear/Ok/Cancel button column. Each dialog keeps its own
// controls (their order of creation is its focus order) and binds them here once.
#pragma once

#include <optional>
#include <string>

#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace kq {

class DeclarationForm : public ui::Form {
 protected:
  // The controls every declaration dialog has, owned by the dialog itself.
  struct Controls {
    ui::TextBox& txtName;
    ui::ListBox& lstVariable;  // the names, sorted, shown
    ui::ListBox& lstHidden;    // what each name stands for, at the same index, hidden
    ui::CommandButton& cmdAdd;
    ui::CommandButton& cmdModify;
    ui::CommandButton& cmdDelete;
    ui::CommandButton& cmdClear;
    ui::CommandButton& cmdOk;
    ui::CommandButton& cmdCancel;
  };

  // `singular` names one entry in messages ("Path name"), `plural` the list ("path names").
  DeclarationForm(std::string name, std::string caption, std::string singular, std::string plural);

  // Binds the dialog's controls; called first in the dialog's constructor.
  void Bind(const Controls& controls);
  // The name box and the two lists: limits, widths, sorting, the hidden list, events.
  void SetUpNameAndLists(int maxLength);
  // The button column: Add the default button, what is enabled at first, events, widths.
  void SetUpButtons(bool clearEnabled);
  // Add to Clear from `firstRow` down, Ok and Cancel from `okRow` down, in `column`.
  void PlaceButtons(int firstRow, int okRow, int column);

  // The handlers the dialog gives; Cancel and the name box's Change are the same everywhere.
  virtual void txtName_KeyPress(int& keyAscii);
  virtual void lstVariable_Click() = 0;
  virtual void cmdAdd_Click() = 0;
  virtual void cmdModify_Click() = 0;
  virtual void cmdDelete_Click() = 0;
  virtual void cmdClear_Click() = 0;
  virtual void cmdOk_Click() = 0;
  void txtName_Change();
  void cmdCancel_Click();

  // True when `name` is on the list; the item one past the end reads as empty, as the list
  // control answers it.
  bool Listed(const std::string& name) const;
  // "<Singular> add error" boxes: the list is full at `limit`, the name is there already.
  void ShowListFull(int limit) const;
  void ShowExists(const std::string& name) const;
  void ShowAddError(const std::string& text) const;
  // Modify and Delete follow the selection, Clear the list's content.
  void EnableSelectionButtons();
  void EnableClear();
  // The selected name back into the box, its entry taken out by Delete, focus on the box.
  void TakeSelectedIntoBox();
  // The selected entry off both lists; nothing selected beeps.
  void RemoveSelected();
  // Asks "Confirm clear"; on OK both lists are emptied and true returned.
  bool ConfirmClear();
  // The end of every Clear: the box emptied and focused, the document changed.
  void AfterClear();
  // The document is changed and must be compiled again.
  void MarkChanged();

 private:
  const Controls& c() const { return *controls_; }

  std::string singular_;
  std::string plural_;
  std::optional<Controls> controls_;
};

}  // namespace kq
