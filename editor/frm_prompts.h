// Tools, Make Missing Prompts: speaks the voice files that the open application names and
// that are missing in their folders, with a bar of the progress and Cancel between files.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "prompts/make_prompts.h"
#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/progress_bar.h"

namespace kq {

class frmPrompts : public ui::Form {
 public:
  frmPrompts();

  ui::Label lblStatus{*this, "lblStatus", ""};
  ui::ProgressBar prgPrompts{*this, "prgPrompts"};
  ui::Label lblFile{*this, "lblFile", ""};
  ui::CommandButton cmdMake{*this, "cmdMake", "&Make"};
  ui::CommandButton cmdCancel{*this, "cmdCancel", "&Cancel"};

  // Called between two files, so that the window system can deliver a click on Cancel while
  // the prompts are made (the desktop program sets it; headless it is empty).
  static std::function<void()> Pump;
  // The speaker to use; empty: the synthesizer with the English voice.
  static std::function<std::unique_ptr<prompts::Speaker>(std::string& error)> OpenSpeaker;

  const std::vector<prompts::PromptResult>& Results() const { return results_; }

 protected:
  void Form_Load() override;

 private:
  void cmdMake_Click();
  void cmdCancel_Click();
  void ShowSummary();

  std::vector<prompts::NamedPrompt> prompts_;
  prompts::PromptTexts texts_;
  std::vector<prompts::PromptResult> results_;
  bool running_ = false;
  bool cancelled_ = false;
};

// The menu command: shows frmPrompts for the open application.
void MakeMissingPromptsCommand();

}  // namespace kq
