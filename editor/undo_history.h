// Undo and Redo of the changes to the document. A command that may change the document
// runs inside an EditScope; at its end the history takes the delta of what the command
// changed (nothing is kept when it changed nothing: a dialog left by Cancel, a refused
// insert). Undo and Redo play a delta back, set ChangedFlag and clear CompiledFlag, as
// any edit does.
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "editor/undo_delta.h"

namespace kq {

// How a command moves the lines that it does not change, which the history needs to keep
// its record small.
enum class LineMoves {
  None,             // lines stay at their indexes (Add, Modify, Clear, declarations)
  InsertAtCurrent,  // new lines go in before lstEdit.ListIndex (Insert, Insert file, Paste)
  DeleteSelected,   // the selected lines go (Delete, Cut)
};

class EditHistory {
 public:
  // Everything the history keeps for its steps, beyond the shadow of the document; the
  // oldest steps are dropped to stay within it.
  static constexpr size_t kStepBudget = size_t{48} << 20;

  EditHistory();
  ~EditHistory();

  // The command `name` ("Delete", "Variables") starts; nested scopes are part of the
  // outer command.
  void Begin(std::string name, LineMoves moves);
  void End();
  // The command ended the program: nothing is taken.
  void Abandon() { depth_ = 0; }

  bool CanUndo() const { return !undo_.empty(); }
  bool CanRedo() const { return !redo_.empty(); }
  // The name of the command that Undo or Redo would take back or do again; empty if none.
  std::string UndoName() const { return undo_.empty() ? std::string() : undo_.back().name; }
  std::string RedoName() const { return redo_.empty() ? std::string() : redo_.back().name; }
  void Undo();
  void Redo();

  // A document was opened, made new or closed: nothing before it can be taken back.
  void Clear();

  int UndoCount() const { return static_cast<int>(undo_.size()); }
  // The memory of the steps, and of the steps and the shadow together.
  size_t StepBytes() const { return stepBytes_; }
  size_t MemoryBytes() const;

  // Called after every change of what Undo and Redo can do.
  std::function<void()> changed;
  // The enabled states of the menus that the commands set, taken before and after each
  // command; Undo puts back the states from before the command, Redo those after it, so
  // that the menus stand as the command itself left them (a Clear leaves the File menu
  // as it was, a Delete sets it by the line count).
  std::function<std::vector<bool>()> captureMenus;
  std::function<void(const std::vector<bool>&)> restoreMenus;

 private:
  struct Step {
    std::string name;
    Delta delta;
    size_t bytes = 0;
    std::vector<bool> menusBefore, menusAfter;
  };
  void Play(bool undo);
  void Notify() {
    if (changed) changed();
  }

  std::unique_ptr<DocumentShadow> shadow_;
  std::deque<Step> undo_;
  std::deque<Step> redo_;
  size_t stepBytes_ = 0;

  int depth_ = 0;
  std::string name_;
  LineMoves moves_ = LineMoves::None;
  int countBefore_ = 0;
  int currentBefore_ = -1;
  std::vector<int> selectedBefore_;
  ListSelection selectionBefore_;
  std::vector<bool> menusBefore_;
};

// Runs a command inside the history: Begin at construction, End at destruction (no step
// is taken when the command ends by an exception, the end of the program).
class EditScope {
 public:
  EditScope(EditHistory& history, std::string name, LineMoves moves);
  ~EditScope();
  EditScope(const EditScope&) = delete;
  EditScope& operator=(const EditScope&) = delete;

 private:
  EditHistory& history_;
  int exceptions_;
};

}  // namespace kq
