// kqx diff A.kqx B.kqx: the changed header entries, lines and fields of two applications,
// one a line, named as their text form names them. Prints nothing when they are the same.
#include <memory>

#include <CLI/CLI.hpp>

#include "cli/cli_document.h"
#include "cli/commands.h"
#include "textform/text_form.h"
#include "ui/headless/headless_platform.h"

namespace kqx {

namespace {

struct DiffArgs {
  std::string first, second;
};

int Diff(Session& session, const DiffArgs& a) {
  session.platform.SetEventStream(&session.err);
  if (!OpenDocument(a.first)) return kExitRefused;
  const std::string first = kq::textform::ExportDocument();
  // Opening replaces the whole document: header, list, line table and blocks.
  if (!OpenDocument(a.second)) return kExitRefused;
  const std::string second = kq::textform::ExportDocument();
  for (const std::string& change : kq::textform::DiffTexts(first, second)) {
    session.out << change << "\n";
  }
  return kExitOk;
}

}  // namespace

void AddDiffCommand(CLI::App& app, Session& session) {
  auto a = std::make_shared<DiffArgs>();
  CLI::App* cmd = app.add_subcommand(
      "diff", "The changed declarations, lines and fields from one application to another");
  cmd->add_option("A", a->first, "the first application file")->required();
  cmd->add_option("B", a->second, "the second application file")->required();
  OnRun(*cmd, session, [a, &session] { return Diff(session, *a); });
}

}  // namespace kqx
