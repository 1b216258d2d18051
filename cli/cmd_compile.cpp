// kqx compile IN [-o OUT]: opens an application, compiles it as the Compile menu does,
// prints every box as a JSON line and then the result; a successful compile saves the
// whole document to OUT (IN when no -o is given).
#include <memory>

#include <CLI/CLI.hpp>

#include "cli/cli_document.h"
#include "cli/commands.h"
#include "document/file.h"
#include "document/state.h"
#include "editor/commands.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/list_controls.h"

namespace kqx {

namespace {

struct CompileArgs {
  std::string in, out;
};

int Compile(Session& session, const CompileArgs& a) {
  const std::string& in = a.in;
  const std::string out = a.out.empty() ? in : a.out;
  if (!OpenDocument(in)) return kExitRefused;
  kq::ApplFileName = in;
  kq::ApplFileTitle = TitleOf(in);

  kq::CompileCommand();
  const bool compiled = kq::PrgHdr.CompiledFlag != 0;
  ui::Json::Array selected;
  for (int line : kq::EditList().SelectedIndexes()) selected.emplace_back(line);
  ui::Json result;
  result.Set("event", "result");
  result.Set("compiled", compiled);
  result.Set("selected", std::move(selected));
  session.platform.Record(std::move(result));
  if (!compiled) return kExitRefused;

  std::string name = SystemText(out);
  std::string title = TitleOf(name);
  int16_t count = static_cast<int16_t>(kq::EditList().ListCount());
  kq::SaveFile(title, name, true, 0, count - 1, count);
  // A save that did not finish leaves the document changed; its box has been printed.
  return kq::ChangedFlag ? kExitRefused : kExitOk;
}

}  // namespace

void AddCompileCommand(CLI::App& app, Session& session) {
  auto a = std::make_shared<CompileArgs>();
  CLI::App* cmd = app.add_subcommand(
      "compile", "Compile an application as the Compile menu does and save it when it compiles");
  cmd->add_option("IN", a->in, "the application file")->required();
  cmd->add_option("-o,--output", a->out, "the file to save (IN when not given)");
  OnRun(*cmd, session, [a, &session] { return Compile(session, *a); });
}

}  // namespace kqx
