// kqx convert IN OUT [--format N]: converts a speech file as the speech dialogs do. The
// formats come from the extensions of the two names ("WAV", "R32", "MLW", ...); a ".vox"
// file is in format N, by default the application's speech format. A conversion that
// fails shows its message box, written as a JSON line.
//
// kqx convert IN... --to FORMAT --out DIR [--format N] [--jobs N]: converts files, and the
// speech files of folders, into DIR in parallel (speech/codec/batch.h). FORMAT is a format's
// extension ("o32", "wav", ...) or number. Progress goes to a terminal only; each failure
// is a line "IN: message" on the error stream, and the rest go on; exit 1 if any failed.
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/commands.h"
#include "dialogs/convert_message.h"
#include "dialogs/services.h"
#include "document/state.h"
#include "speech/codec/batch.h"
#include "speech/codec/codecs.h"
#include "speech/codec/convert.h"

namespace kqx {

namespace {

struct ConvertArgs {
  std::vector<std::string> names;
  int format = -1;  // the application's speech format
  std::string to, outDir;
  unsigned jobs = 0;  // all cores
};

// A format by its extension or number; -1 for none.
int ReadTargetFormat(const std::string& text) {
  if (text.size() == 1 && text[0] >= '0' && text[0] <= '9') {
    const int n = text[0] - '0';
    return kq::speech::IsSpeechFormat(n) ? n : -1;
  }
  const int format = kq::speech::SpeechFormatOfFile("." + text, -1);
  return format == kq::speech::kIllegalSpeechFormat ? -1 : format;
}

constexpr const char* kUsage =
    "usage: kqx convert IN OUT [--format N]\n"
    "       kqx convert IN... --to FORMAT --out DIR [--format N] [--jobs N]\n";

// One line of a message, the system's line breaks made blanks.
std::string OneLine(std::string text) {
  for (char& c : text) {
    if (c == '\r') c = ' ';
  }
  return text;
}

int ConvertOne(const ConvertArgs& a, int16_t voxFormat) {
  const std::string& in = a.names[0];
  const std::string& out = a.names[1];
  const auto inputFormat = static_cast<int16_t>(kq::speech::SpeechFormatOfFile(in, voxFormat));
  const auto outputFormat = static_cast<int16_t>(kq::speech::SpeechFormatOfFile(out, voxFormat));
  const int16_t result =
      kq::speech::Convert(in.c_str(), inputFormat, 8, out.c_str(), outputFormat, 8);
  kq::ConvertMessage(result);
  return result == 0 ? kExitOk : kExitRefused;
}

int ConvertMany(Session& session, const ConvertArgs& a, int target, int16_t voxFormat) {
  std::error_code ec;
  if (!std::filesystem::is_directory(a.outDir, ec)) {
    session.err << "kqx: " << a.outDir << " is not a folder\n";
    return kExitRefused;
  }
  const auto plan = kq::speech::PlanBatch(a.names, target, a.outDir, voxFormat);
  std::function<void(size_t, size_t)> progress;
  if (::isatty(STDERR_FILENO) == 1) {
    progress = [&session](size_t done, size_t total) {
      session.err << "\r" << done << "/" << total << (done == total ? "\n" : "") << std::flush;
    };
  }
  const auto failures = kq::speech::ConvertBatch(plan, a.jobs, progress);
  for (const auto& f : failures) {
    session.err << f.input << ": " << OneLine(kq::ConvertMessageText(f.code)) << "\n";
  }
  return failures.empty() ? kExitOk : kExitRefused;
}

int Convert(Session& session, const ConvertArgs& a, bool batch) {
  const int16_t voxFormat = a.format < 0 ? kq::SpeechAudioFormat : static_cast<int16_t>(a.format);
  if (!batch) {
    if (a.names.size() != 2) {
      session.err << "kqx convert: one file IN and one file OUT, or --to and --out\n" << kUsage;
      return kExitUsage;
    }
    return ConvertOne(a, voxFormat);
  }
  const int target = ReadTargetFormat(a.to);
  if (a.to.empty() || a.outDir.empty() || target < 0) {
    session.err << "kqx convert: a batch needs --to FORMAT (a speech format's extension or "
                   "number) and --out DIR\n"
                << kUsage;
    return kExitUsage;
  }
  return ConvertMany(session, a, target, voxFormat);
}

}  // namespace

void AddConvertCommand(CLI::App& app, Session& session) {
  auto a = std::make_shared<ConvertArgs>();
  CLI::App* cmd = app.add_subcommand(
      "convert", "Convert a speech file as the speech dialogs do, or many files at once");
  cmd->add_option("IN", a->names, "IN OUT, or the files and folders of a batch")->required();
  cmd->add_option("--format", a->format, "the speech format of a .vox file")
      ->type_name("N")
      ->check(CLI::Range(0, 99));
  CLI::Option* to =
      cmd->add_option("--to", a->to, "batch: the target format (extension or number)");
  CLI::Option* out = cmd->add_option("--out", a->outDir, "batch: the folder to write into");
  CLI::Option* jobs = cmd->add_option("--jobs", a->jobs, "batch: threads (all cores: 0)")
                          ->check(CLI::Range(0, 999));
  OnRun(*cmd, session, [a, &session, to, out, jobs] {
    const bool batch = to->count() > 0 || out->count() > 0 || jobs->count() > 0;
    return Convert(session, *a, batch);
  });
}

}  // namespace kqx
