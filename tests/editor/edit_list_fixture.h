// A headless platform, a new document and a main list of its own, with a seeded source of
// random choices: the ground of the tests that drive the line stores at random.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <random>
#include <vector>

#include "document/catalogue.h"
#include "document/document.h"
#include "document/state.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace kq::test {

class EditListFixture : public ::testing::Test {
 protected:
  explicit EditListFixture(uint32_t seed) : rng_(seed) {}

  void SetUp() override {
    ui::SetPlatform(&platform_);
    InitNameTables();
    GetFuncRecordLength();
    InitDocument();
    form_ = std::make_unique<ui::Form>("frmTest", "");
    list_ = std::make_unique<ui::ListBox>(*form_, "lstEdit");
    list_->SetMultiSelect(ui::ListBox::MultiSelect::Extended);
    SetEditList(list_.get());
    for (int f = 0; f < kFuncCount; ++f) {
      if (IsLiveFunction(f)) live_.push_back(f);
    }
  }
  void TearDown() override {
    SetEditList(nullptr);
    list_.reset();
    form_.reset();
    ui::SetPlatform(nullptr);
  }

  // 0 to n - 1 (0 when n is not positive).
  int Pick(int n) { return n <= 0 ? 0 : static_cast<int>(rng_() % static_cast<unsigned>(n)); }
  int RandomLive() { return live_[static_cast<size_t>(Pick(static_cast<int>(live_.size())))]; }

  ui::HeadlessPlatform platform_;
  std::unique_ptr<ui::Form> form_;
  std::unique_ptr<ui::ListBox> list_;
  std::vector<int> live_;
  std::mt19937 rng_;
};

}  // namespace kq::test
