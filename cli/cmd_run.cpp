// kqx run FILE [--keys KEYS] [--hangup] [--call CALL.json] [--tables DIR] [--db FILE]
// [--sandbox DIR] [--seed N] [--max-steps N] [--decode]: runs the application as one
// simulated call and prints the trace as JSON lines. An application that is not compiled
// is compiled in memory first; a compile fault prints its box and nothing runs.
#include <filesystem>
#include <memory>

#include <CLI/CLI.hpp>

#include "cli/cli_document.h"
#include "cli/commands.h"
#include "document/state.h"
#include "editor/commands.h"
#include "sim/run.h"
#include "ui/headless/headless_platform.h"

namespace kqx {

namespace {

struct RunArgs {
  kq::sim::RunOptions options;
  std::string keys;
};

int Run(Session& session, RunArgs& a) {
  kq::sim::RunOptions& o = a.options;
  // Opening a file that is not there would create it: refuse before.
  std::error_code ec;
  if (!std::filesystem::is_regular_file(o.appFile, ec)) {
    session.err << "kqx run: " << o.appFile << ": no such file\n";
    return kExitRefused;
  }
  if (!OpenDocument(o.appFile)) return kExitRefused;
  o.speechFormat = kq::SpeechAudioFormat;

  if (kq::PrgHdr.CompiledFlag == 0) {
    // The compile's boxes are printed only when it fails: its success box is no part of
    // the trace.
    session.platform.SetEventStream(nullptr);
    const size_t before = session.platform.Events().size();
    const bool compiled = kq::Compile();
    session.platform.SetEventStream(&session.out);
    if (!compiled) {
      const auto& events = session.platform.Events();
      for (size_t i = before; i < events.size(); ++i) {
        if (events[i].kind == "msgbox") session.out << events[i].ToJson() << "\n";
      }
      return kExitRefused;
    }
    kq::PrgHdr.CompiledFlag = -1;
  }
  return kq::sim::RunDocument(o, session.out, session.err);
}

}  // namespace

void AddRunCommand(CLI::App& app, Session& session) {
  auto a = std::make_shared<RunArgs>();
  kq::sim::RunOptions& o = a->options;
  CLI::App* cmd = app.add_subcommand(
      "run", "Run an application as one simulated call and print its trace as JSON lines");
  cmd->add_option("FILE", o.appFile, "the application file")->required();
  CLI::Option* keys = cmd->add_option(
      "--keys", a->keys, "the keys the caller presses, each as soon as the application listens");
  cmd->add_flag("--hangup", o.hangup, "the caller hangs up when the keys have run out");
  cmd->add_option("--call", o.callFile, "the whole call as JSON (see the manual)");
  cmd->add_option("--tables", o.tablesDir, "the folder of TABLE.csv files that seed the tables");
  cmd->add_option("--db", o.dbFile, "keep the tables in this SQLite file");
  cmd->add_option("--sandbox", o.sandboxDir,
                  "the folder onto which the path texts are mapped (a temporary one if not "
                  "given)");
  cmd->add_option("--seed", o.seed, "the seed of Random");
  cmd->add_option("--max-steps", o.maxSteps, "end the run after this many lines")
      ->check(CLI::PositiveNumber);
  cmd->add_flag("--decode", o.decodePrompts, "decode every prompt through the speech library");
  OnRun(*cmd, session, [a, keys, &session] {
    if (keys->count() > 0) a->options.keys = a->keys;
    return Run(session, *a);
  });
}

}  // namespace kqx
