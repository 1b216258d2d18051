// The check of a whole application ("Check All", kqx lint): every fault compile would find,
// in its order and words (the first is the very fault compile reports), then the warnings.
// Reads the open document; changes nothing.
#pragma once

#include <ostream>
#include <string>

#include "check/finding.h"

namespace kq::check {

// The findings for the first `lineCount` lines of the open document.
Findings Lint(int lineCount);

bool HasErrors(const Findings& findings);
bool HasWarnings(const Findings& findings);

// One JSON object a line: {"severity":...,"line":N,"code":...,"message":...}.
void WriteJsonLines(std::ostream& out, const Findings& findings);
// "FILE:LINE: error: MESSAGE", as editors and build tools read them (the line -1 where
// the finding has none is left out: "FILE: warning: ...").
void WriteText(std::ostream& out, const std::string& file, const Findings& findings);

}  // namespace kq::check
