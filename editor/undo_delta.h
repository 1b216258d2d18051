// The record of one change to the document, kept as small as the change: which runs of
// lines moved, and, for each direction, the bytes that the moves alone do not give back
// (blocks, line table entries, the header) and the DisplayLines they do not give back.
//
// A delta is taken against a shadow of the document (the state after the last change that
// was recorded) and played back over it: the shadow is the one full copy of the stores
// that the history keeps.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "document/header.h"
#include "document/records.h"

namespace kq {

// Lines that a command moved: `length` lines from index `from` before it to index `to`
// after it. Lines outside every run stayed where they were.
struct MovedRun {
  int from = 0;
  int to = 0;
  int length = 0;
};

// The selection of lstEdit: the selected lines as ranges, and the line with the focus.
struct ListSelection {
  std::vector<std::pair<int, int>> ranges;  // first, last
  int listIndex = -1;
};

// Bytes to write over one slot (a block, a line table entry, the header).
struct SlotPatch {
  uint32_t slot = 0;
  uint32_t offset = 0;
  uint32_t length = 0;
  uint32_t pool = 0;  // where the bytes stand in the side's pool
};

// What it takes to reach one state (a side) from the other: the moves, then these.
struct DeltaSide {
  int lineCount = 0;
  std::vector<SlotPatch> blocks;
  std::vector<SlotPatch> entries;
  std::vector<SlotPatch> header;
  std::vector<uint8_t> pool;
  std::vector<std::pair<int, std::string>> texts;  // DisplayLines the moves miss
  ListSelection selection;

  size_t MemoryBytes() const;
};

struct Delta {
  std::vector<MovedRun> runs;
  DeltaSide before;  // undo reaches this
  DeltaSide after;   // redo reaches this
  bool Empty() const;
  size_t MemoryBytes() const;
};

// The full copy of the document that deltas are taken against and played over.
class DocumentShadow {
 public:
  DocumentShadow();

  // Makes the shadow equal to the document again (after changes that were not recorded,
  // a compile for instance); copies only what differs.
  void Sync();

  // The delta from the shadow to the document as it is now, with the moves a command
  // reports; the shadow then follows the document.
  Delta Take(std::vector<MovedRun> runs, ListSelection before, ListSelection after);

  // Puts the document into the state of one side of a delta whose other side is the
  // document now (and the shadow); the shadow then follows the document.
  void Play(const Delta& delta, bool toBefore);

  size_t MemoryBytes() const;

 private:
  void SyncSlots(const std::vector<MovedRun>& runs, bool forward, const DeltaSide& side);

  std::vector<uint8_t> blocks_;
  std::vector<ProgramLine> entries_;
  ProgramHeader header_{};
  std::vector<std::string> texts_;
};

// The lstEdit selection now, and putting one back.
ListSelection CaptureSelection();
void RestoreSelection(const ListSelection& selection);

// The runs of a Delete of the selected lines (before the delete) of a list of n lines.
std::vector<MovedRun> RunsOfDelete(const std::vector<int>& selected, int n);
// The runs of `count` lines put in before line k of a list of n lines.
std::vector<MovedRun> RunsOfInsert(int k, int count, int n);

}  // namespace kq
