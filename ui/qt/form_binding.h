// Turns any form of the window model into widgets: its declared grid of controls (frames
// as group boxes with grids of their own), its menu bar, and one binding per control
// that keeps model and widget in step. No form has widget code of its own.
#pragma once

#include <QObject>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "ui/model/form.h"
#include "ui/qt/control_binding.h"

class QGridLayout;
class QMenuBar;
class QWidget;

namespace ui::qt {

class MenuBinding;

// Twips of the model to pixels and back.
inline constexpr int kTwipsPerPixel = 15;
inline int ToPixels(int twips) {
  return twips / kTwipsPerPixel;
}
inline int ToTwips(int pixels) {
  return pixels * kTwipsPerPixel;
}

class FormBinding : public QObject {
 public:
  // Builds the controls into container (which gets a grid layout) and the menus into
  // menuBar (none when null). With widthHints, the widths the form declares are the least
  // widths of its text boxes, lists and combos (dialogs); a main window that a person
  // sizes freely goes without.
  FormBinding(Form& form, QWidget* container, QMenuBar* menuBar, bool widthHints = true);
  ~FormBinding() override;

  Form& form() const { return form_; }
  // The widget of a control, or null when it has none (not placed, or a menu item).
  QWidget* WidgetOf(const Control& control) const;
  ControlBinding* BindingOf(const Control& control) const;
  QAction* ActionOf(const Menu& menu) const;
  // Gives the widget of the model's active control the keyboard focus.
  void ApplyFocus();
  // Called whenever the form's own properties (caption, geometry, state) change.
  std::function<void()> formChanged;

 private:
  void BuildGrid(const Layout& layout, QGridLayout* grid, QWidget* parent);
  ControlBinding* Bind(Control& control, QWidget* parent);
  void BuildMenus(QMenuBar* bar);
  MenuBinding* BindMenu(Menu& menu);
  void SetBuddies(const Layout& layout);

  Form& form_;
  QWidget* container_;
  bool widthHints_;
  std::vector<std::unique_ptr<ControlBinding>> bindings_;
  std::map<const Control*, ControlBinding*> byControl_;
};

}  // namespace ui::qt
