// The control flow of an application: every way from a line to another, read from the
// records alone. Lint's reachability and the call-flow diagram share it; nothing here
// knows how a diagram is drawn.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "document/functions.h"

namespace kq {
class LabelIndex;
}

namespace kq::check {

enum class EdgeKind {
  Next,     // falling through to the next line
  Goto,     // the target of Goto
  Gosub,    // the target of Gosub
  Return,   // the way back of Return, to the line behind a Gosub that reaches it
  Then,     // THEN of Condition, Check Path, Check File, Delete File
  Else,     // ELSE of the same
  Key,      // a key of Wait for Key
  Outcome,  // an outcome label (hangup, error, timeout, busy, no data, ...)
};
const char* EdgeKindName(EdgeKind kind);

// One label field of a record, as compile resolves it.
struct LabelField {
  int offset = 0;  // the 16-byte name in the record
  EdgeKind kind = EdgeKind::Outcome;
  std::string keyword;     // as the DisplayLine writes it: "E", "T", "BusyTone", "#", "THEN"
  bool mandatory = false;  // looked up even when empty (the THEN of Condition)
};

// The label fields of every function, in the order compile resolves them. Keywords come
// from the name tables.
class LabelFieldTable {
 public:
  LabelFieldTable();
  // Empty for a function without labels and for a number outside the catalogue.
  const std::vector<LabelField>& Of(int funcNo) const;

 private:
  std::vector<std::vector<LabelField>> fields_;
};

struct Edge {
  int from = 0;
  int to = 0;
  EdgeKind kind = EdgeKind::Next;
  std::string label;  // the keyword of the field; empty for Next, Goto, Gosub and Return
  bool operator==(const Edge&) const = default;
};

struct FlowGraph {
  int lines = 0;
  std::vector<Edge> edges;       // by source line and field order; the ways back of Return last
  std::vector<int> blockStarts;  // the first line of each block, ascending
};

// True when the line goes on to the next line by itself (the last line has nowhere to go,
// which the caller decides).
bool FallsThrough(int funcNo, const uint8_t* record);

// The edges of the open document's first `lineCount` lines. Labels are resolved by name
// as compile resolves them (the last line that carries the label); a label that no line
// carries gives no edge.
FlowGraph BuildFlow(int lineCount);
FlowGraph BuildFlow(int lineCount, const LabelIndex& labels, const LabelFieldTable& table);

// The lines that a path from line 0 reaches.
std::vector<bool> Reachable(const FlowGraph& graph);

}  // namespace kq::check
