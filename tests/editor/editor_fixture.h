// A headless platform with the main window loaded on it, as the desktop starts it.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>

#include "document/state.h"
#include "editor/frm_edit.h"
#include "ui/headless/headless_platform.h"

namespace kq::test {

class EditorTest : public ::testing::Test {
 protected:
  void SetUp() override { ui::SetPlatform(&platform_); }
  void TearDown() override {
    form_.reset();
    ui::SetPlatform(nullptr);
  }

  std::map<std::string, std::string>& Settings() {
    return platform_.SettingsOf("KQEdit", "Settings");
  }

  // Starts the editor with the settings store as it stands.
  FrmEdit& Start() {
    form_ = std::make_unique<FrmEdit>();
    ui::platform().Show(*form_);
    platform_.ClearEvents();
    return *form_;
  }

  // Puts lines into the list (and the line count) without dialogs.
  void PutLines(int count) {
    for (int i = 0; i < count; ++i) form_->lstEdit.AddItem("line");
    PrgHdr.LineCount = static_cast<int16_t>(form_->lstEdit.ListCount());
  }

  std::vector<std::string> BoxTitles() const {
    std::vector<std::string> out;
    for (const auto& e : platform_.EventsOf("msgbox")) out.push_back(e.fields["title"].Str());
    return out;
  }
  std::vector<std::string> BoxTexts() const {
    std::vector<std::string> out;
    for (const auto& e : platform_.EventsOf("msgbox")) out.push_back(e.fields["text"].Str());
    return out;
  }

  ui::HeadlessPlatform platform_;
  std::unique_ptr<FrmEdit> form_;
};

}  // namespace kq::test
