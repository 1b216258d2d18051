// A headless platform, a new document and a main list of its own, with a seeded source of
// random choices: the ground of the tests that drive the line stores at random.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <random>
#include <vector>

#include "document/catalogue.h"
#include "document/document.h"
#include "document/edit_host.h"
#include "document/run_scope.h"
#include "document/state.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/list_controls.h"

namespace kq::test {

class EditListFixture : public ::testing::Test {
 protected:
  explicit EditListFixture(uint32_t seed) : rng_(seed) {}

  void SetUp() override {
    host_ = std::make_unique<EditHost>();
    list_ = &host_->lstEdit;
    run_.emplace(RunParts{&platform_, list_});
    for (int f = 0; f < kFuncCount; ++f) {
      if (IsLiveFunction(f)) live_.push_back(f);
    }
  }
  void TearDown() override {
    run_.reset();
    host_.reset();
  }

  // 0 to n - 1 (0 when n is not positive).
  int Pick(int n) { return n <= 0 ? 0 : static_cast<int>(rng_() % static_cast<unsigned>(n)); }
  int RandomLive() { return live_[static_cast<size_t>(Pick(static_cast<int>(live_.size())))]; }

  ui::HeadlessPlatform platform_;
  std::unique_ptr<EditHost> host_;
  ui::ListBox* list_ = nullptr;
  std::optional<RunScope> run_;
  std::vector<int> live_;
  std::mt19937 rng_;
};

}  // namespace kq::test
