// The one-pass Insert and Delete of the line stores against the step-by-step walk they
// replace: after random edits of random documents, the list texts, the selection, the
// line table (all 10,001 entries) and the blocks (all 10,001, every byte) must be equal.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/document.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/line_editing.h"
#include "tests/editor/edit_list_fixture.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace kq {
namespace {

// ---- The walk as the Edit menu describes it, one line at a time.

std::string LiteralRenumber(int i, const std::string& text) {
  return Format0000(i) + (text.size() > 4 ? text.substr(4) : "");
}

void LiteralDelete(ui::ListBox& list) {
  int last = 0;
  for (int i = list.ListCount() - 1; i >= 0; --i) {
    if (!list.Selected(i)) continue;
    last = i;
    list.RemoveItem(i);
    --PrgHdr.LineCount;
    // Each line behind is taken out and put back with its new number, which drops its
    // selection; the text is rewritten in place here to keep the test quick.
    for (int j = i; j <= list.ListCount() - 1; ++j) {
      list.SetList(j, LiteralRenumber(j, list.List(j)));
      list.SetSelected(j, false);
    }
    const int newLast = list.ListCount() - 1;
    for (int j = i; j <= newLast; ++j) {
      CopyFuncParm(j, j + 1, LineTable[j + 1].LineFuncNo);
      if (j == newLast) InitFuncParm(j + 1, LineTable[j + 1].LineFuncNo);
      LineTable[j] = LineTable[j + 1];
    }
  }
  if (list.ListCount() > 0) {
    list.SetSelected(last != list.ListCount() ? last : last - 1, true);
  }
}

void LiteralInsert(ui::ListBox& list, int k) {
  list.AddItem(Format0000(k) + FuncLine, k);
  for (int i = k; i <= list.ListCount() - 1; ++i) {
    const std::string text = list.List(i);
    list.RemoveItem(i);
    list.AddItem(LiteralRenumber(i, text), i);
  }
  DeselectListBox(list);
  list.SetSelected(k + 1, true);
  for (int i = list.ListCount() - 1; i >= k; --i) {
    if (i == k) {
      AssignField(LineTable[i].LineLabel, FuncLabel);
      LineTable[i].LineFuncNo = FuncNo;
      AssignField(LineTable[i].LineFuncName, FuncName);
      UpdateFuncParm(i, FuncNo);
    } else {
      LineTable[i] = LineTable[i - 1];
      CopyFuncParm(i, i - 1, LineTable[i].LineFuncNo);
    }
  }
}

// ---- Snapshots of the whole state.

struct Snapshot {
  std::vector<std::string> items;
  std::vector<int> selected;
  int listIndex = -1;
  int16_t lineCount = 0;
  std::vector<ProgramLine> table;
  std::vector<uint8_t> blocks;
};

Snapshot Take(const ui::ListBox& list) {
  Snapshot s;
  s.items = list.Items();
  s.selected = list.SelectedIndexes();
  s.listIndex = list.ListIndex();
  s.lineCount = PrgHdr.LineCount;
  s.table.assign(LineTable, LineTable + kMaxLines);
  s.blocks.assign(&FuncBlock[0][0], &FuncBlock[0][0] + sizeof FuncBlock);
  return s;
}

void Restore(ui::ListBox& list, const Snapshot& s) {
  list.ReplaceAll(s.items);
  for (int i : s.selected) list.SetSelected(i, true);
  if (s.listIndex >= 0 && !list.Selected(s.listIndex)) {
    // the focus on a line that is not selected, as a ctrl-click leaves it
    list.SetSelected(s.listIndex, true);
    list.SetSelected(s.listIndex, false);
  }
  PrgHdr.LineCount = s.lineCount;
  std::copy(s.table.begin(), s.table.end(), LineTable);
  std::memcpy(&FuncBlock[0][0], s.blocks.data(), s.blocks.size());
}

void ExpectSame(const Snapshot& fast, const Snapshot& literal) {
  ASSERT_EQ(fast.items, literal.items);
  ASSERT_EQ(fast.selected, literal.selected);
  ASSERT_EQ(fast.listIndex, literal.listIndex);
  ASSERT_EQ(fast.lineCount, literal.lineCount);
  for (int i = 0; i < kMaxLines; ++i) {
    const ProgramLine& a = fast.table[i];
    const ProgramLine& b = literal.table[i];
    ASSERT_EQ(View(a.LineLabel), View(b.LineLabel)) << "line table entry " << i;
    ASSERT_EQ(a.LineFuncNo, b.LineFuncNo) << "line table entry " << i;
    ASSERT_EQ(View(a.LineFuncName), View(b.LineFuncName)) << "line table entry " << i;
  }
  for (int i = 0; i < kMaxLines; ++i) {
    ASSERT_EQ(0, std::memcmp(&fast.blocks[static_cast<size_t>(i) * kBlockSize],
                             &literal.blocks[static_cast<size_t>(i) * kBlockSize], kBlockSize))
        << "block " << i;
  }
}

class LineStores : public test::EditListFixture {
 protected:
  LineStores() : EditListFixture(20261122) {}

  // A document of n lines over stores full of noise: every block byte random, every
  // entry (also behind the lines) a random line of a live function.
  void RandomDocument(int n) {
    std::uniform_int_distribution<int> byte(0, 255);
    for (int i = 0; i < kMaxLines; ++i) {
      for (int b = 0; b < kBlockSize; b += 4) {
        const uint32_t word = rng_();
        std::memcpy(&FuncBlock[i][b], &word, 4);
      }
      const int f = RandomLive();
      SetField(LineTable[i].LineLabel, "L" + std::to_string(Pick(100000)));
      LineTable[i].LineFuncNo = static_cast<int16_t>(f);
      AssignField(LineTable[i].LineFuncName, std::string(FuncNames[f], 17));
    }
    // InitRecord images with noise too, so that an InitFuncParm at the wrong block shows.
    for (int f : live_) {
      uint8_t* image = InitRecord.Image(f);
      for (int b = 0; b < RecordLength[f]; ++b) image[b] = static_cast<uint8_t>(byte(rng_));
    }
    std::vector<std::string> items;
    for (int i = 0; i < n; ++i) {
      items.push_back(Format0000(i) + "\tL" + std::to_string(i) + "\t" +
                      NulToBlank(View(FuncNames[LineTable[i].LineFuncNo])) + "\tp" +
                      std::to_string(Pick(1000)));
    }
    list_->ReplaceAll(items);
    PrgHdr.LineCount = static_cast<int16_t>(n);
  }

  void SelectRandomly(int count) {
    const int n = list_->ListCount();
    for (int c = 0; c < count && n > 0; ++c) list_->SetSelected(Pick(n), true);
  }

  void HandOverRandomLine() {
    FuncNo = static_cast<int16_t>(RandomLive());
    FuncName = std::string(FuncNames[FuncNo], 17);
    FuncLabel = "New" + std::to_string(Pick(100)) + std::string(1, '\0');
    FuncLine = "\tnew\t" + NulToBlank(View(FuncNames[FuncNo])) + "\tparms";
    uint8_t* image = WorkRecord.Image(FuncNo);
    for (int b = 0; b < RecordLength[FuncNo]; ++b) image[b] = static_cast<uint8_t>(Pick(256));
  }
};

TEST_F(LineStores, DeleteOfRandomSelectionsEqualsTheWalk) {
  for (int trial = 0; trial < 60; ++trial) {
    const int n = Pick(120);
    RandomDocument(n);
    SelectRandomly(trial % 3 == 0 ? n : Pick(12));
    const Snapshot before = Take(*list_);
    const int removed = DeleteSelectedFromStores(*list_);
    const Snapshot fast = Take(*list_);
    Restore(*list_, before);
    LiteralDelete(*list_);
    const Snapshot literal = Take(*list_);
    EXPECT_EQ(removed, static_cast<int>(before.selected.size()));
    ExpectSame(fast, literal);
    if (HasFatalFailure()) FAIL() << "trial " << trial << " with " << n << " lines";
  }
}

TEST_F(LineStores, DeleteNearTheEndsAndOfRunsEqualsTheWalk) {
  struct Case {
    int n;
    std::vector<int> selected;
  };
  const std::vector<Case> cases = {
      {1, {0}},
      {2, {1}},
      {2, {0}},
      {5, {4, 3}},
      {5, {0, 1, 2}},
      {6, {0, 5}},
      {6, {2, 3, 4, 5}},
      {7, {1, 3, 5}},
      {4, {}},
      {0, {}},
      {8, {0, 1, 2, 3, 4, 5, 6, 7}},
  };
  for (const Case& c : cases) {
    RandomDocument(c.n);
    for (int i : c.selected) list_->SetSelected(i, true);
    const Snapshot before = Take(*list_);
    DeleteSelectedFromStores(*list_);
    const Snapshot fast = Take(*list_);
    Restore(*list_, before);
    LiteralDelete(*list_);
    ExpectSame(fast, Take(*list_));
    if (HasFatalFailure()) FAIL() << c.n << " lines";
  }
}

TEST_F(LineStores, DeleteOfScatteredLinesInAFullListEqualsTheWalk) {
  RandomDocument(kUserLines);
  SelectRandomly(300);
  list_->SetSelected(kUserLines - 1, true);
  const Snapshot before = Take(*list_);
  DeleteSelectedFromStores(*list_);
  const Snapshot fast = Take(*list_);
  Restore(*list_, before);
  LiteralDelete(*list_);
  ExpectSame(fast, Take(*list_));
}

TEST_F(LineStores, InsertEqualsTheWalk) {
  for (int trial = 0; trial < 40; ++trial) {
    const int n = 1 + Pick(100);
    RandomDocument(n);
    SelectRandomly(Pick(4));
    const int k = Pick(n);
    list_->SetSelected(k, true);  // the current line
    HandOverRandomLine();
    const Snapshot before = Take(*list_);
    InsertLineInStores(*list_, k);
    const Snapshot fast = Take(*list_);
    Restore(*list_, before);
    LiteralInsert(*list_, k);
    ExpectSame(fast, Take(*list_));
    if (HasFatalFailure()) FAIL() << "trial " << trial << " at line " << k;
  }
}

TEST_F(LineStores, DeleteKeepsEachRemainingLineWithItsOwnBlock) {
  RandomDocument(6);
  std::vector<std::vector<uint8_t>> records;
  for (int i = 0; i < 6; ++i) {
    const int len = RecordLength[LineTable[i].LineFuncNo];
    records.emplace_back(FuncBlock[i], FuncBlock[i] + len);
  }
  list_->SetSelected(1, true);
  list_->SetSelected(4, true);
  EXPECT_EQ(2, DeleteSelectedFromStores(*list_));
  const int kept[] = {0, 2, 3, 5};
  ASSERT_EQ(4, list_->ListCount());
  for (int p = 0; p < 4; ++p) {
    EXPECT_EQ(Format0000(p), list_->List(p).substr(0, 4));
    EXPECT_EQ("\tL" + std::to_string(kept[p]), list_->List(p).substr(4, 3));
    EXPECT_EQ(0, std::memcmp(FuncBlock[p], records[kept[p]].data(), records[kept[p]].size()));
  }
  EXPECT_EQ(std::vector<int>{1}, list_->SelectedIndexes());
  EXPECT_EQ(1, list_->ListIndex());
}

TEST_F(LineStores, DeleteWithNothingSelectedSelectsLineZero) {
  RandomDocument(3);
  const Snapshot before = Take(*list_);
  EXPECT_EQ(0, DeleteSelectedFromStores(*list_));
  EXPECT_EQ(before.items, list_->Items());
  EXPECT_EQ(std::vector<int>{0}, list_->SelectedIndexes());
  EXPECT_EQ(0, std::memcmp(before.blocks.data(), &FuncBlock[0][0], before.blocks.size()));
}

TEST_F(LineStores, DeletingTheLastLineSelectsTheNewLastLine) {
  RandomDocument(4);
  list_->SetSelected(3, true);
  DeleteSelectedFromStores(*list_);
  EXPECT_EQ(3, list_->ListCount());
  EXPECT_EQ(std::vector<int>{2}, list_->SelectedIndexes());
}

TEST_F(LineStores, DeleteOfAnIllegalFunctionNumberEndsTheProgram) {
  RandomDocument(4);
  LineTable[3].LineFuncNo = 22;  // an empty slot, moved by the delete of line 1
  list_->SetSelected(1, true);
  EXPECT_THROW(DeleteSelectedFromStores(*list_), ui::ProgramEnded);
  EXPECT_EQ("Illegal Function Number  22 in CopyFuncParm.", ui::LastProgramError());
}

}  // namespace
}  // namespace kq
