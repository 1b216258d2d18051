// kqx convert IN OUT [--format N]: converts a speech file as the speech dialogs do. The
// formats come from the extensions of the two names ("WAV", "R32", "MLW", ...); a ".vox"
// file is in format N, by default the application's speech format. A conversion that
// fails shows its message box, written as a JSON line.
#include <memory>
#include <string>

#include <CLI/CLI.hpp>

#include "cli/commands.h"
#include "dialogs/services.h"
#include "document/state.h"
#include "speech/convert.h"

namespace kqx {

namespace {

struct ConvertArgs {
  std::string in, out;
  int format = -1;  // the application's speech format
};

int Convert(const ConvertArgs& a) {
  const int16_t voxFormat = a.format < 0 ? kq::SpeechAudioFormat : static_cast<int16_t>(a.format);
  const auto inputFormat = static_cast<int16_t>(kq::speech::SpeechFormatOfFile(a.in, voxFormat));
  const auto outputFormat = static_cast<int16_t>(kq::speech::SpeechFormatOfFile(a.out, voxFormat));
  const int16_t result =
      kq::speech::Convert(a.in.c_str(), inputFormat, 8, a.out.c_str(), outputFormat, 8);
  kq::ConvertMessage(result);
  return result == 0 ? kExitOk : kExitRefused;
}

}  // namespace

void AddConvertCommand(CLI::App& app, Session& session) {
  auto a = std::make_shared<ConvertArgs>();
  CLI::App* cmd = app.add_subcommand("convert", "Convert a speech file as the speech dialogs do");
  cmd->add_option("IN", a->in, "the speech file to read")->required();
  cmd->add_option("OUT", a->out, "the speech file to write")->required();
  cmd->add_option("--format", a->format, "the speech format of a .vox file")
      ->type_name("N")
      ->check(CLI::Range(0, 99));
  OnRun(*cmd, session, [a] { return Convert(*a); });
}

}  // namespace kqx
