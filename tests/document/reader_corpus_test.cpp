// Replays a corpus of damaged files, made here by deterministic mutations of good ones,
// through open and insert: each ends in a loaded document, a box, or a "Program Error",
// and a refused file leaves the document as it was.
#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "document/catalogue.h"
#include "document/document.h"
#include "document/file.h"
#include "document/state.h"
#include "tests/support/doc_fixture.h"

namespace {

using namespace kq;
using kqtest::DocTest;
using kqtest::Snapshot;

std::vector<uint8_t> Mutate(const std::vector<uint8_t>& good, uint32_t seed) {
  std::mt19937 rng(seed);
  auto b = good;
  auto at = [&](size_t lo) { return std::uniform_int_distribution<size_t>(lo, b.size() - 1)(rng); };
  switch (seed % 6) {
    case 0:  // a few bytes anywhere
      for (int k = 0; k < 1 + static_cast<int>(seed % 4); ++k)
        b[at(0)] = static_cast<uint8_t>(rng());
      break;
    case 1:  // cut short
      b.resize(at(0));
      break;
    case 2: {  // another line count
      const int16_t n = static_cast<int16_t>(rng());
      std::memcpy(&b[84007], &n, 2);
      break;
    }
    case 3:  // bytes in the lines and records only
      for (int k = 0; k < 8; ++k) b[at(84009)] = static_cast<uint8_t>(rng());
      break;
    case 4: {  // a version of the list, or none
      static const char* versions[] = {"3.08", "3.09", "3.07", "2.00", "9.99", "3.10"};
      std::memcpy(b.data(), versions[rng() % 6], 5);
      break;
    }
    case 5:  // a line count one off, so that the records are read out of step
      b[84007] = static_cast<uint8_t>(b[84007] + ((rng() & 1) ? 1 : -1));
      break;
  }
  return b;
}

class ReaderCorpusTest : public DocTest {
 protected:
  std::vector<uint8_t> Good() {
    kqtest::FillDeclarations();
    kqtest::AddMixedLines(60);
    kqtest::SaveAll(TempPath("good.kqx"));
    return kqtest::ReadBytes(TempPath("good.kqx"));
  }
  void Fresh() {
    InitDocument();
    list().Clear();
    kqtest::AddLine(13, "Mine", 1);
    kqtest::AddLine(4, "", 2);
    platform_.ClearEvents();
  }
  // Runs one command; true when it ended the program.
  template <typename Command>
  bool Run(Command command) {
    const Snapshot before = Snapshot::Take();
    try {
      command();
    } catch (const ui::ProgramEnded&) {
      EXPECT_EQ(platform_.EventsOf("msgbox").back().fields["title"].Str(), "Program Error");
      return true;
    }
    const auto boxes = platform_.EventsOf("msgbox");
    const bool refused = !boxes.empty() && boxes.back().fields["title"].Str() == "File Error";
    if (refused) {
      EXPECT_TRUE(Snapshot::Take() == before);
    }
    EXPECT_EQ(platform_.MousePointer(), 0);
    return false;
  }
};

TEST_F(ReaderCorpusTest, MutatedFilesThroughOpenAndInsert) {
  const auto good = Good();
  int ended = 0, loaded = 0;
  for (uint32_t seed = 0; seed < 600; ++seed) {
    const auto bytes = Mutate(good, seed);
    Fresh();
    std::string title = "m.kqx", name = "m.kqx";
    if (Run([&] { OpenFileBytes(title, name, bytes); })) {
      ++ended;
    } else if (title == "m.kqx") {
      ++loaded;
      EXPECT_EQ(list().ListCount(), PrgHdr.LineCount) << seed;
      EXPECT_EQ(std::memcmp(PrgHdr.Version, "3.10", 5), 0);
    }
    Fresh();
    std::string insertTitle = "m.kqx";
    Run([&] { InsertFileBytes(insertTitle, bytes, 1); });
  }
  // The corpus reaches every outcome.
  EXPECT_GT(ended, 0);
  EXPECT_GT(loaded, 0);
}

}  // namespace
