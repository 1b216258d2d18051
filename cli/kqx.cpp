#include "cli/kqx.h"

#include <CLI/CLI.hpp>

#include "cli/commands.h"
#include "document/catalogue.h"
#include "document/document.h"
#include "document/edit_host.h"
#include "document/run_scope.h"
#include "document/state.h"
#include "ui/headless/headless_platform.h"

#ifndef KQX_VERSION
#define KQX_VERSION "0"
#endif

namespace kqx {

namespace {

// Installs the platform and the hidden list for the life of one run, and takes them away
// again, so that runs in one process (the tests) do not see each other.
struct KqxRun {
  ui::HeadlessPlatform platform;
  kq::EditHost list{"Zelvox Voice Response Editor", ui::ListBox::MultiSelect::None};
  kq::RunScope run{{&platform, &list.lstEdit}};
  explicit KqxRun(std::ostream& out) { platform.SetEventStream(&out); }
};

}  // namespace

const char* Version() {
  return KQX_VERSION;
}

int RunKqx(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  KqxRun state(out);
  Session session{out, err, state.platform};

  CLI::App app("kqx: inspect, compile, list, convert and script voice-response applications",
               "kqx");
  app.set_version_flag("--version", std::string("kqx ") + Version());
  app.require_subcommand(1);
  for (const AddCommandFn add : kCommands) add(app, session);

  // CLI11 takes the arguments last first.
  std::vector<std::string> reversed(args.rbegin(), args.rend());
  try {
    app.parse(reversed);
  } catch (const CLI::CallForHelp& e) {
    return app.exit(e, out, err);
  } catch (const CLI::CallForAllHelp& e) {
    return app.exit(e, out, err);
  } catch (const CLI::CallForVersion& e) {
    return app.exit(e, out, err);
  } catch (const CLI::ParseError& e) {
    err << "kqx: " << e.what() << "\n\n" << app.help();
    return kExitUsage;
  } catch (const ui::ProgramEnded& e) {
    ui::Json j;
    j.Set("event", "programend");
    j.Set("text", e.what());
    out << j.Dump() << "\n";
    return kExitProgramError;
  }
  return session.status;
}

}  // namespace kqx
