#include "editor/select_line.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "ui/model/list_controls.h"

namespace kq {

void SelectOnlyLine(int line) {
  ui::ListBox& list = EditList();
  DeselectListBox(list);
  list.SetSelected(line, true);
}

}  // namespace kq
