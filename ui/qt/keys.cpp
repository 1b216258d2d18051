#include "ui/qt/keys.h"

#include "ui/qt/cp1252.h"

namespace ui::qt {

int VirtualKeyOf(const QKeyEvent& e) {
  const int k = e.key();
  if (k >= Qt::Key_A && k <= Qt::Key_Z) return k;  // same codes as the original
  if (k >= Qt::Key_0 && k <= Qt::Key_9) return k;
  if (k >= Qt::Key_F1 && k <= Qt::Key_F24) return 112 + (k - Qt::Key_F1);
  switch (k) {
    case Qt::Key_Backspace:
      return 8;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return 9;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return 13;
    case Qt::Key_Escape:
      return 27;
    case Qt::Key_Space:
      return 32;
    case Qt::Key_PageUp:
      return 33;
    case Qt::Key_PageDown:
      return 34;
    case Qt::Key_End:
      return 35;
    case Qt::Key_Home:
      return 36;
    case Qt::Key_Left:
      return 37;
    case Qt::Key_Up:
      return 38;
    case Qt::Key_Right:
      return 39;
    case Qt::Key_Down:
      return 40;
    case Qt::Key_Insert:
      return 45;
    case Qt::Key_Delete:
      return 46;
    default:
      return 0;
  }
}

int ShiftOf(Qt::KeyboardModifiers m) {
  int s = 0;
  if (m & Qt::ShiftModifier) s |= 1;
  if (m & Qt::ControlModifier) s |= 2;
  if (m & Qt::AltModifier) s |= 4;
  return s;
}

int KeyAsciiOf(const QKeyEvent& e) {
  switch (e.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return 13;
    case Qt::Key_Escape:
      return 27;
    case Qt::Key_Backspace:
      return 8;
    default:
      break;
  }
  // Control and Alt combinations are commands of the window, not typing.
  if (e.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return -1;
  const QString text = e.text();
  if (text.size() != 1) return -1;
  const int code = CodeOf(text.at(0));
  return code >= 32 ? code : -1;
}

}  // namespace ui::qt
