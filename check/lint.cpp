#include "check/lint.h"

#include "check/compile_faults.h"
#include "check/flow.h"
#include "check/warnings.h"
#include "editor/compile_index.h"
#include "ui/headless/json.h"
#include "ui/platform/codepage.h"

namespace kq::check {

Findings Lint(int lineCount) {
  const LabelIndex labels(lineCount);
  const LabelFieldTable table;
  Findings all = CompileFaults(lineCount, labels, table);
  const FlowGraph graph = BuildFlow(lineCount, labels, table);
  Findings warnings = Warnings(lineCount, labels, table, graph);
  all.insert(all.end(), warnings.begin(), warnings.end());
  return all;
}

bool HasErrors(const Findings& findings) {
  for (const Finding& f : findings) {
    if (f.severity == Severity::Error) return true;
  }
  return false;
}

bool HasWarnings(const Findings& findings) {
  for (const Finding& f : findings) {
    if (f.severity == Severity::Warning) return true;
  }
  return false;
}

void WriteJsonLines(std::ostream& out, const Findings& findings) {
  for (const Finding& f : findings) {
    ui::Json j;
    j.Set("severity", SeverityName(f.severity));
    j.Set("line", f.line);
    j.Set("code", f.code);
    j.Set("message", f.message);
    out << j.Dump() << "\n";
  }
}

void WriteText(std::ostream& out, const std::string& file, const Findings& findings) {
  for (const Finding& f : findings) {
    out << file;
    if (f.line >= 0) out << ":" << f.line;
    out << ": " << SeverityName(f.severity) << ": " << ui::Cp1252ToUtf8(f.message) << "\n";
  }
}

}  // namespace kq::check
