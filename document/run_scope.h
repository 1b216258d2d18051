// The run's installed state in one place: the platform, the list of DisplayLines, the main
// window and the shell hooks that the document and the dialogs reach through globals. A
// RunScope installs a set of them for its lifetime over a new document, and puts back what
// was installed before when it ends, so that kqx commands, tests and fuzz inputs in one
// process never leave their list or platform behind for the next one (scopes nest).
#pragma once

#include "document/state.h"

namespace ui {
class Platform;
}  // namespace ui

namespace kq {

struct RunParts {
  ui::Platform* platform = nullptr;
  ui::ListBox* editList = nullptr;
  ui::Form* mainWindow = nullptr;  // null: dialogs centre on the screen
};

// What is installed now; a part not installed is null.
RunParts InstalledParts();

class RunScope {
 public:
  // Installs the parts and empty shell hooks, fills the name tables and the record
  // lengths, and starts a new document (the hand-over fields cleared).
  explicit RunScope(const RunParts& parts);
  ~RunScope();
  RunScope(const RunScope&) = delete;
  RunScope& operator=(const RunScope&) = delete;

 private:
  RunParts previous_;
  ShellHooks previousShell_;
};

}  // namespace kq
