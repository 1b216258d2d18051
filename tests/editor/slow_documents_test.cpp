// Long random runs, in the `slow` label: random documents through save and open byte for
// byte, and random editing sessions (add, insert, modify, delete, clear, save, reopen)
// with the three stores of every line checked against a plain model after each step.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "document/catalogue.h"
#include "document/document.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/line_editing.h"
#include "tests/support/doc_fixture.h"
#include "tests/support/random_doc.h"

namespace kq::test {
namespace {

namespace fs = std::filesystem;

// A folder in memory when there is one: the saves flush to the disk, thousands of times.
fs::path ScratchFolder() {
  const fs::path shm = "/dev/shm";
  const fs::path base =
      fs::is_directory(shm) && ::access(shm.c_str(), W_OK) == 0 ? shm : fs::temp_directory_path();
  const fs::path dir = base / ("kqslow-" + std::to_string(::getpid()));
  fs::create_directories(dir);
  return dir;
}

class SlowDocuments : public ::testing::Test, public DocFixture {
 protected:
  void SetUp() override { dir_ = ScratchFolder(); }
  void TearDown() override { fs::remove_all(dir_); }

  std::string Path(const std::string& name) const { return (dir_ / name).string(); }
  void Reopen(const std::string& path) {
    InitDocument();
    list().Clear();
    kqtest::Open(path);
  }

  fs::path dir_;
};

TEST_F(SlowDocuments, TenThousandRandomDocumentsSurviveSaveAndOpenByteForByte) {
  std::mt19937 rng(20261124);
  for (int round = 0; round < 10000; ++round) {
    RandomDocOptions options;
    options.maxLines = round % 50 == 0 ? 400 : 30;
    BuildRandomDocument(list(), rng, options);
    const int lines = list().ListCount();
    kqtest::SaveAll(Path("a.kqx"));
    const auto first = kqtest::ReadBytes(Path("a.kqx"));
    Reopen(Path("a.kqx"));
    ASSERT_EQ(list().ListCount(), lines) << "round " << round;
    kqtest::SaveAll(Path("b.kqx"));
    ASSERT_TRUE(first == kqtest::ReadBytes(Path("b.kqx"))) << "round " << round;
  }
}

// A field's text as a person reads it: up to a NUL, without the blanks that fill it.
std::string LabelText(std::string_view field) {
  field = field.substr(0, field.find('\0'));
  while (!field.empty() && field.back() == ' ') field.remove_suffix(1);
  return std::string(field);
}

// What a line is, as a plain model keeps it.
struct Line {
  std::string text;  // the list text behind the line number
  std::string label;
  int16_t funcNo = 0;
  std::vector<uint8_t> block;  // the function's record
};

class EditingSession : public SlowDocuments {
 protected:
  int Pick(int n) { return static_cast<int>(rng_() % static_cast<unsigned>(n)); }

  std::vector<Line> ModelOfStores() {
    std::vector<Line> lines;
    for (int i = 0; i < list().ListCount(); ++i) {
      const int16_t f = LineTable[i].LineFuncNo;
      lines.push_back({list().List(i).substr(4), LabelText(View(LineTable[i].LineLabel)), f,
                       std::vector<uint8_t>(FuncBlock[i], FuncBlock[i] + RecordLength[f])});
    }
    return lines;
  }

  // Every step: as many lines in the list, the header and the model; each list text
  // numbered in order; each line's entry and record those of the model.
  void ExpectStoresAgree(const std::string& step) {
    ASSERT_EQ(list().ListCount(), static_cast<int>(model_.size())) << step;
    ASSERT_EQ(PrgHdr.LineCount, static_cast<int>(model_.size())) << step;
    for (int i = 0; i < list().ListCount(); ++i) {
      const Line& m = model_[static_cast<size_t>(i)];
      // A DisplayLine read back from a file keeps the blanks that fill its field.
      ASSERT_EQ(LabelText(list().List(i)), LabelText(Format0000(i) + m.text))
          << step << " line " << i;
      ASSERT_EQ(LineTable[i].LineFuncNo, m.funcNo) << step << " line " << i;
      ASSERT_EQ(LabelText(View(LineTable[i].LineLabel)), m.label) << step << " line " << i;
      ASSERT_EQ(0, std::memcmp(FuncBlock[i], m.block.data(), m.block.size()))
          << step << " line " << i;
    }
  }

  // The hand-over fields of a new line: a copy of one of the model's lines (or of the
  // lines the session started with), under a new label.
  Line HandOver() {
    const std::vector<Line>& from = model_.empty() ? start_ : model_;
    Line l = from[static_cast<size_t>(Pick(static_cast<int>(from.size())))];
    l.label = "N" + std::to_string(Pick(1000));
    l.text = "\t" + l.label + "\t" + NulToBlank(View(FuncNames[l.funcNo])) + "\tnew";
    FuncNo = l.funcNo;
    FuncName = std::string(FuncNames[l.funcNo], 17);
    FuncLabel = l.label + std::string(1, '\0');
    FuncLine = l.text;
    std::memcpy(WorkRecord.Image(l.funcNo), l.block.data(), l.block.size());
    return l;
  }

  void TakeOver(int k) {
    AssignField(LineTable[k].LineLabel, FuncLabel);
    LineTable[k].LineFuncNo = FuncNo;
    AssignField(LineTable[k].LineFuncName, FuncName);
    UpdateFuncParm(k, FuncNo);
  }

  std::vector<Line> model_, start_;
  std::mt19937 rng_{20261124};
};

TEST_F(EditingSession, AThousandRandomSessionsKeepTheStoresInStep) {
  for (int session = 0; session < 1000; ++session) {
    RandomDocOptions options;
    options.maxLines = 25;
    do {
      BuildRandomDocument(list(), rng_, options);
    } while (list().ListCount() == 0);
    PrgHdr.LineCount = static_cast<int16_t>(list().ListCount());
    model_ = start_ = ModelOfStores();
    for (int step = 0; step < 30; ++step) {
      const int n = list().ListCount();
      const int op = Pick(20);
      std::string what;
      if (op < 5 || n == 0) {  // add at the end
        what = "add";
        const Line l = HandOver();
        ++PrgHdr.LineCount;
        list().AddItem(Format0000(n) + FuncLine);
        TakeOver(n);
        model_.push_back(l);
      } else if (op < 10) {
        what = "insert";
        const int k = Pick(n);
        const Line l = HandOver();
        ++PrgHdr.LineCount;
        InsertLineInStores(list(), k);
        model_.insert(model_.begin() + k, l);
      } else if (op < 13) {
        what = "modify";
        const int k = Pick(n);
        Line l = HandOver();
        list().RemoveItem(k);
        list().AddItem(Format0000(k) + FuncLine, k);
        TakeOver(k);
        model_[static_cast<size_t>(k)] = l;
      } else if (op < 17) {
        what = "delete";
        for (int i : list().SelectedIndexes()) list().SetSelected(i, false);
        std::vector<bool> gone(static_cast<size_t>(n), false);
        for (int c = 1 + Pick(3); c > 0; --c) {
          const int i = Pick(n);
          list().SetSelected(i, true);
          gone[static_cast<size_t>(i)] = true;
        }
        DeleteSelectedFromStores(list());
        std::vector<Line> kept;
        for (int i = 0; i < n; ++i) {
          if (!gone[static_cast<size_t>(i)]) kept.push_back(model_[static_cast<size_t>(i)]);
        }
        model_ = kept;
      } else if (op < 18) {
        what = "clear";
        PrgHdr.LineCount = 0;
        list().Clear();
        model_.clear();
      } else {
        what = "save and reopen";
        kqtest::SaveAll(Path("s.kqx"));
        Reopen(Path("s.kqx"));
      }
      ExpectStoresAgree("session " + std::to_string(session) + " step " + std::to_string(step) +
                        " " + what);
      if (HasFatalFailure()) return;
    }
  }
}

}  // namespace
}  // namespace kq::test
