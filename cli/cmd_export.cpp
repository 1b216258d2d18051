// kqx export FILE.kqx [-o FILE.json]: the application as its text form, to FILE.json or
// to standard output (where the boxes of a refused file go to the error stream instead).
#include <memory>

#include <CLI/CLI.hpp>

#include "cli/cli_document.h"
#include "cli/commands.h"
#include "textform/text_form.h"
#include "ui/headless/headless_platform.h"

namespace kqx {

namespace {

struct ExportArgs {
  std::string in, out;
};

int Export(Session& session, const ExportArgs& a) {
  if (a.out.empty()) session.platform.SetEventStream(&session.err);
  if (!OpenDocument(a.in)) return kExitRefused;
  const std::string text = kq::textform::ExportDocument();
  if (a.out.empty()) {
    session.out << text;
    return kExitOk;
  }
  if (!WriteWhole(a.out, text)) {
    session.err << "kqx export: can't write " << a.out << "\n";
    return kExitRefused;
  }
  return kExitOk;
}

}  // namespace

void AddExportCommand(CLI::App& app, Session& session) {
  auto a = std::make_shared<ExportArgs>();
  CLI::App* cmd = app.add_subcommand(
      "export", "An application as JSON text, one line of text per line of the application");
  cmd->add_option("FILE", a->in, "the application file")->required();
  cmd->add_option("-o,--output", a->out, "the JSON file to write (standard output when not given)");
  OnRun(*cmd, session, [a, &session] { return Export(session, *a); });
}

}  // namespace kqx
