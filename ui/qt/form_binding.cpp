#include "ui/qt/form_binding.h"
#include "ui/qt/media_binding.h"
#include "ui/qt/progress_binding.h"
#include "ui/qt/scroll_binding.h"
#include "ui/qt/svg_binding.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QMenuBar>
#include <algorithm>

#include "ui/model/controls.h"
#include "ui/model/list_controls.h"
#include "ui/model/menu.h"
#include "ui/qt/button_bindings.h"
#include "ui/qt/combo_binding.h"
#include "ui/qt/cp1252.h"
#include "ui/qt/disk_list_bindings.h"
#include "ui/qt/list_binding.h"
#include "ui/qt/menu_binding.h"
#include "ui/qt/text_binding.h"

namespace ui::qt {

namespace {

// The grid in reading order, which is also the order the focus walks with Tab.
std::vector<LayoutItem> InReadingOrder(const Layout& layout) {
  std::vector<LayoutItem> items = layout.Items();
  std::stable_sort(items.begin(), items.end(), [](const LayoutItem& a, const LayoutItem& b) {
    return a.row != b.row ? a.row < b.row : a.column < b.column;
  });
  return items;
}

}  // namespace

FormBinding::FormBinding(Form& form, QWidget* container, QMenuBar* menuBar, bool widthHints)
    : form_(form), container_(container), widthHints_(widthHints) {
  auto* grid = new QGridLayout(container);
  BuildGrid(form.layout(), grid, container);
  SetBuddies(form.layout());
  if (menuBar) BuildMenus(menuBar);
  form_.observer = [this](Form&) {
    if (formChanged) formChanged();
  };
}

FormBinding::~FormBinding() {
  form_.observer = nullptr;
  // Controls made and destroyed by the form while it was shown are no longer there to
  // be told; only the live ones are detached.
  const auto& live = form_.Controls();
  for (auto& b : bindings_) {
    b->Detach(std::find(live.begin(), live.end(), &b->control()) != live.end());
  }
}

ControlBinding* FormBinding::Bind(Control& control, QWidget* parent) {
  std::unique_ptr<ControlBinding> b;
  switch (control.Kind()) {
    case ControlKind::Label:
      b = std::make_unique<LabelBinding>(static_cast<Label&>(control), parent);
      break;
    case ControlKind::CommandButton:
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
      b = std::make_unique<ButtonBinding>(control, parent);
      break;
    case ControlKind::TextBox:
      b = std::make_unique<TextBinding>(static_cast<TextBox&>(control), parent);
      break;
    case ControlKind::ListBox:
    case ControlKind::FileListBox:
      b = std::make_unique<ListBinding>(static_cast<ListBox&>(control), parent);
      break;
    case ControlKind::ComboBox:
      b = std::make_unique<ComboBinding>(static_cast<ComboBox&>(control), parent);
      break;
    case ControlKind::DriveListBox:
      b = std::make_unique<DriveBinding>(static_cast<DriveListBox&>(control), parent);
      break;
    case ControlKind::DirListBox:
      b = std::make_unique<DirBinding>(static_cast<DirListBox&>(control), parent);
      break;
    case ControlKind::Frame:
      b = std::make_unique<FrameBinding>(static_cast<Frame&>(control), parent);
      break;
    case ControlKind::MediaControl:
      b = std::make_unique<MediaBinding>(static_cast<MMControl&>(control), parent);
      break;
    case ControlKind::ScrollBar:
      if (auto* progress = dynamic_cast<ProgressBar*>(&control)) {
        b = std::make_unique<ProgressBinding>(*progress, parent);
      } else {
        b = std::make_unique<ScrollBinding>(static_cast<HScrollBar&>(control), parent);
      }
      break;
    case ControlKind::SvgView:
      b = std::make_unique<SvgBinding>(static_cast<SvgView&>(control), parent);
      break;
    case ControlKind::Menu:
      return nullptr;  // menus belong to the bar
  }
  ControlBinding* raw = b.get();
  byControl_[&control] = raw;
  bindings_.push_back(std::move(b));
  return raw;
}

void FormBinding::BuildGrid(const Layout& layout, QGridLayout* grid, QWidget* parent) {
  for (const LayoutItem& item : InReadingOrder(layout)) {
    Control& c = *item.control;
    ControlBinding* b = Bind(c, parent);
    if (!b || !b->widget()) continue;
    QWidget* w = b->widget();
    const int hint = ToPixels(c.Width());
    if (widthHints_ && hint > 0 &&
        (c.Kind() == ControlKind::TextBox || c.Kind() == ControlKind::ListBox ||
         c.Kind() == ControlKind::FileListBox || c.Kind() == ControlKind::DirListBox ||
         c.Kind() == ControlKind::DriveListBox || c.Kind() == ControlKind::ComboBox)) {
      w->setMinimumWidth(std::max(hint, w->minimumSizeHint().width()));
    }
    grid->addWidget(w, item.row, item.column, item.rowSpan, item.columnSpan);
    if (c.Kind() == ControlKind::Frame) {
      auto& frame = static_cast<Frame&>(c);
      auto* inner = new QGridLayout(static_cast<QGroupBox*>(w));
      BuildGrid(frame.layout(), inner, w);
      SetBuddies(frame.layout());
    }
    b->Refresh();  // visibility once the widget has its place
  }
}

void FormBinding::SetBuddies(const Layout& layout) {
  // A label's access key moves the focus to the control that follows it.
  const std::vector<LayoutItem> items = InReadingOrder(layout);
  for (size_t i = 0; i < items.size(); ++i) {
    if (items[i].control->Kind() != ControlKind::Label) continue;
    auto* label = static_cast<LabelBinding*>(BindingOf(*items[i].control));
    if (!label || !ToQt(items[i].control->Caption()).contains(u'&')) continue;
    for (size_t j = i + 1; j < items.size(); ++j) {
      const ControlKind k = items[j].control->Kind();
      if (k == ControlKind::TextBox || k == ControlKind::ComboBox || k == ControlKind::ListBox) {
        label->SetBuddy(WidgetOf(*items[j].control));
        break;
      }
      if (k != ControlKind::Label) break;
    }
  }
}

MenuBinding* FormBinding::BindMenu(Menu& menu) {
  if (auto it = byControl_.find(&menu); it != byControl_.end()) {
    // A menu item made at run time may take the place of one that was destroyed; its
    // binding is only still good while the item listens to it.
    if (menu.observer) return static_cast<MenuBinding*>(it->second);
    it->second->Detach(false);
    container_->window()->removeAction(static_cast<MenuBinding*>(it->second)->action());
    byControl_.erase(it);
  }
  auto b = std::make_unique<MenuBinding>(menu, container_->window(),
                                         [this](Menu& m) { return BindMenu(m); });
  MenuBinding* raw = b.get();
  byControl_[&menu] = raw;
  bindings_.push_back(std::move(b));
  // The window's shortcuts work wherever the focus is in it.
  container_->window()->addAction(raw->action());
  return raw;
}

void FormBinding::BuildMenus(QMenuBar* bar) {
  for (Menu* top : form_.MenuBar()) bar->addAction(BindMenu(*top)->action());
}

QWidget* FormBinding::WidgetOf(const Control& control) const {
  ControlBinding* b = BindingOf(control);
  return b ? b->widget() : nullptr;
}

ControlBinding* FormBinding::BindingOf(const Control& control) const {
  auto it = byControl_.find(&control);
  return it == byControl_.end() ? nullptr : it->second;
}

QAction* FormBinding::ActionOf(const Menu& menu) const {
  auto* b = static_cast<MenuBinding*>(BindingOf(menu));
  return b ? b->action() : nullptr;
}

void FormBinding::ApplyFocus() {
  Control* active = form_.ActiveControl();
  QWidget* w = active ? WidgetOf(*active) : nullptr;
  if (!w) return;
  ControlBinding::SetModelFocusing(true);
  w->setFocus(Qt::OtherFocusReason);
  ControlBinding::SetModelFocusing(false);
}

}  // namespace ui::qt
