// kqx prompts FILE [--texts CSV] [--voice LANG] [--format N]: makes the voice files that the
// application names and that are missing in their paths' folders, spoken from the texts
// file or from the words of each file's name. One JSON line a file, then a summary.
// With --into DIR instead of FILE it makes the files that the texts file lists, in DIR: the
// prompts of an application still to be built, whose voice dialogs choose existing files.
#include <filesystem>
#include <memory>

#include <CLI/CLI.hpp>

#include "cli/cli_document.h"
#include "cli/commands.h"
#include "document/state.h"
#include "prompts/make_prompts.h"
#include "ui/headless/headless_platform.h"
#include "ui/platform/codepage.h"

namespace kqx {

namespace {

struct PromptArgs {
  std::string file, into, texts, voice = "en";
  int format = -1;  // the application's speech format
};

void Report(Session& session, const std::vector<kq::prompts::PromptResult>& results) {
  int made = 0, existing = 0, faults = 0;
  for (const auto& r : results) {
    ui::Json line;
    line.Set("event", "prompt");
    line.Set("file", r.prompt.file);
    line.Set("path", kq::prompts::PromptPath(r.prompt));
    line.Set("outcome", kq::prompts::OutcomeName(r.outcome));
    line.Set("text", ui::Utf8ToCp1252(r.text));
    if (!r.detail.empty()) line.Set("detail", ui::Utf8ToCp1252(r.detail));
    session.platform.Record(std::move(line));
    made += r.outcome == kq::prompts::Outcome::Made;
    existing += r.outcome == kq::prompts::Outcome::Exists;
  }
  faults = static_cast<int>(results.size()) - made - existing;
  ui::Json summary;
  summary.Set("event", "result");
  summary.Set("made", made);
  summary.Set("existing", existing);
  summary.Set("faults", faults);
  session.platform.Record(std::move(summary));
}

int Prompts(Session& session, const PromptArgs& a) {
  if (a.file.empty() == a.into.empty()) {
    session.err << "kqx prompts: give either FILE or --into DIR\n";
    return kExitUsage;
  }
  kq::prompts::PromptTexts texts;
  std::vector<std::string> listed;
  std::string error;
  if (!a.texts.empty() && !kq::prompts::ReadPromptTextsFile(a.texts, texts, error, &listed)) {
    session.err << "kqx prompts: " << error << "\n";
    return kExitRefused;
  }
  const auto speaker = kq::prompts::OpenSynthSpeaker(a.voice, error);
  if (!speaker) {
    session.err << "kqx prompts: " << error << "\n";
    return kExitRefused;
  }
  const int voxFormat = a.format >= 0 ? a.format : kq::SpeechAudioFormat;
  std::vector<kq::prompts::NamedPrompt> prompts;
  if (!a.into.empty()) {
    for (std::string& name : listed) name = SystemText(name);
    prompts = kq::prompts::TextPrompts(listed, SystemText(a.into), voxFormat);
  } else {
    if (!OpenDocument(a.file)) return kExitRefused;
    const std::string folder = std::filesystem::path(a.file).parent_path().generic_string();
    prompts = kq::prompts::NamedPrompts(folder.empty() ? "." : SystemText(folder), voxFormat);
  }
  const auto results = kq::prompts::MakeMissingPrompts(prompts, texts, *speaker);
  Report(session, results);
  for (const auto& r : results) {
    if (r.outcome != kq::prompts::Outcome::Made && r.outcome != kq::prompts::Outcome::Exists) {
      return kExitRefused;
    }
  }
  return kExitOk;
}

}  // namespace

void AddPromptsCommand(CLI::App& app, Session& session) {
  auto a = std::make_shared<PromptArgs>();
  CLI::App* cmd = app.add_subcommand(
      "prompts", "Speak the voice files an application names that are missing in their folders");
  CLI::Option* file = cmd->add_option("FILE", a->file, "the application file");
  CLI::Option* texts =
      cmd->add_option("--texts", a->texts, "a CSV of file name and text: what each file says")
          ->type_name("CSV");
  cmd->add_option("--into", a->into, "make every file the texts list, in DIR, instead of FILE's")
      ->type_name("DIR")
      ->excludes(file)
      ->needs(texts);
  cmd->add_option("--voice", a->voice, "the espeak-ng voice (default en)")->type_name("LANG");
  cmd->add_option("--format", a->format, "the speech format of a .vox file")
      ->type_name("N")
      ->check(CLI::Range(0, 99));
  OnRun(*cmd, session, [a, &session] { return Prompts(session, *a); });
}

}  // namespace kqx
