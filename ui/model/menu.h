// Menu items: a caption ("-" for a separator), shortcut, check mark, help context, and
// the items below it. Menu arrays are plain arrays of items dispatched by index.
#pragma once

#include <string>
#include <vector>

#include "ui/model/control.h"

namespace ui {

class Menu : public Control {
 public:
  Menu(Form& parent, std::string name, std::string caption, int index = -1);

  bool Checked() const { return checked_; }
  void SetChecked(bool c);
  const std::string& Shortcut() const { return shortcut_; }  // "Ctrl+A", "F2"
  void SetShortcut(std::string s) { shortcut_ = std::move(s); }
  int HelpContextID() const { return helpContext_; }
  void SetHelpContextID(int id) { helpContext_ = id; }
  bool IsSeparator() const { return Caption() == "-"; }

  Menu* ParentMenu() const { return parentMenu_; }
  const std::vector<Menu*>& Items() const { return items_; }
  // Appends an item below this menu (or inserts it before position).
  void Append(Menu& item);
  void InsertAt(Menu& item, int position);
  void Remove(Menu& item);

  // A menu item is usable when it and every menu above it are enabled and visible.
  bool Usable() const override;
  void UserClick() override;

 private:
  bool checked_ = false;
  std::string shortcut_;
  int helpContext_ = 0;
  Menu* parentMenu_ = nullptr;
  std::vector<Menu*> items_;
};

}  // namespace ui
