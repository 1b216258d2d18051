#include "ui/qt/control_binding.h"

#include <QApplication>
#include <QClipboard>
#include <QFocusEvent>
#include <QKeyEvent>

#include "ui/model/form.h"
#include "ui/qt/cp1252.h"
#include "ui/qt/keys.h"

namespace ui::qt {

namespace {
bool g_modelFocusing = false;
}  // namespace

bool ControlBinding::ModelFocusing() {
  return g_modelFocusing;
}
void ControlBinding::SetModelFocusing(bool on) {
  g_modelFocusing = on;
}

ControlBinding::ControlBinding(Control& control, QWidget* widget)
    : control_(control), widget_(widget) {
  control_.observer = [this](Control&, const Change& change) {
    if (attached_) Sync(change);
  };
  if (widget_) widget_->installEventFilter(this);
}

ControlBinding::~ControlBinding() {
  Detach();
}

void ControlBinding::Detach(bool controlAlive) {
  if (!attached_) return;
  attached_ = false;
  if (controlAlive) control_.observer = nullptr;
  if (widget_) widget_->removeEventFilter(this);
}

void ControlBinding::Sync(const Change& change) {
  if (change.what != Change::What::Property || !widget_) return;
  widget_->setEnabled(control_.Enabled());
  // A widget inside a window that is not shown yet keeps its own flag.
  widget_->setVisible(control_.Visible());
}

bool ControlBinding::OtherKey(int, int, QKeyEvent&) {
  return false;
}

void ControlBinding::TypeText(const QString& text) {
  for (QChar c : text) {
    if (!attached_ || !control_.Usable()) return;
    const int code = CodeOf(c);
    // Line ends, other control characters and characters outside the code page are no
    // keys to type; a tab is one, and the control's filter decides whether it stays.
    if (code < 32 && code != '\t') continue;
    control_.UserKey(code);
  }
}

bool ControlBinding::HandleKey(QKeyEvent& e) {
  if (e.key() == Qt::Key_Tab || e.key() == Qt::Key_Backtab) return false;  // focus moves
  if (EditsText()) {
    if (e.matches(QKeySequence::Copy)) return false;
    if (e.matches(QKeySequence::Paste)) {
      TypeText(QApplication::clipboard()->text());
      return true;
    }
    if (e.matches(QKeySequence::Cut)) {
      const QString selected = SelectedText();
      if (!selected.isEmpty()) {
        QApplication::clipboard()->setText(selected);
        control_.UserKey(8);  // the selection goes as Backspace takes it
      }
      return true;
    }
  }
  const int shift = ShiftOf(e.modifiers());
  const int keyCode = VirtualKeyOf(e);
  const int ascii = KeyAsciiOf(e);
  if (keyCode != 0) {
    const int left = control_.RaiseKeyDown(keyCode, shift);
    if (!attached_) return true;
    if (left == 0) return true;  // the handler took the key
  }
  if (ascii >= 0) {
    control_.Parent().UserKey(control_, ascii);
    return true;
  }
  if (keyCode != 0) return OtherKey(keyCode, shift, e);
  // Everything else that would change the widget by itself (undo, select all of a list)
  // is not the model's and is not let through; plain modifier presses are harmless.
  return !(e.key() == Qt::Key_Shift || e.key() == Qt::Key_Control || e.key() == Qt::Key_Alt);
}

bool ControlBinding::eventFilter(QObject* watched, QEvent* event) {
  if (!attached_ || watched != widget_) return QObject::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::KeyPress:
      return HandleKey(static_cast<QKeyEvent&>(*event));
    case QEvent::ShortcutOverride: {
      // Typing keys belong to the control, before any menu shortcut of the window.
      auto& key = static_cast<QKeyEvent&>(*event);
      if (KeyAsciiOf(key) >= 0) event->accept();
      return false;
    }
    case QEvent::FocusIn: {
      const auto reason = static_cast<QFocusEvent*>(event)->reason();
      if (!g_modelFocusing && reason != Qt::ActiveWindowFocusReason &&
          reason != Qt::PopupFocusReason && control_.Parent().ActiveControl() != &control_) {
        control_.SetFocus();
      }
      return false;
    }
    default:
      return false;
  }
}

}  // namespace ui::qt
