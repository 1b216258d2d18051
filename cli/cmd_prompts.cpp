// kqx prompts FILE [--texts CSV] [--voice LANG] [--format N]: makes the voice files that the
// application names and that are missing in their paths' folders, spoken from the texts
// file or from the words of each file's name. One JSON line a file, then a summary.
// With --into DIR instead of FILE it makes the files that the texts file lists, in DIR: the
// prompts of an application still to be built, whose voice dialogs choose existing files.
#include <filesystem>
#include <fstream>
#include <sstream>

#include "cli/cli_document.h"
#include "cli/commands.h"
#include "document/state.h"
#include "prompts/make_prompts.h"
#include "ui/headless/headless_platform.h"
#include "ui/platform/codepage.h"

namespace kqx {

namespace {

constexpr const char* kUsage = "prompts FILE|--into DIR [--texts CSV] [--voice LANG] [--format N]";

struct PromptArgs {
  std::string file, into, texts, voice = "en";
  int voxFormat = -1;
};

bool ReadArgs(const std::vector<std::string>& a, PromptArgs& out) {
  for (size_t i = 0; i < a.size(); ++i) {
    const bool hasValue = i + 1 < a.size();
    if (a[i] == "--texts" && hasValue) {
      out.texts = a[++i];
    } else if (a[i] == "--into" && hasValue) {
      out.into = a[++i];
    } else if (a[i] == "--voice" && hasValue) {
      out.voice = a[++i];
    } else if (a[i] == "--format" && hasValue) {
      const std::string& v = a[++i];
      if (v.size() != 1 || v[0] < '0' || v[0] > '8') return false;
      out.voxFormat = v[0] - '0';
    } else if (a[i].starts_with("--") || !out.file.empty()) {
      return false;
    } else {
      out.file = a[i];
    }
  }
  if (!out.into.empty()) return out.file.empty() && !out.texts.empty();
  return !out.file.empty();
}

}  // namespace

int CmdPrompts(CliContext& ctx) {
  PromptArgs args;
  if (!ReadArgs(ctx.args, args)) {
    ctx.err << "usage: kqx " << kUsage << "\n";
    return kExitRefused;
  }
  kq::prompts::PromptTexts texts;
  std::vector<std::string> listed;
  if (!args.texts.empty()) {
    std::ifstream in(args.texts, std::ios::binary);
    if (!in) {
      ctx.err << "kqx prompts: cannot read " << args.texts << "\n";
      return kExitRefused;
    }
    std::ostringstream csv;
    csv << in.rdbuf();
    std::string error;
    if (!kq::prompts::ParsePromptTexts(csv.str(), texts, error, &listed)) {
      ctx.err << "kqx prompts: " << args.texts << " " << error << "\n";
      return kExitRefused;
    }
  }
  std::string error;
  const auto speaker = kq::prompts::OpenSynthSpeaker(args.voice, error);
  if (!speaker) {
    ctx.err << "kqx prompts: " << error << "\n";
    return kExitRefused;
  }
  const int voxFormat = args.voxFormat >= 0 ? args.voxFormat : kq::SpeechAudioFormat;
  std::vector<kq::prompts::NamedPrompt> prompts;
  if (!args.into.empty()) {
    for (std::string& name : listed) name = SystemText(name);
    prompts = kq::prompts::TextPrompts(listed, SystemText(args.into), voxFormat);
  } else {
    if (!OpenDocument(ctx, args.file)) return kExitRefused;
    const std::string folder =
        SystemText(std::filesystem::path(args.file).parent_path().generic_string());
    prompts = kq::prompts::NamedPrompts(folder.empty() ? "." : folder, voxFormat);
  }
  const auto results = kq::prompts::MakeMissingPrompts(prompts, texts, *speaker);

  int made = 0, existing = 0, faults = 0;
  for (const auto& r : results) {
    ui::Json line;
    line.Set("event", "prompt");
    line.Set("file", r.prompt.file);
    line.Set("path", kq::prompts::PromptPath(r.prompt));
    line.Set("outcome", kq::prompts::OutcomeName(r.outcome));
    line.Set("text", ui::Utf8ToCp1252(r.text));
    if (!r.detail.empty()) line.Set("detail", ui::Utf8ToCp1252(r.detail));
    ctx.platform.Record(std::move(line));
    made += r.outcome == kq::prompts::Outcome::Made;
    existing += r.outcome == kq::prompts::Outcome::Exists;
    faults += r.outcome != kq::prompts::Outcome::Made && r.outcome != kq::prompts::Outcome::Exists;
  }
  ui::Json summary;
  summary.Set("event", "result");
  summary.Set("made", made);
  summary.Set("existing", existing);
  summary.Set("faults", faults);
  ctx.platform.Record(std::move(summary));
  return faults == 0 ? kExitOk : kExitRefused;
}

}  // namespace kqx
