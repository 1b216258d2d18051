#include "cli/kqx.h"

#include <cstring>

#include "cli/list_form.h"
#include "document/catalogue.h"
#include "document/document.h"
#include "document/state.h"
#include "ui/headless/headless_platform.h"

namespace kqx {

namespace {

void Usage(std::ostream& err) {
  err << "usage: kqx COMMAND ARGS\ncommands:\n";
  for (const Command* c = kCommands; c->name != nullptr; ++c) {
    err << "  " << c->name << " " << c->usage << "\n";
  }
}

// Installs the platform and the hidden list for the life of one run, and takes them away
// again, so that runs in one process (the tests) do not see each other.
struct Session {
  ui::HeadlessPlatform platform;
  frmHiddenList list;
  explicit Session(std::ostream& out) {
    platform.SetEventStream(&out);
    ui::SetPlatform(&platform);
    kq::SetEditList(&list.lstEdit);
    kq::Shell = {};
    kq::InitDocument();
    kq::InitNameTables();
    kq::GetFuncRecordLength();
  }
  ~Session() {
    kq::SetEditList(nullptr);
    ui::SetPlatform(nullptr);
  }
};

}  // namespace

int RunKqx(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  if (args.empty()) {
    Usage(err);
    return kExitRefused;
  }
  const Command* command = nullptr;
  for (const Command* c = kCommands; c->name != nullptr; ++c) {
    if (args[0] == c->name) command = c;
  }
  if (command == nullptr) {
    err << "kqx: unknown command '" << args[0] << "'\n";
    Usage(err);
    return kExitRefused;
  }

  Session session(out);
  CliContext ctx{{args.begin() + 1, args.end()}, out, err, session.platform};
  try {
    return command->run(ctx);
  } catch (const ui::ProgramEnded& e) {
    ui::Json j;
    j.Set("event", "programend");
    j.Set("text", e.what());
    out << j.Dump() << "\n";
    return kExitProgramError;
  }
}

}  // namespace kqx
