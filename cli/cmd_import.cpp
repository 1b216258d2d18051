// kqx import FILE.json -o FILE.kqx: the text form back into an application file. The whole
// JSON is checked first; a fault names its place in the JSON and nothing is written.
#include <memory>

#include <CLI/CLI.hpp>

#include "cli/cli_document.h"
#include "cli/commands.h"
#include "document/file.h"
#include "document/state.h"
#include "textform/text_form.h"

namespace kqx {

namespace {

struct ImportArgs {
  std::string in, out;
};

int Import(Session& session, const ImportArgs& a) {
  std::string json;
  if (!ReadWhole(a.in, json)) {
    session.err << "kqx import: can't read " << a.in << "\n";
    return kExitRefused;
  }
  kq::textform::StagedDocument doc;
  kq::textform::ImportError error;
  if (!kq::textform::ParseDocument(json, doc, error) ||
      !kq::textform::InstallDocument(doc, error)) {
    session.err << "kqx import: " << a.in << ": " << error.Text() << "\n";
    return kExitRefused;
  }
  std::string name = SystemText(a.out);
  std::string title = TitleOf(name);
  int16_t count = kq::PrgHdr.LineCount;
  kq::ChangedFlag = true;
  kq::SaveFile(title, name, true, 0, count - 1, count);
  // A save that did not finish leaves the document changed; its box has been printed.
  return kq::ChangedFlag ? kExitRefused : kExitOk;
}

}  // namespace

void AddImportCommand(CLI::App& app, Session& session) {
  auto a = std::make_shared<ImportArgs>();
  CLI::App* cmd =
      app.add_subcommand("import", "The JSON text of an application back into its file");
  cmd->add_option("FILE", a->in, "the JSON text")->required();
  cmd->add_option("-o,--output", a->out, "the application file to write")->required();
  OnRun(*cmd, session, [a, &session] { return Import(session, *a); });
}

}  // namespace kqx
