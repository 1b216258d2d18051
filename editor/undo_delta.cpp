#include "editor/undo_delta.h"

#include <algorithm>
#include <cstring>

#include "document/catalogue.h"
#include "document/state.h"
#include "editor/line_editing.h"
#include "ui/model/list_controls.h"

namespace kq {

namespace {

constexpr size_t kEntryBytes = sizeof(ProgramLine);
constexpr size_t kHeaderBytes = sizeof(ProgramHeader);
// Differing bytes closer than this go into one patch: a patch costs more than a few bytes.
constexpr size_t kJoinGap = 16;

// The bytes a line's record takes at the front of its block: what a move of the line
// carries; the bytes behind it belong to the block.
size_t RecordBytes(int funcNo) {
  if (funcNo < 0 || funcNo >= kFuncCount) return 0;
  return static_cast<size_t>(std::clamp(kCatalogueLength[funcNo], 0, kBlockSize));
}

const uint8_t* Bytes(const void* p) {
  return static_cast<const uint8_t*>(p);
}

// For a line of one side, the line of the other side it came from along the runs, or -1
// when it is in no run (it then comes from the same index).
class RunMap {
 public:
  // forward: after from before; otherwise before from after.
  RunMap(const std::vector<MovedRun>& runs, bool forward) : runs_(runs), forward_(forward) {}

  int Source(int t) const {
    auto it = std::upper_bound(runs_.begin(), runs_.end(), t,
                               [this](int v, const MovedRun& r) { return v < Target(r); });
    if (it == runs_.begin()) return -1;
    --it;
    if (t >= Target(*it) + it->length) return -1;
    return t - Target(*it) + SourceStart(*it);
  }

  // Calls f(target, source) for every line of every run.
  template <class F>
  void ForEach(F f) const {
    for (const MovedRun& r : runs_) {
      for (int k = 0; k < r.length; ++k) f(Target(r) + k, SourceStart(r) + k);
    }
  }

 private:
  int Target(const MovedRun& r) const { return forward_ ? r.to : r.from; }
  int SourceStart(const MovedRun& r) const { return forward_ ? r.from : r.to; }

  const std::vector<MovedRun>& runs_;
  bool forward_;
};

// Appends patches that turn `have` into `want`. Only the first `known` bytes of `have`
// count: the bytes behind them are taken as different whatever they hold.
void Diff(std::vector<SlotPatch>& out, std::vector<uint8_t>& pool, uint32_t slot,
          const uint8_t* have, const uint8_t* want, size_t size, size_t known) {
  if (known >= size && std::memcmp(have, want, size) == 0) return;
  auto differs = [&](size_t j) { return j >= known || have[j] != want[j]; };
  size_t i = 0;
  while (i < size) {
    if (!differs(i)) {
      ++i;
      continue;
    }
    size_t end = i + 1;
    for (size_t j = end; j < size && j - end < kJoinGap; ++j) {
      if (differs(j)) end = j + 1;
    }
    out.push_back(SlotPatch{slot, static_cast<uint32_t>(i), static_cast<uint32_t>(end - i),
                            static_cast<uint32_t>(pool.size())});
    pool.insert(pool.end(), want + i, want + end);
    i = end;
  }
}

void Apply(const std::vector<SlotPatch>& patches, const std::vector<uint8_t>& pool, uint8_t* base,
           size_t slotSize) {
  for (const SlotPatch& p : patches) {
    std::memcpy(base + p.slot * slotSize + p.offset, pool.data() + p.pool, p.length);
  }
}

// The DisplayLine that the moves alone give line t: a moved line keeps its text behind
// the number and takes its new number; any other line is the text at its index.
std::string TextCandidate(const std::vector<std::string>& source, const RunMap& map, int t) {
  const int u = map.Source(t);
  const auto size = static_cast<int>(source.size());
  if (u >= 0) return u < size ? Renumbered(t, source[static_cast<size_t>(u)]) : std::string();
  return t < size ? source[static_cast<size_t>(t)] : std::string();
}

// One side of a delta: what turns the `from` state (moved along the runs) into `to`.
struct Stores {
  const uint8_t* blocks;
  const ProgramLine* entries;
  const ProgramHeader* header;
  const std::vector<std::string>* texts;
};

// A block is kept as far as its line's record goes: the bytes behind the record are read
// by no command and written to no file, and keeping them would cost a copy of every block
// that a move passes over. For the same reason the source of a record is trusted only as
// far as its own record goes: what stands behind it is stored.
void TakeSide(DeltaSide& side, const RunMap& map, const Stores& from, const Stores& to) {
  for (int t = 0; t < kMaxLines; ++t) {
    const int u = map.Source(t);
    const int source = u < 0 ? t : u;
    const auto slot = static_cast<uint32_t>(t);
    Diff(side.entries, side.pool, slot, Bytes(&from.entries[source]), Bytes(&to.entries[t]),
         kEntryBytes, kEntryBytes);
    Diff(side.blocks, side.pool, slot, from.blocks + static_cast<size_t>(source) * kBlockSize,
         to.blocks + static_cast<size_t>(t) * kBlockSize, RecordBytes(to.entries[t].LineFuncNo),
         RecordBytes(from.entries[source].LineFuncNo));
  }
  Diff(side.header, side.pool, 0, Bytes(from.header), Bytes(to.header), kHeaderBytes, kHeaderBytes);
  const auto count = static_cast<int>(to.texts->size());
  side.lineCount = count;
  for (int t = 0; t < count; ++t) {
    const std::string& want = (*to.texts)[static_cast<size_t>(t)];
    if (TextCandidate(*from.texts, map, t) != want) side.texts.emplace_back(t, want);
  }
}

size_t PatchBytes(const std::vector<SlotPatch>& v) {
  return v.capacity() * sizeof(SlotPatch);
}

}  // namespace

size_t DeltaSide::MemoryBytes() const {
  size_t n = sizeof(DeltaSide) + PatchBytes(blocks) + PatchBytes(entries) + PatchBytes(header) +
             pool.capacity() + texts.capacity() * sizeof(texts[0]) +
             selection.ranges.capacity() * sizeof(selection.ranges[0]);
  for (const auto& t : texts) n += t.second.capacity() > 15 ? t.second.capacity() + 1 : 0;
  return n;
}

bool Delta::Empty() const {
  auto same = [](const DeltaSide& s) {
    return s.blocks.empty() && s.entries.empty() && s.header.empty() && s.texts.empty();
  };
  return runs.empty() && same(before) && same(after) && before.lineCount == after.lineCount;
}

size_t Delta::MemoryBytes() const {
  return runs.capacity() * sizeof(MovedRun) + before.MemoryBytes() + after.MemoryBytes();
}

DocumentShadow::DocumentShadow()
    : blocks_(static_cast<size_t>(kMaxLines) * kBlockSize), entries_(kMaxLines) {
  std::memcpy(blocks_.data(), FuncBlock, blocks_.size());
  std::memcpy(static_cast<void*>(entries_.data()), LineTable, sizeof LineTable);
  std::memcpy(static_cast<void*>(&header_), &PrgHdr, kHeaderBytes);
  texts_ = EditList().Items();
}

void DocumentShadow::Sync() {
  for (int t = 0; t < kMaxLines; ++t) {
    uint8_t* block = blocks_.data() + static_cast<size_t>(t) * kBlockSize;
    if (std::memcmp(block, FuncBlock[t], kBlockSize) != 0) {
      std::memcpy(block, FuncBlock[t], kBlockSize);
    }
    if (std::memcmp(&entries_[t], &LineTable[t], kEntryBytes) != 0) {
      std::memcpy(static_cast<void*>(&entries_[t]), &LineTable[t], kEntryBytes);
    }
  }
  std::memcpy(static_cast<void*>(&header_), &PrgHdr, kHeaderBytes);
  if (texts_ != EditList().Items()) texts_ = EditList().Items();
}

Delta DocumentShadow::Take(std::vector<MovedRun> runs, ListSelection before, ListSelection after) {
  Delta d;
  d.runs = std::move(runs);
  const Stores shadow{blocks_.data(), entries_.data(), &header_, &texts_};
  const Stores live{&FuncBlock[0][0], LineTable, &PrgHdr, &EditList().Items()};
  TakeSide(d.after, RunMap(d.runs, true), shadow, live);
  TakeSide(d.before, RunMap(d.runs, false), live, shadow);
  d.before.selection = std::move(before);
  d.after.selection = std::move(after);
  SyncSlots(d.runs, true, d.after);
  return d;
}

void DocumentShadow::Play(const Delta& delta, bool toBefore) {
  const DeltaSide& side = toBefore ? delta.before : delta.after;
  const RunMap map(delta.runs, !toBefore);
  // The entries first: a moved block carries the record length of its line's function.
  map.ForEach([this](int t, int u) {
    std::memcpy(static_cast<void*>(&LineTable[t]), &entries_[static_cast<size_t>(u)], kEntryBytes);
  });
  Apply(side.entries, side.pool, reinterpret_cast<uint8_t*>(LineTable), kEntryBytes);
  map.ForEach([this](int t, int u) {
    std::memcpy(FuncBlock[t], blocks_.data() + static_cast<size_t>(u) * kBlockSize,
                RecordBytes(LineTable[t].LineFuncNo));
  });
  Apply(side.blocks, side.pool, &FuncBlock[0][0], kBlockSize);
  Apply(side.header, side.pool, reinterpret_cast<uint8_t*>(&PrgHdr), kHeaderBytes);

  std::vector<std::string> items(static_cast<size_t>(side.lineCount));
  for (int t = 0; t < side.lineCount; ++t) {
    items[static_cast<size_t>(t)] = TextCandidate(texts_, map, t);
  }
  for (const auto& [t, text] : side.texts) items[static_cast<size_t>(t)] = text;
  EditList().ReplaceAll(std::move(items));
  RestoreSelection(side.selection);
  SyncSlots(delta.runs, !toBefore, side);
}

void DocumentShadow::SyncSlots(const std::vector<MovedRun>& runs, bool forward,
                               const DeltaSide& side) {
  auto take = [this](int t) {
    std::memcpy(blocks_.data() + static_cast<size_t>(t) * kBlockSize, FuncBlock[t], kBlockSize);
    std::memcpy(static_cast<void*>(&entries_[static_cast<size_t>(t)]), &LineTable[t], kEntryBytes);
  };
  RunMap(runs, forward).ForEach([&take](int t, int) { take(t); });
  for (const SlotPatch& p : side.blocks) take(static_cast<int>(p.slot));
  for (const SlotPatch& p : side.entries) take(static_cast<int>(p.slot));
  std::memcpy(static_cast<void*>(&header_), &PrgHdr, kHeaderBytes);
  texts_ = EditList().Items();
}

size_t DocumentShadow::MemoryBytes() const {
  size_t n = sizeof(*this) + blocks_.capacity() + entries_.capacity() * sizeof(ProgramLine) +
             texts_.capacity() * sizeof(std::string);
  for (const std::string& t : texts_) n += t.capacity() > 15 ? t.capacity() + 1 : 0;
  return n;
}

ListSelection CaptureSelection() {
  const ui::ListBox& list = EditList();
  ListSelection s;
  s.listIndex = list.ListIndex();
  const int n = list.ListCount();
  for (int i = 0; i < n; ++i) {
    if (!list.Selected(i)) continue;
    if (!s.ranges.empty() && s.ranges.back().second == i - 1) {
      s.ranges.back().second = i;
    } else {
      s.ranges.emplace_back(i, i);
    }
  }
  return s;
}

void RestoreSelection(const ListSelection& s) {
  ui::ListBox& list = EditList();
  bool focusSelected = false;
  for (const auto& [first, last] : s.ranges) {
    for (int i = first; i <= last; ++i) list.SetSelected(i, true);
    focusSelected = focusSelected || (s.listIndex >= first && s.listIndex <= last);
  }
  if (s.listIndex < 0 || s.listIndex >= list.ListCount()) return;
  if (focusSelected) {
    list.SetSelected(s.listIndex, true);  // moves the focus there
  } else {
    list.SetListIndex(s.listIndex);
    list.SetSelected(s.listIndex, false);
  }
}

std::vector<MovedRun> RunsOfDelete(const std::vector<int>& selected, int n) {
  std::vector<MovedRun> runs;
  size_t next = 0;
  int q = 0;
  for (int i = 0; i < n; ++i) {
    if (next < selected.size() && selected[next] == i) {
      ++next;
      continue;
    }
    if (q != i) {
      MovedRun* r = runs.empty() ? nullptr : &runs.back();
      if (r != nullptr && r->from + r->length == i && r->to + r->length == q) {
        ++r->length;
      } else {
        runs.push_back(MovedRun{i, q, 1});
      }
    }
    ++q;
  }
  return runs;
}

std::vector<MovedRun> RunsOfInsert(int k, int count, int n) {
  if (count <= 0 || k < 0 || k >= n) return {};
  return {MovedRun{k, k + count, n - k}};
}

}  // namespace kq
