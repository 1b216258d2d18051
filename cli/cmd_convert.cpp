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

#include <cctype>
#include <filesystem>
#include <functional>
#include <string>

#include "cli/commands.h"
#include "dialogs/convert_message.h"
#include "dialogs/services.h"
#include "document/state.h"
#include "speech/codec/batch.h"
#include "speech/codec/codecs.h"
#include "speech/codec/convert.h"

namespace kqx {

namespace {

constexpr const char* kUsage =
    "convert IN OUT [--format N] | convert IN... --to FORMAT --out DIR [--format N] [--jobs N]";

bool ReadNumber(const std::string& text, int& value, size_t maxDigits) {
  if (text.empty() || text.size() > maxDigits) return false;
  for (const char c : text) {
    if (c < '0' || c > '9') return false;
  }
  value = std::stoi(text);
  return true;
}

// A format by its extension or number; -1 for none.
int ReadTargetFormat(const std::string& text) {
  if (int n = 0; ReadNumber(text, n, 1)) {
    return kq::speech::IsSpeechFormat(n) ? n : -1;
  }
  const int format = kq::speech::SpeechFormatOfFile("." + text, -1);
  return format == kq::speech::kIllegalSpeechFormat ? -1 : format;
}

// One line of a message, the system's line breaks made blanks.
std::string OneLine(std::string text) {
  for (char& c : text) {
    if (c == '\r') c = ' ';
  }
  return text;
}

int ConvertMany(CliContext& ctx, const std::vector<std::string>& inputs, int target,
                const std::string& outDir, int16_t voxFormat, unsigned jobs) {
  std::error_code ec;
  if (!std::filesystem::is_directory(outDir, ec)) {
    ctx.err << "kqx: " << outDir << " is not a folder\n";
    return kExitRefused;
  }
  const auto plan = kq::speech::PlanBatch(inputs, target, outDir, voxFormat);
  const bool terminal = ::isatty(STDERR_FILENO) == 1;
  std::function<void(size_t, size_t)> progress;
  if (terminal) {
    progress = [&](size_t done, size_t total) {
      ctx.err << "\r" << done << "/" << total << (done == total ? "\n" : "") << std::flush;
    };
  }
  const auto failures = kq::speech::ConvertBatch(plan, jobs, progress);
  for (const auto& f : failures) {
    ctx.err << f.input << ": " << OneLine(kq::ConvertMessageText(f.code)) << "\n";
  }
  return failures.empty() ? kExitOk : kExitRefused;
}

}  // namespace

int CmdConvert(CliContext& ctx) {
  std::vector<std::string> names;
  int16_t voxFormat = kq::SpeechAudioFormat;
  std::string to, outDir;
  int jobs = 0;
  bool batch = false;
  const auto usage = [&] {
    ctx.err << "usage: kqx " << kUsage << "\n";
    return kExitRefused;
  };
  for (size_t i = 0; i < ctx.args.size(); ++i) {
    const std::string& a = ctx.args[i];
    const bool takesValue = a == "--format" || a == "--to" || a == "--out" || a == "--jobs";
    if (!takesValue) {
      names.push_back(a);
      continue;
    }
    if (i + 1 == ctx.args.size()) return usage();
    const std::string& value = ctx.args[++i];
    int n = 0;
    if (a == "--format") {
      if (!ReadNumber(value, n, 2)) return usage();
      voxFormat = static_cast<int16_t>(n);
    } else if (a == "--jobs") {
      if (!ReadNumber(value, n, 3)) return usage();
      jobs = n;
      batch = true;
    } else {
      (a == "--to" ? to : outDir) = value;
      batch = true;
    }
  }
  if (batch) {
    const int target = ReadTargetFormat(to);
    if (names.empty() || outDir.empty() || target < 0) return usage();
    return ConvertMany(ctx, names, target, outDir, voxFormat, static_cast<unsigned>(jobs));
  }
  if (names.size() != 2) return usage();
  const auto inputFormat =
      static_cast<int16_t>(kq::speech::SpeechFormatOfFile(names[0], voxFormat));
  const auto outputFormat =
      static_cast<int16_t>(kq::speech::SpeechFormatOfFile(names[1], voxFormat));
  const int16_t result =
      kq::speech::Convert(names[0].c_str(), inputFormat, 8, names[1].c_str(), outputFormat, 8);
  kq::ConvertMessage(result);
  return result == 0 ? kExitOk : kExitRefused;
}

}  // namespace kqx
