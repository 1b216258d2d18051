// Every fault that compile would find if it went on after the first, in the order compile
// meets them and in its words. Nothing of the document is changed, no box is shown and no
// line selected. A program fault (an illegal function number or type) ends the list, as it
// would end the program.
#pragma once

#include "check/finding.h"

namespace kq {
class LabelIndex;
}

namespace kq::check {

class LabelFieldTable;

Findings CompileFaults(int lineCount);
Findings CompileFaults(int lineCount, const LabelIndex& labels, const LabelFieldTable& table);

}  // namespace kq::check
