// Position of a dialog: centred on the main window, moved back onto the screen where it
// would stand beyond its right or bottom edge. All in twips.
#include "dialogs/services.h"
#include "document/state.h"
#include "ui/model/form.h"
#include "ui/platform/platform.h"

namespace kq {

void CenterForm(ui::Form& form) {
  const ui::Platform& screen = ui::platform();
  int baseLeft = 0, baseTop = 0;
  int baseWidth = screen.ScreenWidth(), baseHeight = screen.ScreenHeight();
  if (const ui::Form* main = MainWindow()) {
    baseLeft = main->Left();
    baseTop = main->Top();
    baseWidth = main->Width();
    baseHeight = main->Height();
  }
  int left = baseLeft + (baseWidth - form.Width()) / 2;
  int top = baseTop + (baseHeight - form.Height()) / 2;
  if (left < 0) left = 0;
  if (top < 0) top = 0;
  if (left + form.Width() > screen.ScreenWidth())
    left -= left + form.Width() - screen.ScreenWidth();
  if (top + form.Height() > screen.ScreenHeight())
    top -= top + form.Height() - screen.ScreenHeight();
  form.Move(left, top);
}

}  // namespace kq
