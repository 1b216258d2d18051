// The base of the binding of one model control to one widget. The model is the only
// owner of state: every key a person types goes to the model first (KeyDown, then
// KeyPress through the form, so that Enter and Escape reach the default and cancel
// buttons), and the widget only ever shows what the model holds. A refused key therefore
// leaves the widget as it was.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include "ui/model/control.h"

class QKeyEvent;

namespace ui::qt {

class ControlBinding : public QObject {
 public:
  ControlBinding(Control& control, QWidget* widget);
  ~ControlBinding() override;

  Control& control() const { return control_; }
  QWidget* widget() const { return widget_; }
  // Shows the model's state in the widget: after building, and on every change.
  void Refresh() {
    if (attached_) Sync(Change{});
  }
  // Forgets the control (the form goes away) so that nothing calls back into it. A
  // control that no longer exists is not touched.
  void Detach(bool controlAlive = true);

  // The binding that is mirroring a model change right now; focus events it causes are
  // the model's own and are not reported back.
  static bool ModelFocusing();
  static void SetModelFocusing(bool on);

 protected:
  // Mirrors a model change into the widget. The base covers Enabled and Visible.
  virtual void Sync(const Change& change);
  // A key that the model has let through and that types nothing (arrows, Home, Delete):
  // true when the binding has dealt with it, false to let the widget have it.
  virtual bool OtherKey(int keyCode, int shift, QKeyEvent& e);
  // Typing of several characters at once (paste), one key at a time through the model.
  void TypeText(const QString& text);
  // Whether the widget edits text (paste and cut apply).
  virtual bool EditsText() const { return false; }
  // The text selected in the widget, for copy and cut.
  virtual QString SelectedText() const { return {}; }

  bool attached() const { return attached_; }
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool HandleKey(QKeyEvent& e);

  bool syncing_ = false;

 private:
  Control& control_;
  QPointer<QWidget> widget_;
  bool attached_ = true;
};

}  // namespace ui::qt
