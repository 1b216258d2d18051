// What compile accepts but is most likely a mistake: declarations no line uses, lines no
// path reaches, labels nobody jumps to, timeouts that lead nowhere useful, voice files
// missing in their folder, names that their field could hold only cut short.
#pragma once

#include "check/finding.h"

namespace kq {
class LabelIndex;
}

namespace kq::check {

class LabelFieldTable;
struct FlowGraph;

// Declarations first (they have no line), then by line.
Findings Warnings(int lineCount, const LabelIndex& labels, const LabelFieldTable& table,
                  const FlowGraph& graph);

}  // namespace kq::check
