// A menu item as a QAction, a menu with items as a QMenu. Caption ("&" marks the access
// key, "-" a separator), shortcut, check mark, Enabled and Visible follow the model; a
// triggered action is the person's click on the item.
#pragma once

#include <QAction>
#include <QMenu>
#include <functional>

#include "ui/model/menu.h"
#include "ui/qt/control_binding.h"

namespace ui::qt {

class MenuBinding : public ControlBinding {
 public:
  // Finds or makes the binding of a menu item that turns up under a menu later.
  using Resolver = std::function<MenuBinding*(Menu&)>;

  MenuBinding(Menu& menu, QWidget* owner, Resolver resolver);
  ~MenuBinding() override;
  QAction* action() const { return action_; }
  QMenu* submenu() const { return submenu_; }
  Menu& menu() const { return menu_; }

 protected:
  void Sync(const Change& change) override;

 private:
  void RebuildItems();
  Menu& menu_;
  Resolver resolver_;
  QMenu* submenu_ = nullptr;
  QAction* action_ = nullptr;
};

}  // namespace ui::qt
