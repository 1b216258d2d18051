// The scoped guard of the run's state (state.h): a RunScope installs a run (its platform,
// list of DisplayLines, main window, empty shell hooks and a new document) for its
// lifetime, and when it ends puts back what it replaced, so that kqx commands, tests and
// fuzz inputs in one process never leave their document, list or platform behind for the
// next one. Scopes nest.
#pragma once

#include "document/state.h"

namespace kq {

// What is installed now; a part not installed is null.
RunParts InstalledParts();

class RunScope {
 public:
  // Installs the parts and empty shell hooks, and starts a new document (the hand-over
  // flags cleared).
  explicit RunScope(const RunParts& parts);
  ~RunScope();
  RunScope(const RunScope&) = delete;
  RunScope& operator=(const RunScope&) = delete;

 private:
  RunParts previousParts_;
  ShellHooks previousShell_;
  int depth_;  // the scopes open around this one; they end in the reverse order
};

}  // namespace kq
