// kqx resave IN OUT: opens an application as the editor does and saves it whole as OUT.
// A 3.10 file comes out byte for byte; 3.08 and 3.09 files come out converted.
#include <memory>

#include <CLI/CLI.hpp>

#include "cli/cli_document.h"
#include "cli/commands.h"
#include "document/file.h"
#include "document/state.h"
#include "ui/model/list_controls.h"

namespace kqx {

namespace {

struct ResaveArgs {
  std::string in, out;
};

int Resave(const ResaveArgs& a) {
  if (!OpenDocument(a.in)) return kExitRefused;
  std::string name = SystemText(a.out);
  std::string title = TitleOf(name);
  int16_t count = static_cast<int16_t>(kq::EditList().ListCount());
  kq::ChangedFlag = true;
  kq::SaveFile(title, name, true, 0, count - 1, count);
  // A save that did not finish leaves the document changed.
  return kq::ChangedFlag ? kExitRefused : kExitOk;
}

}  // namespace

void AddResaveCommand(CLI::App& app, Session& session) {
  auto a = std::make_shared<ResaveArgs>();
  CLI::App* cmd =
      app.add_subcommand("resave", "Open an application and save it whole as the current version");
  cmd->add_option("IN", a->in, "the application file")->required();
  cmd->add_option("OUT", a->out, "the file to write")->required();
  OnRun(*cmd, session, [a] { return Resave(*a); });
}

}  // namespace kqx
