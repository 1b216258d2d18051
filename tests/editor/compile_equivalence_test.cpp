// The indexed compile against the plain walks, on thousands of random documents: the same
// boxes, selection, result, program errors, blocks and working records.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "document/state.h"
#include "editor/compile.h"
#include "tests/editor/compile_literal.h"
#include "tests/support/doc_builder.h"
#include "tests/support/random_doc.h"

namespace kq::test {
namespace {

struct Outcome {
  bool result = false;
  std::string programError;
  std::vector<std::string> boxes;
  std::vector<int> selected;
  std::vector<uint8_t> blocks;
  std::vector<uint8_t> work;
};

struct Snapshot {
  std::vector<uint8_t> blocks;
  std::vector<int> selected;
};

class CompileEquivalenceTest : public ::testing::Test, public DocFixture {
 protected:
  int Lines() { return list().ListCount(); }
  Snapshot Take() {
    Snapshot s;
    s.blocks.assign(&FuncBlock[0][0], &FuncBlock[0][0] + static_cast<size_t>(Lines()) * kBlockSize);
    s.selected = list().SelectedIndexes();
    return s;
  }
  void Restore(const Snapshot& s) {
    std::memcpy(&FuncBlock[0][0], s.blocks.data(), s.blocks.size());
    for (int i : list().SelectedIndexes()) list().SetSelected(i, false);
    for (int i : s.selected) list().SetSelected(i, true);
    std::memset(&WorkRecord, 0, sizeof WorkRecord);
    platform.ClearEvents();
  }
  Outcome Run(bool (*compile)()) {
    Outcome o;
    try {
      o.result = compile();
    } catch (const ui::ProgramEnded& e) {
      o.programError = e.what();
    }
    for (const auto& e : platform.EventsOf("msgbox")) {
      o.boxes.push_back(e.fields["title"].Str() + "|" + e.fields["text"].Str());
    }
    o.selected = list().SelectedIndexes();
    o.blocks.assign(&FuncBlock[0][0], &FuncBlock[0][0] + static_cast<size_t>(Lines()) * kBlockSize);
    const uint8_t* w = reinterpret_cast<const uint8_t*>(&WorkRecord);
    o.work.assign(w, w + sizeof WorkRecord);
    return o;
  }
};

TEST_F(CompileEquivalenceTest, SameFaultsMessagesSelectionAndBytes) {
  std::mt19937 rng(20261122);
  int compiled = 0, faults = 0, programErrors = 0;
  for (int round = 0; round < 3000; ++round) {
    RandomDocOptions options;
    options.maxLines = round % 10 == 0 ? 200 : 30;
    options.faultRate = (round % 3 == 0) ? 0.0 : (round % 3 == 1 ? 0.01 : 0.06);
    options.illegalRate = round % 7 == 0 ? 0.01 : 0.0;
    BuildRandomDocument(list(), rng, options);
    if (rng() % 2)
      list().SetSelected(static_cast<int>(rng() % static_cast<unsigned>(Lines())), true);
    const Snapshot before = Take();
    platform.ClearEvents();
    const Outcome indexed = Run(&Compile);
    Restore(before);
    const Outcome literal = Run(&LiteralCompile);
    ASSERT_EQ(indexed.result, literal.result) << "round " << round;
    ASSERT_EQ(indexed.programError, literal.programError) << "round " << round;
    ASSERT_EQ(indexed.boxes, literal.boxes) << "round " << round;
    ASSERT_EQ(indexed.selected, literal.selected) << "round " << round;
    ASSERT_TRUE(indexed.blocks == literal.blocks) << "round " << round;
    ASSERT_TRUE(indexed.work == literal.work) << "round " << round;
    if (!indexed.programError.empty()) {
      ++programErrors;
    } else if (indexed.result) {
      ++compiled;
    } else {
      ++faults;
    }
  }
  // The generator must reach every outcome often enough for the comparison to mean something.
  EXPECT_GT(compiled, 300);
  EXPECT_GT(faults, 300);
  EXPECT_GT(programErrors, 30);
  std::cout << "compiled " << compiled << ", faults " << faults << ", program errors "
            << programErrors << "\n";
}

}  // namespace
}  // namespace kq::test
