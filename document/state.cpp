#include "document/state.h"

#include <cstdlib>

namespace kq {

RunState TheRun;

ui::Form* MainWindow() {
  return TheRun.parts.mainWindow;
}

void SetMainWindow(ui::Form* form) {
  TheRun.parts.mainWindow = form;
}

ui::ListBox& EditList() {
  if (TheRun.parts.editList == nullptr) std::abort();  // the main window registers it at start
  return *TheRun.parts.editList;
}

ui::ListBox* InstalledEditList() {
  return TheRun.parts.editList;
}

void SetEditList(ui::ListBox* list) {
  TheRun.parts.editList = list;
}

}  // namespace kq
