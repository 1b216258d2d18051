// kqx convert IN OUT [--format N]: converts a speech file as the speech dialogs do. The
// formats come from the extensions of the two names ("WAV", "R32", "MLW", ...); a ".vox"
// file is in format N, by default the application's speech format. A conversion that
// fails shows its message box, written as a JSON line.
#include <string>

#include "cli/commands.h"
#include "dialogs/services.h"
#include "document/state.h"
#include "speech/codec/convert.h"

namespace kqx {

namespace {

constexpr const char* kUsage = "convert IN OUT [--format N]";

bool ReadFormat(const std::string& text, int16_t& format) {
  if (text.empty() || text.size() > 2) return false;
  for (const char c : text) {
    if (c < '0' || c > '9') return false;
  }
  format = static_cast<int16_t>(std::stoi(text));
  return true;
}

}  // namespace

int CmdConvert(CliContext& ctx) {
  std::vector<std::string> names;
  int16_t voxFormat = kq::SpeechAudioFormat;
  for (size_t i = 0; i < ctx.args.size(); ++i) {
    if (ctx.args[i] == "--format") {
      if (i + 1 == ctx.args.size() || !ReadFormat(ctx.args[i + 1], voxFormat)) {
        ctx.err << "usage: kqx " << kUsage << "\n";
        return kExitRefused;
      }
      ++i;
    } else {
      names.push_back(ctx.args[i]);
    }
  }
  if (names.size() != 2) {
    ctx.err << "usage: kqx " << kUsage << "\n";
    return kExitRefused;
  }
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
