// The history of changes over random documents: every kind of store change is taken
// inside a scope, then undone step by step and done again, and at every step the list,
// the selection, all 10,001 line table entries, every line's record and the header must
// be what they were. Also: what a step costs, and when no step is taken.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "document/catalogue.h"
#include "document/document.h"
#include "document/file.h"
#include "document/merge.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/line_editing.h"
#include "editor/undo_history.h"
#include "tests/editor/edit_list_fixture.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace kq {
namespace {

size_t RecordBytesOf(int funcNo) {
  if (funcNo < 0 || funcNo >= kFuncCount) return 0;
  return static_cast<size_t>(std::clamp(kCatalogueLength[funcNo], 0, kBlockSize));
}

// Everything a command can see of the document.
struct State {
  std::vector<std::string> items;
  std::vector<int> selected;
  int listIndex = -1;
  std::vector<uint8_t> entries;
  std::vector<std::string> records;
  std::vector<uint8_t> header;
};

State Capture(const ui::ListBox& list) {
  State s;
  s.items = list.Items();
  s.selected = list.SelectedIndexes();
  s.listIndex = list.ListIndex();
  const auto* entries = reinterpret_cast<const uint8_t*>(LineTable);
  s.entries.assign(entries, entries + sizeof LineTable);
  for (int t = 0; t < kMaxLines; ++t) {
    const auto* b = reinterpret_cast<const char*>(FuncBlock[t]);
    s.records.emplace_back(b, RecordBytesOf(LineTable[t].LineFuncNo));
  }
  const auto* h = reinterpret_cast<const uint8_t*>(&PrgHdr);
  s.header.assign(h, h + sizeof PrgHdr);
  return s;
}

void ExpectSame(const State& want, const State& got, const std::string& where) {
  ASSERT_EQ(want.items, got.items) << where;
  ASSERT_EQ(want.selected, got.selected) << where;
  ASSERT_EQ(want.listIndex, got.listIndex) << where;
  ASSERT_TRUE(want.entries == got.entries) << where << ": line table";
  for (int t = 0; t < kMaxLines; ++t) {
    ASSERT_EQ(want.records[t], got.records[t]) << where << ": record of line " << t;
  }
  ASSERT_TRUE(want.header == got.header) << where << ": header";
}

class History : public test::EditListFixture {
 protected:
  History() : EditListFixture(20261124) {}

  void RandomLine(int i) {
    const int f = RandomLive();
    SetField(LineTable[i].LineLabel, "L" + std::to_string(Pick(100000)));
    LineTable[i].LineFuncNo = static_cast<int16_t>(f);
    AssignField(LineTable[i].LineFuncName, std::string(FuncNames[f], 17));
    for (int b = 0; b < kBlockSize; ++b) FuncBlock[i][b] = static_cast<uint8_t>(Pick(256));
  }

  // n lines over stores full of noise, in front and behind the lines.
  void RandomDocument(int n) {
    for (int i = 0; i < kMaxLines; ++i) RandomLine(i);
    std::vector<std::string> items;
    for (int i = 0; i < n; ++i) {
      items.push_back(Format0000(i) + "\tL" + std::to_string(i) + "\t" +
                      NulToBlank(View(FuncNames[LineTable[i].LineFuncNo])) + "\tp" +
                      std::to_string(Pick(1000)));
    }
    list_->ReplaceAll(items);
    PrgHdr.LineCount = static_cast<int16_t>(n);
  }

  void HandOverRandomLine() {
    FuncNo = static_cast<int16_t>(RandomLive());
    FuncName = std::string(FuncNames[FuncNo], 17);
    FuncLabel = "New" + std::to_string(Pick(100)) + std::string(1, '\0');
    FuncLine =
        "\tnew\t" + NulToBlank(View(FuncNames[FuncNo])) + "\tparms" + std::to_string(Pick(9));
    uint8_t* image = WorkRecord.Image(FuncNo);
    for (int b = 0; b < RecordLength[FuncNo]; ++b) image[b] = static_cast<uint8_t>(Pick(256));
  }

  void SelectRandomly(int count) {
    DeselectAll();
    for (int c = 0; c < count && list_->ListCount() > 0; ++c) {
      list_->SetSelected(Pick(list_->ListCount()), true);
    }
  }
  void DeselectAll() {
    for (int i = 0; i < list_->ListCount(); ++i) list_->SetSelected(i, false);
  }

  // The selection a command of this kind starts from, as a person leaves it.
  void Prepare(int kind) {
    if (kind == 1 || kind == 5) SelectRandomly(1);
    if (kind == 3) SelectRandomly(1 + Pick(6));
  }

  // One random command of each kind the editor has, in its scope.
  void RandomCommand(int kind) {
    const int n = list_->ListCount();
    switch (kind) {
      case 0: {  // Add
        const EditScope scope(history_, "Add", LineMoves::None);
        HandOverRandomLine();
        list_->AddItem(Format0000(n) + FuncLine);
        LineTable[n].LineFuncNo = FuncNo;
        UpdateFuncParm(n, FuncNo);
        ++PrgHdr.LineCount;
        break;
      }
      case 1: {  // Insert in front of the current line
        const EditScope scope(history_, "Insert", LineMoves::InsertAtCurrent);
        if (n == 0) break;
        HandOverRandomLine();
        InsertLineInStores(*list_, list_->ListIndex());
        ++PrgHdr.LineCount;
        break;
      }
      case 2: {  // Modify
        const EditScope scope(history_, "Modify", LineMoves::None);
        if (n == 0) break;
        const int k = Pick(n);
        HandOverRandomLine();
        list_->SetList(k, Format0000(k) + FuncLine);
        LineTable[k].LineFuncNo = FuncNo;
        UpdateFuncParm(k, FuncNo);
        break;
      }
      case 3: {  // Delete of scattered lines
        const EditScope scope(history_, "Delete", LineMoves::DeleteSelected);
        PrgHdr.LineCount =
            static_cast<int16_t>(PrgHdr.LineCount - DeleteSelectedFromStores(*list_));
        break;
      }
      case 4: {  // a declaration
        const EditScope scope(history_, "Variables", LineMoves::None);
        VarRef& v = PrgHdr.Variable[Pick(kMaxVariables)];
        v.VarRefType = Pick(3);
        SetField(v.VarRefName, "V" + std::to_string(Pick(1000)));
        break;
      }
      case 5: {  // Insert file: lines of the document itself, merged at the current line
        std::vector<int> lines;
        for (int i = 0; i < n; i += 1 + Pick(4)) lines.push_back(i);
        const std::vector<uint8_t> image = LinesImage(lines);
        const EditScope scope(history_, "Insert File", LineMoves::InsertAtCurrent);
        std::string title = "part";
        InsertFileBytes(title, image, list_->ListIndex());
        break;
      }
      case 6: {  // Clear
        const EditScope scope(history_, "Clear", LineMoves::None);
        list_->Clear();
        PrgHdr.LineCount = 0;
        break;
      }
      default:
        break;
    }
  }

  // Random commands, each with the state before and after it; then all undone, each
  // giving back the state before it, and all done again, each giving the state after it.
  void WalkBackAndForth(int steps) {
    struct Taken {
      int kind;
      std::string name;
      State before, after;
    };
    std::vector<Taken> taken;
    for (int s = 0; s < steps; ++s) {
      const int kind = s % 11 == 10 ? 6 : Pick(6);
      Prepare(kind);
      State before = Capture(*list_);
      const int count = history_.UndoCount();
      RandomCommand(kind);
      if (history_.UndoCount() == count) continue;  // nothing changed
      taken.push_back({kind, history_.UndoName(), std::move(before), Capture(*list_)});
    }
    for (size_t s = taken.size(); s-- > 0;) {
      ASSERT_EQ(history_.UndoName(), taken[s].name);
      history_.Undo();
      ExpectSame(taken[s].before, Capture(*list_),
                 "undo of step " + std::to_string(s) + ", " + taken[s].name);
    }
    EXPECT_FALSE(history_.CanUndo());
    for (size_t s = 0; s < taken.size(); ++s) {
      history_.Redo();
      ExpectSame(taken[s].after, Capture(*list_),
                 "redo of step " + std::to_string(s) + ", " + taken[s].name);
    }
    EXPECT_FALSE(history_.CanRedo());
  }

  EditHistory history_;
};

TEST_F(History, EveryKindOfChangeUndoesAndRedoesExactly) {
  for (int trial = 0; trial < 6; ++trial) {
    history_.Clear();
    RandomDocument(Pick(60));
    WalkBackAndForth(40);
    if (HasFatalFailure()) FAIL() << "trial " << trial;
  }
}

TEST_F(History, UndoClearsCompiledAndSetsChanged) {
  RandomDocument(5);
  RandomCommand(2);
  ASSERT_TRUE(history_.CanUndo());
  PrgHdr.CompiledFlag = -1;  // a compile after the change
  ChangedFlag = false;
  history_.Undo();
  EXPECT_EQ(PrgHdr.CompiledFlag, 0);
  EXPECT_TRUE(ChangedFlag);
  ChangedFlag = false;
  history_.Redo();
  EXPECT_EQ(PrgHdr.CompiledFlag, 0);
  EXPECT_TRUE(ChangedFlag);
}

TEST_F(History, ChangesOutsideTheCommandsAreNotTakenIntoTheNextStep) {
  RandomDocument(8);
  RandomCommand(2);  // Modify
  // A compile writes line numbers into records between two commands.
  const int line = 3;
  FuncBlock[line][0] ^= 0xFF;
  const State compiled = Capture(*list_);
  RandomCommand(4);  // a declaration
  history_.Undo();
  ExpectSame(compiled, Capture(*list_), "undo of the declaration");
}

TEST_F(History, NoStepWithoutAChangeAndANewCommandDropsRedo) {
  RandomDocument(10);
  {
    const EditScope scope(history_, "Variables", LineMoves::None);  // left by Cancel
  }
  {
    const EditScope scope(history_, "Delete", LineMoves::DeleteSelected);  // nothing selected
    list_->SetSelected(2, true);  // only the selection moved
  }
  EXPECT_FALSE(history_.CanUndo());
  RandomCommand(2);
  RandomCommand(0);
  history_.Undo();
  EXPECT_TRUE(history_.CanRedo());
  EXPECT_EQ(history_.RedoName(), "Add");
  RandomCommand(4);
  EXPECT_FALSE(history_.CanRedo());
  EXPECT_EQ(history_.UndoName(), "Variables");
  EXPECT_EQ(history_.UndoCount(), 2);
}

// A command keeps what it touched: a line put in or taken out at the top of a full
// document moves every line behind it, but the step holds little more than that line.
TEST_F(History, AStepOnAFullDocumentKeepsOnlyWhatItTouched) {
  RandomDocument(kUserLines - 1);
  for (int kind : {1, 3, 2, 0}) {
    if (kind == 1) list_->SetListIndex(0);
    const size_t before = history_.StepBytes();
    if (kind == 1) {
      DeselectAll();
      list_->SetSelected(0, true);
      const EditScope scope(history_, "Insert", LineMoves::InsertAtCurrent);
      HandOverRandomLine();
      InsertLineInStores(*list_, 0);
    } else if (kind == 3) {
      DeselectAll();
      list_->SetSelected(1, true);
      list_->SetSelected(5000, true);
      const EditScope scope(history_, "Delete", LineMoves::DeleteSelected);
      DeleteSelectedFromStores(*list_);
    } else {
      RandomCommand(kind);
    }
    const size_t step = history_.StepBytes() - before;
    EXPECT_GT(step, 0u) << "kind " << kind;
    EXPECT_LT(step, size_t{16} << 10) << "kind " << kind;
  }
}

TEST_F(History, RunsFollowTheLinesThatStay) {
  const std::vector<MovedRun> runs = RunsOfDelete({1, 2, 5}, 8);
  ASSERT_EQ(runs.size(), 2u);
  EXPECT_EQ(runs[0].from, 3);
  EXPECT_EQ(runs[0].to, 1);
  EXPECT_EQ(runs[0].length, 2);
  EXPECT_EQ(runs[1].from, 6);
  EXPECT_EQ(runs[1].to, 3);
  EXPECT_EQ(runs[1].length, 2);
  EXPECT_TRUE(RunsOfDelete({7}, 8).empty());  // the last line: nothing moves
  const std::vector<MovedRun> insert = RunsOfInsert(2, 3, 6);
  ASSERT_EQ(insert.size(), 1u);
  EXPECT_EQ(insert[0].from, 2);
  EXPECT_EQ(insert[0].to, 5);
  EXPECT_EQ(insert[0].length, 4);
  EXPECT_TRUE(RunsOfInsert(6, 3, 6).empty());  // behind the last line
}

}  // namespace
}  // namespace kq
