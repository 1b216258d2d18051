#include "dialogs/declaration_form.h"

#include <utility>

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

DeclarationForm::DeclarationForm(std::string name, std::string caption, std::string singular,
                                 std::string plural)
    : Form(std::move(name), std::move(caption)),
      singular_(std::move(singular)),
      plural_(std::move(plural)) {}

void DeclarationForm::Bind(const Controls& controls) {
  controls_.emplace(controls);
}

void DeclarationForm::SetUpNameAndLists(int maxLength) {
  c().txtName.SetMaxLength(maxLength);
  c().txtName.SetWidth(2400);
  c().txtName.OnChange = [this] { txtName_Change(); };
  c().txtName.OnKeyPress = [this](int& k) { txtName_KeyPress(k); };
  c().lstVariable.SetSorted(true);
  c().lstVariable.SetWidth(2400);
  c().lstVariable.OnClick = [this] { lstVariable_Click(); };
  c().lstVariable.OnDblClick = [this] { cmdModify_Click(); };
  c().lstHidden.SetVisible(false);
}

void DeclarationForm::SetUpButtons(bool clearEnabled) {
  c().cmdAdd.SetDefault(true);
  c().cmdAdd.SetEnabled(false);
  c().cmdModify.SetEnabled(false);
  c().cmdDelete.SetEnabled(false);
  if (!clearEnabled) c().cmdClear.SetEnabled(false);
  c().cmdAdd.OnClick = [this] { cmdAdd_Click(); };
  c().cmdModify.OnClick = [this] { cmdModify_Click(); };
  c().cmdDelete.OnClick = [this] { cmdDelete_Click(); };
  c().cmdClear.OnClick = [this] { cmdClear_Click(); };
  c().cmdOk.OnClick = [this] { cmdOk_Click(); };
  c().cmdCancel.OnClick = [this] { cmdCancel_Click(); };
  for (ui::CommandButton* b :
       {&c().cmdAdd, &c().cmdModify, &c().cmdDelete, &c().cmdClear, &c().cmdOk, &c().cmdCancel}) {
    b->SetWidth(1200);
  }
}

void DeclarationForm::PlaceButtons(int firstRow, int okRow, int column) {
  Place(c().cmdAdd, firstRow, column);
  Place(c().cmdModify, firstRow + 1, column);
  Place(c().cmdDelete, firstRow + 2, column);
  Place(c().cmdClear, firstRow + 3, column);
  Place(c().cmdOk, okRow, column);
  Place(c().cmdCancel, okRow + 1, column);
}

void DeclarationForm::txtName_KeyPress(int& keyAscii) {
  LegalInput(c().txtName, 2, keyAscii);
}

void DeclarationForm::txtName_Change() {
  c().cmdAdd.SetEnabled(!c().txtName.Text().empty());
}

void DeclarationForm::cmdCancel_Click() {
  Unload();
}

bool DeclarationForm::Listed(const std::string& name) const {
  bool exists = false;
  for (int i = 0; i <= c().lstVariable.ListCount() && !exists; ++i) {
    exists = RTrim(c().lstVariable.List(i)) == name;
  }
  return exists;
}

void DeclarationForm::ShowAddError(const std::string& text) const {
  ui::platform().MsgBox(text, ui::vbOKOnly | ui::vbExclamation, singular_ + " add error");
}

void DeclarationForm::ShowListFull(int limit) const {
  ShowAddError("Maximum number of " + plural_ + " are " + Str(int64_t{limit}));
}

void DeclarationForm::ShowExists(const std::string& name) const {
  ShowAddError(singular_ + " " + name + " exist already.");
}

void DeclarationForm::EnableSelectionButtons() {
  const bool selected = c().lstVariable.SelCount() > 0;
  c().cmdModify.SetEnabled(selected);
  c().cmdDelete.SetEnabled(selected);
}

void DeclarationForm::EnableClear() {
  c().cmdClear.SetEnabled(c().lstVariable.ListCount() > 0);
}

void DeclarationForm::TakeSelectedIntoBox() {
  c().txtName.SetText(RTrim(c().lstVariable.List(c().lstVariable.ListIndex())));
  cmdDelete_Click();
  c().txtName.SetFocus();
  c().cmdModify.SetEnabled(c().lstVariable.SelCount() > 0);
}

void DeclarationForm::RemoveSelected() {
  const int index = c().lstVariable.ListIndex();
  if (index >= 0 && c().lstVariable.Selected(index)) {
    c().lstVariable.RemoveItem(index);
    c().lstHidden.RemoveItem(index);
  } else {
    ui::platform().Beep();
  }
}

bool DeclarationForm::ConfirmClear() {
  if (ui::platform().MsgBox("Clear all the " + plural_ + " ?", ui::vbOKCancel | ui::vbExclamation,
                            "Confirm clear") != ui::vbOK) {
    return false;
  }
  c().lstVariable.Clear();
  c().lstHidden.Clear();
  return true;
}

void DeclarationForm::AfterClear() {
  c().txtName.SetText("");
  c().txtName.SetFocus();
  MarkChanged();
}

void DeclarationForm::MarkChanged() {
  ChangedFlag = true;
  PrgHdr.CompiledFlag = 0;
}

}  // namespace kq
