#include "ui/qt/menu_binding.h"

#include <QKeySequence>

#include "ui/qt/cp1252.h"

namespace ui::qt {

MenuBinding::MenuBinding(Menu& menu, QWidget* owner, Resolver resolver)
    : ControlBinding(menu, nullptr), menu_(menu), resolver_(std::move(resolver)) {
  // A menu with items drops down; one without is a command of its own.
  if (!menu.Items().empty()) submenu_ = new QMenu(owner);
  action_ = submenu_ ? submenu_->menuAction() : new QAction(owner);
  QObject::connect(action_, &QAction::triggered, this, [this] {
    if (!attached()) return;
    Refresh();  // the action's own check toggle does not count
    if (menu_.Usable()) menu_.UserClick();
  });
  if (submenu_) RebuildItems();
  Refresh();
}

MenuBinding::~MenuBinding() = default;

void MenuBinding::RebuildItems() {
  submenu_->clear();  // actions of items are owned by their bindings, not the menu
  for (Menu* item : menu_.Items()) {
    MenuBinding* b = resolver_(*item);
    if (b) submenu_->addAction(b->action());
  }
}

void MenuBinding::Sync(const Change& change) {
  switch (change.what) {
    case Change::What::ItemsInserted:
    case Change::What::ItemsRemoved:
    case Change::What::ItemsReset:
      if (!submenu_) {
        // An item that gets items becomes a menu; the window rebuilds its bar.
        return;
      }
      RebuildItems();
      return;
    default:
      break;
  }
  // A separator is a line alone: its "-" caption is the model's mark, not a text to show.
  action_->setSeparator(menu_.IsSeparator());
  action_->setText(menu_.IsSeparator() ? QString() : ToQt(menu_.Caption()));
  action_->setEnabled(menu_.Enabled());
  action_->setVisible(menu_.Visible());
  action_->setCheckable(menu_.Checked());
  action_->setChecked(menu_.Checked());
  action_->setShortcut(QKeySequence(ToQt(menu_.Shortcut())));
  action_->setShortcutContext(Qt::WindowShortcut);
}

}  // namespace ui::qt
