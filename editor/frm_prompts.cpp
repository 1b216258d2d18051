#include "editor/frm_prompts.h"

#include <filesystem>

#include "dialogs/services.h"
#include "document/file_io.h"
#include "document/state.h"
#include "ui/platform/codepage.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

constexpr const char* kTitle = "Make Missing Prompts";
constexpr const char* kTextsFile = "prompts.csv";  // beside the application: what files say

// The folder of the application file, against which relative path texts are taken.
std::string ApplFolder() {
  const size_t slash = ApplFileName.find_last_of('/');
  return slash == std::string::npos ? std::string(".") : ApplFileName.substr(0, slash);
}

std::string Count(size_t n, const char* one, const char* many) {
  return std::to_string(n) + " " + (n == 1 ? one : many);
}

}  // namespace

std::function<void()> frmPrompts::Pump;
std::function<std::unique_ptr<prompts::Speaker>(std::string& error)> frmPrompts::OpenSpeaker;

frmPrompts::frmPrompts() : ui::Form("frmPrompts", kTitle) {
  lblStatus.SetWidth(5400);
  lblFile.SetWidth(5400);
  prgPrompts.SetWidth(5400);
  cmdMake.OnClick = [this] { cmdMake_Click(); };
  cmdCancel.OnClick = [this] { cmdCancel_Click(); };
  cmdCancel.SetCancel(true);
  Place(lblStatus, 0, 0, 1, 2);
  Place(prgPrompts, 1, 0, 1, 2);
  Place(lblFile, 2, 0, 1, 2);
  Place(cmdMake, 3, 0);
  Place(cmdCancel, 3, 1);
  Move(0, 0, 6000, 2400);
}

void frmPrompts::Form_Load() {
  CenterForm(*this);
  prompts_ = prompts::NamedPrompts(ApplFolder(), SpeechAudioFormat);
  std::vector<uint8_t> csv;
  const std::string textsPath = ApplFolder() + "/" + kTextsFile;
  std::string error;
  if (std::filesystem::exists(ui::Cp1252ToUtf8(textsPath)) && ReadWholeFile(textsPath, csv) == 0 &&
      !prompts::ParsePromptTexts(std::string(csv.begin(), csv.end()), texts_, error)) {
    ui::platform().MsgBox(std::string(kTextsFile) + " " + error, ui::vbOKOnly | ui::vbExclamation,
                          kTitle);
    texts_.clear();
  }
  prgPrompts.SetRange(0, static_cast<int>(prompts_.size()));
  lblStatus.SetCaption("The application names " +
                       Count(prompts_.size(), "voice file.", "voice files."));
  cmdMake.SetEnabled(!prompts_.empty());
}

void frmPrompts::cmdMake_Click() {
  std::string error;
  auto speaker = OpenSpeaker ? OpenSpeaker(error) : prompts::OpenSynthSpeaker("en", error);
  if (!speaker) {
    ui::platform().MsgBox(error, ui::vbOKOnly | ui::vbExclamation, kTitle);
    return;
  }
  running_ = true;
  cancelled_ = false;
  cmdMake.SetEnabled(false);
  results_ = prompts::MakeMissingPrompts(
      prompts_, texts_, *speaker, [this](size_t index, size_t, const prompts::NamedPrompt& p) {
        prgPrompts.SetValue(static_cast<int>(index));
        lblFile.SetCaption(p.file);
        if (Pump) Pump();
        return !cancelled_;
      });
  running_ = false;
  prgPrompts.SetValue(prgPrompts.Max());
  ShowSummary();
  cmdCancel.SetCaption("&Close");
}

void frmPrompts::cmdCancel_Click() {
  if (running_) {
    cancelled_ = true;  // the run stops before the next file
    return;
  }
  Unload();
}

void frmPrompts::ShowSummary() {
  size_t made = 0, there = 0, stopped = 0;
  std::string faults;
  for (const auto& r : results_) {
    if (r.outcome == prompts::Outcome::Made) ++made;
    if (r.outcome == prompts::Outcome::Exists) ++there;
    if (r.outcome == prompts::Outcome::Cancelled) ++stopped;
    if (!r.detail.empty()) faults += "\r" + r.prompt.file + ": " + ui::Utf8ToCp1252(r.detail);
  }
  std::string text = Count(made, "file made", "files made") + ", " +
                     Count(there, "was there already", "were there already");
  if (stopped > 0) text += ", " + Count(stopped, "not made (cancelled)", "not made (cancelled)");
  lblStatus.SetCaption(text + ".");
  lblFile.SetCaption("");
  if (!faults.empty()) {
    ui::platform().MsgBox("These files could not be made:" + faults,
                          ui::vbOKOnly | ui::vbExclamation, kTitle);
  }
}

void MakeMissingPromptsCommand() {
  frmPrompts form;
  form.ShowModal();
}

}  // namespace kq
