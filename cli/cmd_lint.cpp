// kqx lint FILE [--format json|text] [--werror]: every fault compile would find and the
// warnings, as JSON lines or as "FILE:LINE: error: MESSAGE". Exit 1 on an error (on a
// warning too with --werror).
#include <memory>

#include <CLI/CLI.hpp>

#include "check/lint.h"
#include "cli/check_document.h"
#include "cli/commands.h"
#include "document/state.h"
#include "ui/model/list_controls.h"

namespace kqx {

namespace {

struct LintArgs {
  std::string file;
  std::string format = "json";
  bool werror = false;
};

int Lint(Session& session, const LintArgs& a) {
  if (!OpenForReading(session, a.file)) return kExitRefused;
  const kq::check::Findings findings = kq::check::Lint(kq::EditList().ListCount());
  if (a.format == "text") {
    kq::check::WriteText(session.out, a.file, findings);
  } else {
    kq::check::WriteJsonLines(session.out, findings);
  }
  const bool fails =
      kq::check::HasErrors(findings) || (a.werror && kq::check::HasWarnings(findings));
  return fails ? kExitRefused : kExitOk;
}

}  // namespace

void AddLintCommand(CLI::App& app, Session& session) {
  auto a = std::make_shared<LintArgs>();
  CLI::App* cmd = app.add_subcommand("lint", "Every fault compile would find, then the warnings");
  cmd->add_option("FILE", a->file, "the application file")->required();
  cmd->add_option("--format", a->format, "json (default) or text")
      ->check(CLI::IsMember({"json", "text"}));
  cmd->add_flag("--werror", a->werror, "warnings fail too");
  OnRun(*cmd, session, [a, &session] { return Lint(session, *a); });
}

}  // namespace kqx
