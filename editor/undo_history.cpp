#include "editor/undo_history.h"

#include <exception>

#include "document/state.h"
#include "ui/model/list_controls.h"

namespace kq {

EditHistory::EditHistory() = default;
EditHistory::~EditHistory() = default;

void EditHistory::Begin(std::string name, LineMoves moves) {
  if (depth_++ > 0) return;
  // The shadow is made at the first command, and catches up with any change made outside
  // the commands (a compile writes its line numbers into the blocks).
  if (!shadow_) {
    shadow_ = std::make_unique<DocumentShadow>();
  } else {
    shadow_->Sync();
  }
  name_ = std::move(name);
  moves_ = moves;
  const ui::ListBox& list = EditList();
  countBefore_ = list.ListCount();
  currentBefore_ = list.ListIndex();
  selectedBefore_ =
      moves == LineMoves::DeleteSelected ? list.SelectedIndexes() : std::vector<int>();
  selectionBefore_ = CaptureSelection();
  menusBefore_ = captureMenus ? captureMenus() : std::vector<bool>();
}

void EditHistory::End() {
  if (depth_ == 0 || --depth_ > 0) return;
  const int countAfter = EditList().ListCount();
  std::vector<MovedRun> runs;
  switch (moves_) {
    case LineMoves::InsertAtCurrent: {
      const int k = currentBefore_ < 0 ? 0 : currentBefore_;
      runs = RunsOfInsert(k, countAfter - countBefore_, countBefore_);
      break;
    }
    case LineMoves::DeleteSelected:
      if (countAfter == countBefore_ - static_cast<int>(selectedBefore_.size())) {
        runs = RunsOfDelete(selectedBefore_, countBefore_);
      }
      break;
    case LineMoves::None:
      break;
  }
  Delta delta = shadow_->Take(std::move(runs), std::move(selectionBefore_), CaptureSelection());
  if (delta.Empty()) return;
  Step step{std::move(name_), std::move(delta), 0, std::move(menusBefore_),
            captureMenus ? captureMenus() : std::vector<bool>()};
  step.bytes = step.delta.MemoryBytes() + step.name.capacity();
  stepBytes_ += step.bytes;
  undo_.push_back(std::move(step));
  for (const Step& s : redo_) stepBytes_ -= s.bytes;
  redo_.clear();
  while (stepBytes_ > kStepBudget && undo_.size() > 1) {
    stepBytes_ -= undo_.front().bytes;
    undo_.pop_front();
  }
  Notify();
}

void EditHistory::Play(bool undo) {
  if (depth_ > 0) return;
  auto& from = undo ? undo_ : redo_;
  if (from.empty()) return;
  shadow_->Sync();
  Step step = std::move(from.back());
  from.pop_back();
  shadow_->Play(step.delta, undo);
  ChangedFlag = true;
  PrgHdr.CompiledFlag = 0;
  const std::vector<bool>& menus = undo ? step.menusBefore : step.menusAfter;
  if (restoreMenus && !menus.empty()) restoreMenus(menus);
  if (undo) {
    redo_.push_back(std::move(step));
  } else {
    undo_.push_back(std::move(step));
  }
  Notify();
}

void EditHistory::Undo() {
  Play(true);
}

void EditHistory::Redo() {
  Play(false);
}

void EditHistory::Clear() {
  undo_.clear();
  redo_.clear();
  stepBytes_ = 0;
  Notify();
}

size_t EditHistory::MemoryBytes() const {
  return stepBytes_ + (shadow_ ? shadow_->MemoryBytes() : 0);
}

EditScope::EditScope(EditHistory& history, std::string name, LineMoves moves)
    : history_(history), exceptions_(std::uncaught_exceptions()) {
  history_.Begin(std::move(name), moves);
}

EditScope::~EditScope() {
  if (std::uncaught_exceptions() > exceptions_) {
    history_.Abandon();
    return;
  }
  history_.End();
}

}  // namespace kq
