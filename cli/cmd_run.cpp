// kqx run FILE [--keys KEYS] [--hangup] [--call CALL.json] [--tables DIR] [--db FILE]
// [--sandbox DIR] [--seed N] [--max-steps N] [--decode]: runs the application as one
// simulated call and prints the trace as JSON lines. An application that is not compiled
// is compiled in memory first; a compile fault prints its box and nothing runs.
#include <filesystem>

#include "cli/cli_document.h"
#include "cli/commands.h"
#include "document/state.h"
#include "editor/commands.h"
#include "sim/run.h"
#include "ui/headless/headless_platform.h"

namespace kqx {

namespace {

bool ParseNumber(const std::string& text, int64_t& out) {
  try {
    size_t used = 0;
    out = std::stoll(text, &used);
    return used == text.size() && out >= 0;
  } catch (const std::exception&) {
    return false;
  }
}

// The options after FILE; false with a message on a wrong one.
bool ParseRunOptions(CliContext& ctx, kq::sim::RunOptions& o) {
  const auto& a = ctx.args;
  for (size_t i = 1; i < a.size(); ++i) {
    const std::string& opt = a[i];
    auto value = [&](std::string& into) {
      if (i + 1 >= a.size()) {
        ctx.err << "kqx run: " << opt << " needs a value\n";
        return false;
      }
      into = a[++i];
      return true;
    };
    std::string v;
    int64_t n = 0;
    if (opt == "--keys") {
      if (!value(v)) return false;
      o.keys = v;
    } else if (opt == "--hangup") {
      o.hangup = true;
    } else if (opt == "--decode") {
      o.decodePrompts = true;
    } else if (opt == "--call") {
      if (!value(o.callFile)) return false;
    } else if (opt == "--tables") {
      if (!value(o.tablesDir)) return false;
    } else if (opt == "--db") {
      if (!value(o.dbFile)) return false;
    } else if (opt == "--sandbox") {
      if (!value(o.sandboxDir)) return false;
    } else if (opt == "--seed" || opt == "--max-steps") {
      if (!value(v)) return false;
      if (!ParseNumber(v, n) || (opt == "--max-steps" && n == 0)) {
        ctx.err << "kqx run: " << opt << " needs a whole number" << (n == 0 ? " above 0" : "")
                << "\n";
        return false;
      }
      if (opt == "--seed")
        o.seed = static_cast<uint64_t>(n);
      else
        o.maxSteps = n;
    } else {
      ctx.err << "kqx run: unknown option '" << opt << "'\n";
      return false;
    }
  }
  return true;
}

}  // namespace

int CmdRun(CliContext& ctx) {
  const char* usage =
      "run FILE [--keys KEYS] [--hangup] [--call CALL.json] [--tables DIR] [--db FILE] "
      "[--sandbox DIR] [--seed N] [--max-steps N] [--decode]";
  if (ctx.args.empty() || ctx.args[0].rfind("--", 0) == 0) {
    ctx.err << "usage: kqx " << usage << "\n";
    return kExitRefused;
  }
  kq::sim::RunOptions o;
  o.appFile = ctx.args[0];
  if (!ParseRunOptions(ctx, o)) return kExitRefused;
  // Opening a file that is not there would create it: refuse before.
  std::error_code ec;
  if (!std::filesystem::is_regular_file(o.appFile, ec)) {
    ctx.err << "kqx run: " << o.appFile << ": no such file\n";
    return kExitRefused;
  }
  if (!OpenDocument(ctx, o.appFile)) return kExitRefused;
  o.speechFormat = kq::SpeechAudioFormat;

  if (kq::PrgHdr.CompiledFlag == 0) {
    // The compile's boxes are printed only when it fails: its success box is no part of
    // the trace.
    ctx.platform.SetEventStream(nullptr);
    const size_t before = ctx.platform.Events().size();
    const bool compiled = kq::Compile();
    ctx.platform.SetEventStream(&ctx.out);
    if (!compiled) {
      const auto& events = ctx.platform.Events();
      for (size_t i = before; i < events.size(); ++i) {
        if (events[i].kind == "msgbox") ctx.out << events[i].ToJson() << "\n";
      }
      return kExitRefused;
    }
    kq::PrgHdr.CompiledFlag = -1;
  }
  return kq::sim::RunDocument(o, ctx.out, ctx.err);
}

}  // namespace kqx
