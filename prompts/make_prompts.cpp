#include "prompts/make_prompts.h"

#include <filesystem>
#include <system_error>

#include "document/file_io.h"
#include "speech/codec/convert.h"
#include "speech/codec/convert_codes.h"
#include "speech/codec/resample.h"
#include "ui/platform/codepage.h"

namespace kq::prompts {

namespace {

namespace fs = std::filesystem;

constexpr int kWaveFormat = 4;
constexpr int kSpokenRate = 22050;  // a WAVE rate the conversion takes as input

bool IsSpeechFormat(int format) {
  return format == kWaveFormat || !speech::SpeechFileExt(format).empty();
}

// Names in the system are Windows-1252; names on disk are UTF-8.
fs::path OnDisk(const std::string& name) {
  return fs::path(ui::Cp1252ToUtf8(name));
}

bool FolderExists(const std::string& folder) {
  std::error_code ec;
  return !folder.empty() && fs::is_directory(OnDisk(folder), ec);
}

// A file that cannot even be looked at counts as there: it is never overwritten.
bool FileExists(const std::string& path) {
  std::error_code ec;
  const fs::file_status status = fs::symlink_status(OnDisk(path), ec);
  return ec ? ec != std::errc::no_such_file_or_directory : fs::exists(status);
}

// Speaks the text into a temporary WAVE file beside the target, converts it and removes it.
void MakeOne(PromptResult& r, Speaker& speaker) {
  speech::Pcm pcm;
  if (!speaker.Speak(r.text, pcm, r.detail)) {
    r.outcome = Outcome::Failed;
    return;
  }
  if (!speech::IsWaveRate(static_cast<uint32_t>(pcm.rate))) {
    pcm.samples = speech::Resample(pcm.samples, pcm.rate, kSpokenRate);
    pcm.rate = kSpokenRate;
  }
  const std::string target = PromptPath(r.prompt);
  const std::string spoken = target + ".spoken.wav";
  const std::vector<uint8_t> image = speech::WaveImage(pcm);
  if (WriteWholeFile(spoken, image.data(), image.size()) != 0) {
    r.outcome = Outcome::Failed;
    r.detail = "cannot write in " + ui::Cp1252ToUtf8(r.prompt.folder);
    return;
  }
  const int khz = pcm.rate == 8000 ? 8 : pcm.rate == 11025 ? 11 : pcm.rate == 22050 ? 22 : 44;
  const int16_t code = speech::Convert(spoken.c_str(), kWaveFormat, static_cast<int16_t>(khz),
                                       target.c_str(), static_cast<int16_t>(r.prompt.format), 8);
  std::error_code ec;
  fs::remove(OnDisk(spoken), ec);
  if (code != speech::kConvertOk) {
    fs::remove(OnDisk(target), ec);
    r.outcome = Outcome::Failed;
    r.detail = "conversion failed with code " + std::to_string(code);
    return;
  }
  r.outcome = Outcome::Made;
}

}  // namespace

const char* OutcomeName(Outcome outcome) {
  switch (outcome) {
    case Outcome::Made:
      return "made";
    case Outcome::Exists:
      return "exists";
    case Outcome::NoFolder:
      return "no folder";
    case Outcome::NoFormat:
      return "no format";
    case Outcome::Failed:
      return "failed";
    case Outcome::Cancelled:
      return "cancelled";
  }
  return "failed";
}

std::vector<PromptResult> MakeMissingPrompts(const std::vector<NamedPrompt>& prompts,
                                             const PromptTexts& texts, Speaker& speaker,
                                             const Progress& progress) {
  std::vector<PromptResult> results(prompts.size());
  bool cancelled = false;
  for (size_t i = 0; i < prompts.size(); ++i) {
    PromptResult& r = results[i];
    r.prompt = prompts[i];
    const std::string name = ui::Cp1252ToUtf8(r.prompt.file);
    r.text = PromptText(texts, name);
    if (!cancelled && progress && !progress(i, prompts.size(), r.prompt)) cancelled = true;
    if (cancelled) {
      r.outcome = Outcome::Cancelled;
      continue;
    }
    if (r.prompt.folder.empty()) {
      r.outcome = Outcome::NoFolder;
      r.detail = "path variable \"" + ui::Cp1252ToUtf8(r.prompt.pathName) + "\" is not declared";
    } else if (!FolderExists(r.prompt.folder)) {
      r.outcome = Outcome::NoFolder;
      r.detail = "folder " + ui::Cp1252ToUtf8(r.prompt.folder) + " does not exist";
    } else if (FileExists(PromptPath(r.prompt))) {
      r.outcome = Outcome::Exists;
    } else if (!IsSpeechFormat(r.prompt.format)) {
      r.outcome = Outcome::NoFormat;
      r.detail = "the extension of " + name + " is no speech format";
    } else {
      MakeOne(r, speaker);
    }
  }
  return results;
}

}  // namespace kq::prompts
