// kqx lint FILE [--format json|text] [--werror]: every fault compile would find and the
// warnings, as JSON lines or as "FILE:LINE: error: MESSAGE". Exit 1 on an error (on a
// warning too with --werror).
#include "check/lint.h"
#include "cli/check_document.h"
#include "cli/commands.h"
#include "document/state.h"
#include "ui/model/list_controls.h"

namespace kqx {

int CmdLint(CliContext& ctx) {
  const char* usage = "lint FILE [--format json|text] [--werror]";
  std::string file, format = "json";
  bool werror = false;
  const auto& a = ctx.args;
  for (size_t i = 0; i < a.size(); ++i) {
    if (a[i] == "--werror") {
      werror = true;
    } else if (a[i] == "--format" && i + 1 < a.size() &&
               (a[i + 1] == "json" || a[i + 1] == "text")) {
      format = a[++i];
    } else if (file.empty() && !a[i].empty() && a[i][0] != '-') {
      file = a[i];
    } else {
      ctx.err << "usage: kqx " << usage << "\n";
      return kExitRefused;
    }
  }
  if (file.empty()) {
    ctx.err << "usage: kqx " << usage << "\n";
    return kExitRefused;
  }
  if (!OpenForReading(ctx, file)) return kExitRefused;
  const kq::check::Findings findings = kq::check::Lint(kq::EditList().ListCount());
  if (format == "text") {
    kq::check::WriteText(ctx.out, file, findings);
  } else {
    kq::check::WriteJsonLines(ctx.out, findings);
  }
  const bool fails = kq::check::HasErrors(findings) || (werror && kq::check::HasWarnings(findings));
  return fails ? kExitRefused : kExitOk;
}

}  // namespace kqx
