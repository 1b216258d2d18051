#include "ui/model/menu.h"

#include <algorithm>

#include "ui/model/form.h"

namespace ui {

Menu::Menu(Form& parent, std::string name, std::string caption, int index)
    : Control(parent, ControlKind::Menu, std::move(name), index) {
  SetCaption(std::move(caption));
}

void Menu::SetChecked(bool c) {
  if (c == checked_) return;
  checked_ = c;
  Notify();
}

void Menu::Append(Menu& item) {
  InsertAt(item, static_cast<int>(items_.size()));
}

void Menu::InsertAt(Menu& item, int position) {
  position = std::clamp(position, 0, static_cast<int>(items_.size()));
  item.parentMenu_ = this;
  items_.insert(items_.begin() + position, &item);
  Notify(Change::What::ItemsInserted, position, 1);
}

void Menu::Remove(Menu& item) {
  auto it = std::find(items_.begin(), items_.end(), &item);
  if (it == items_.end()) return;
  const int at = static_cast<int>(it - items_.begin());
  items_.erase(it);
  item.parentMenu_ = nullptr;
  Notify(Change::What::ItemsRemoved, at, 1);
}

bool Menu::Usable() const {
  if (!Enabled() || !Visible() || !Parent().Loaded() || IsSeparator()) return false;
  return parentMenu_ == nullptr || parentMenu_->Usable();
}

void Menu::UserClick() {
  RaiseClick();
}

}  // namespace ui
