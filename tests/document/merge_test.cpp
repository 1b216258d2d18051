#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>

#include "document/catalogue.h"
#include "document/document.h"
#include "document/file.h"
#include "document/merge.h"
#include "document/state.h"
#include "document/text.h"
#include "tests/support/doc_fixture.h"

namespace {

using namespace kq;
using kq::test::DeclarePath;
using kq::test::DeclareVariable;
using kqtest::DocTest;
using kqtest::Snapshot;

VarRef VarOf(int i) {
  return PrgHdr.Variable[i];
}

// A line built from the function's defaults, changed by `fill`.
template <typename Fill>
void AddRecordLine(int f, const std::string& label, Fill fill) {
  std::memcpy(WorkRecord.Image(f), InitRecord.Image(f), kCatalogueLength[f]);
  fill(WorkRecord);
  kqtest::AddLine(f, label, 0, WorkRecord.Image(f));
}

class MergeTest : public DocTest {
 protected:
  void Insert(const std::string& path, int position, const std::string& title = "part.kqx") {
    std::string t = title, n = path;
    InsertFile(t, n, position);
  }
  // Saves the current document as a file to insert, then starts a new one.
  std::string MakePart(const std::string& name) {
    const std::string path = TempPath(name);
    kqtest::SaveAll(path);
    InitDocument();
    list().Clear();
    return path;
  }
};

TEST_F(MergeTest, SavePartKeepsOnlyWhatTheLinesUse) {
  DeclareVariable(0, kVarLong, "Unused");
  DeclareVariable(1, kVarLong, "Counter");
  DeclareVariable(2, kVarString, "Caller");
  DeclareVariable(3, kVarLong, "RandomOnly");
  DeclareVariable(4, kVarDouble, "InTable");
  SetField(PrgHdr.Table[0].TableName, "Calls");
  PrgHdr.Table[0].Column[5] = VarOf(4);
  DeclarePath(kPathVoice, 0, "Unused", "/v0/");
  DeclarePath(kPathVoice, 1, "Prompts", "/v1/");
  DeclarePath(kPathMessage, 0, "Msgs", "/m/");
  for (int i = 0; i < 5; ++i) kqtest::AddLine(13, "", i);
  AddRecordLine(3, "L5", [&](RecordSet& w) {
    w.Condition.Left = VarOf(1);
    SetField(w.Condition.ThenLabel, "L7");
    w.Condition.ThenLine = 7;
  });
  AddRecordLine(11, "", [&](RecordSet& w) { w.Random.Target = VarOf(3); });
  AddRecordLine(19, "L7", [&](RecordSet& w) {
    w.WaitForCall.GetCallerId = 1;
    w.WaitForCall.CallerIdVar = VarOf(2);
  });
  AddRecordLine(18, "", [&](RecordSet& w) { SetField(w.Voice.VoicePath, "Prompts"); });
  AddRecordLine(13, "", [](RecordSet&) {});
  kqtest::AddLine(13, "", 99);
  ChangedFlag = true;
  PrgHdr.CompiledFlag = -1;
  std::string recent;
  Shell.addRecentFile = [&](const std::string& p) { recent = p; };

  std::string title = "part.kqx", name = TempPath("part.kqx");
  int16_t count = 5;
  SaveFile(title, name, false, 5, 9, count);
  EXPECT_FALSE(ChangedFlag);
  EXPECT_EQ(recent, name);
  EXPECT_EQ(list().List(5).substr(0, 4), "0005");  // the document keeps its numbers

  InitDocument();
  list().Clear();
  kqtest::Open(name);
  ASSERT_EQ(list().ListCount(), 5);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(list().List(i).substr(0, 4), Format0000(i));
  EXPECT_EQ(list().List(0).substr(4, 3), "\tL5");
  EXPECT_EQ(PrgHdr.CompiledFlag, -1);
  EXPECT_EQ(reinterpret_cast<const ConditionRec*>(FuncBlock[0])->ThenLine, 7);
  // Variables compact and in order: the table's column keeps its variable.
  EXPECT_EQ(Text(PrgHdr.Variable[0].VarRefName), "Counter");
  EXPECT_EQ(Text(PrgHdr.Variable[1].VarRefName), "Caller");
  EXPECT_EQ(Text(PrgHdr.Variable[2].VarRefName), "InTable");
  EXPECT_EQ(PrgHdr.Variable[3].VarRefType, -1);
  EXPECT_EQ(Text(PrgHdr.Path[0][kPathVoice - 65].PathName), "Prompts");
  EXPECT_EQ(Text(PrgHdr.Path[0][kPathVoice - 65].PathText), "/v1/");
  EXPECT_TRUE(FieldEmpty(View(PrgHdr.Path[1][kPathVoice - 65].PathName)));
  EXPECT_TRUE(FieldEmpty(View(PrgHdr.Path[0][kPathMessage - 65].PathName)));
  EXPECT_EQ(Text(PrgHdr.Table[0].TableName), "Calls");
}

TEST_F(MergeTest, TableColumnsKeepVariablesOnlyWhenTheFirstTableIsNamed) {
  DeclareVariable(0, kVarLong, "Bound");
  SetField(PrgHdr.Table[3].TableName, "Late");
  PrgHdr.Table[3].Column[0] = VarOf(0);
  kqtest::AddLine(13, "", 1);
  EXPECT_FALSE(VarUsedInLines(VarOf(0), 0, 0));
  SetField(PrgHdr.Table[0].TableName, "First");
  EXPECT_TRUE(VarUsedInLines(VarOf(0), 0, 0));
}

TEST_F(MergeTest, InsertMergesDeclarationsAndLines) {
  DeclareVariable(0, kVarLong, "Shared");
  DeclareVariable(1, kVarString, "Theirs");
  DeclarePath(kPathVoice, 0, "Prompts", "/v/");
  DeclarePath(kPathVoice, 1, "Extra", "/x/");
  SetField(PrgHdr.Table[0].TableName, "Orders");
  PrgHdr.Table[0].Column[0] = VarOf(1);
  AddRecordLine(10, "In0", [](RecordSet& w) { SetField(w.Goto.Target.LabelRefName, "In1"); });
  AddRecordLine(4, "In1", [](RecordSet& w) { w.Delay.DelayMs = 77; });
  const std::string part = MakePart("part.kqx");

  DeclareVariable(0, kVarDouble, "Mine");
  DeclareVariable(1, kVarLong, "Shared");
  DeclarePath(kPathVoice, 0, "Prompts", "/v/");
  for (int i = 0; i < 4; ++i) kqtest::AddLine(13, "M" + std::to_string(i), i);
  const auto lastBlock = std::vector<uint8_t>(FuncBlock[3], FuncBlock[3] + 52);
  list().SetListIndex(3);
  PrgHdr.CompiledFlag = -1;

  Insert(part, 1);
  EXPECT_EQ(platform_.CountOf("msgbox"), 0);
  ASSERT_EQ(list().ListCount(), 6);
  EXPECT_EQ(PrgHdr.LineCount, 6);
  for (int i = 0; i < 6; ++i) EXPECT_EQ(list().List(i).substr(0, 4), Format0000(i)) << i;
  EXPECT_EQ(list().List(1).substr(4, 4), "\tIn0");
  EXPECT_EQ(list().List(3).substr(4, 3), "\tM1");
  EXPECT_EQ(list().ListIndex(), 5);  // the selected line moved with its text
  EXPECT_EQ(LineTable[1].LineFuncNo, 10);
  EXPECT_EQ(LineTable[2].LineFuncNo, 4);
  EXPECT_EQ(*reinterpret_cast<const int32_t*>(FuncBlock[2]), 77);
  EXPECT_EQ(Text(LineTable[5].LineLabel), "M3");
  EXPECT_EQ(std::memcmp(FuncBlock[5], lastBlock.data(), 52), 0);
  EXPECT_TRUE(ChangedFlag);
  EXPECT_EQ(PrgHdr.CompiledFlag, 0);

  EXPECT_EQ(Text(PrgHdr.Variable[0].VarRefName), "Mine");
  EXPECT_EQ(Text(PrgHdr.Variable[1].VarRefName), "Shared");
  EXPECT_EQ(Text(PrgHdr.Variable[2].VarRefName), "Theirs");
  EXPECT_EQ(PrgHdr.Variable[3].VarRefType, -1);
  EXPECT_EQ(Text(PrgHdr.Path[1][kPathVoice - 65].PathName), "Extra");
  EXPECT_TRUE(FieldEmpty(View(PrgHdr.Path[2][kPathVoice - 65].PathName)));
  EXPECT_EQ(Text(PrgHdr.Table[0].TableName), "Orders");
  EXPECT_EQ(platform_.MousePointer(), 0);
}

TEST_F(MergeTest, InsertAtTheEndAndOfNoLines) {
  DeclareVariable(0, kVarLong, "Only");
  const std::string empty = MakePart("empty.kqx");
  kqtest::AddLine(13, "", 1);
  kqtest::AddLine(13, "", 2);
  const auto items = list().Items();
  Insert(empty, 2);
  EXPECT_TRUE(list().Items() == items);
  EXPECT_EQ(Text(PrgHdr.Variable[0].VarRefName), "Only");
  EXPECT_TRUE(ChangedFlag);

  InitDocument();
  list().Clear();
  kqtest::AddLine(4, "", 1);
  const std::string two = MakePart("two.kqx");
  kqtest::AddLine(13, "", 1);
  kqtest::AddLine(13, "", 2);
  Insert(two, 2);
  ASSERT_EQ(list().ListCount(), 3);
  EXPECT_EQ(LineTable[2].LineFuncNo, 4);
}

TEST_F(MergeTest, RefusalsInOrderLeaveTheDocument) {
  struct Case {
    std::function<void()> part, doc;
    const char* text;
    const char* title;
  };
  const std::vector<Case> cases = {
      {[] { DeclareVariable(0, kVarString, "Name"); }, [] { DeclareVariable(5, kVarLong, "Name"); },
       "Variable Name is defined as Long       and String     respectively.", "Variable Error"},
      {[] {
         for (int i = 0; i < 10; ++i) DeclareVariable(i, kVarLong, "P" + std::to_string(i));
       },
       [] {
         for (int i = 0; i < 495; ++i) DeclareVariable(i, kVarLong, "D" + std::to_string(i));
       },
       "Exceeded maximum number of allowed variables, which are 500.", "Variable Error"},
      {[] { DeclarePath(kPathNumber, 0, "Nums", "/a/"); },
       [] { DeclarePath(kPathNumber, 0, "Nums", "/b/"); },
       "Path variable Nums is defined as /b/ and /a/ respectively.", "Path Variable Error"},
      {[] {
         for (int r = 0; r < 3; ++r) DeclarePath(kPathGeneral, r, "G" + std::to_string(r), "/g/");
       },
       [] {
         for (int r = 0; r < 18; ++r) DeclarePath(kPathGeneral, r, "H" + std::to_string(r), "/h/");
       },
       "Exceeded maximum number of allowed path variables, which are 20.", "Variable Error"},
      {[] { SetField(PrgHdr.Table[0].TableName, "Same"); },
       [] { SetField(PrgHdr.Table[9].TableName, "Same"); },
       "Database table Same have different variables defined in field 1", "Database Table Error"},
      {[] { SetField(PrgHdr.Table[0].TableName, "New"); },
       [] {
         for (int t = 0; t < 50; ++t) SetField(PrgHdr.Table[t].TableName, "T" + std::to_string(t));
       },
       "Exceeded maximum number of allowed database tables, which are 50.", "Database Table Error"},
  };
  for (const Case& c : cases) {
    InitDocument();
    list().Clear();
    c.part();
    kqtest::AddLine(13, "", 1);
    const std::string part = MakePart("p.kqx");
    c.doc();
    kqtest::AddLine(4, "", 2);
    const Snapshot before = Snapshot::Take();
    platform_.ClearEvents();
    Insert(part, 0);
    EXPECT_EQ(LastBox(), c.text);
    EXPECT_EQ(LastBox("title"), c.title);
    EXPECT_TRUE(Snapshot::Take() == before) << c.text;
  }
}

TEST_F(MergeTest, FilesThatCannotBeInserted) {
  kqtest::AddLine(4, "", 2);
  const Snapshot before = Snapshot::Take();
  Insert(TempPath("none.kqx"), 0, "none.kqx");
  EXPECT_EQ(LastBox(), "File none.kqx doesn't exist.");
  EXPECT_TRUE(std::filesystem::exists(TempPath("none.kqx")));  // the open made it

  std::vector<uint8_t> old(84009, 0);
  std::memcpy(old.data(), "3.09", 5);
  kqtest::WriteBytes(TempPath("old.kqx"), old);
  Insert(TempPath("old.kqx"), 0, "old.kqx");
  EXPECT_EQ(LastBox(),
            "File old.kqx has KQX file format version: 3.09\rYou can only insert a KQX file format "
            "with version: 3.10");
  EXPECT_EQ(LastBox("title"), "File Error");

  std::memcpy(old.data(), "3.10", 5);
  old[84007] = 3;
  kqtest::WriteBytes(TempPath("cut.kqx"), old);
  Insert(TempPath("cut.kqx"), 0, "cut.kqx");
  EXPECT_EQ(LastBox(), "File cut.kqx is damaged.");
  EXPECT_TRUE(Snapshot::Take() == before);
}

TEST_F(MergeTest, AnIllegalNumberInTheInsertedFileEndsTheProgram) {
  kqtest::AddLine(4, "", 1);
  const std::string part = MakePart("p.kqx");
  auto bytes = kqtest::ReadBytes(part);
  const int16_t bad = 22;
  std::memcpy(&bytes[84009 + 180 + 16], &bad, 2);
  kqtest::WriteBytes(part, bytes);
  kqtest::AddLine(13, "", 1);
  EXPECT_THROW(Insert(part, 0), ui::ProgramEnded);
  EXPECT_EQ(LastBox(), "Illegal Function Number  22 in Global InsertFile.");
}

TEST_F(MergeTest, TooManyLinesEndTheCommandWithoutABox) {
  kqtest::AddMixedLines(2);
  const std::string part = MakePart("p.kqx");
  DeclareVariable(0, kVarLong, "Mine");
  kqtest::AddMixedLines(kMaxLines - 1);
  const auto items = list().Items();
  const auto header = Snapshot::Take().header;
  Insert(part, 0);
  EXPECT_EQ(platform_.CountOf("msgbox"), 0);
  EXPECT_TRUE(list().Items() == items);
  EXPECT_TRUE(Snapshot::Take().header == header);
  EXPECT_FALSE(ChangedFlag);
}

TEST_F(MergeTest, InsertIntoALargeDocumentShiftsEveryLine) {
  kqtest::AddMixedLines(100);
  const std::string part = MakePart("p.kqx");
  kqtest::AddMixedLines(5000);
  std::vector<uint8_t> tail(FuncBlock[4999],
                            FuncBlock[4999] + kCatalogueLength[LineTable[4999].LineFuncNo]);
  const ProgramLine lastLine = LineTable[4999];
  Insert(part, 10);
  ASSERT_EQ(list().ListCount(), 5100);
  EXPECT_EQ(std::memcmp(&LineTable[5099], &lastLine, sizeof lastLine), 0);
  EXPECT_EQ(std::memcmp(FuncBlock[5099], tail.data(), tail.size()), 0);
  EXPECT_EQ(list().List(5099).substr(0, 4), "5099");
  EXPECT_EQ(list().List(10).substr(0, 4), "0010");
}

// Save Part of lines 5 to 9, then Insert of that part back at the start, in the middle and
// at the end: the part's lines arrive in order with their labels and records, every line
// is numbered by its new place, and the lines around keep their own records.
TEST_F(MergeTest, SavedPartInsertsBackAtStartMiddleAndEnd) {
  const int funcs[] = {0, 3, 4, 10, 13, 17, 19, 20, 27, 34, 53, 55};
  struct Line {
    std::string text;
    ProgramLine entry;
    std::vector<uint8_t> block;
  };
  std::vector<Line> original;
  const std::string part = TempPath("part.kqx");
  auto build = [&] {
    InitDocument();
    list().Clear();
    for (int i = 0; i < 12; ++i) kqtest::AddLine(funcs[i], "L" + std::to_string(i), 100 + i);
  };
  build();
  for (int i = 0; i < 12; ++i) {
    const int f = LineTable[i].LineFuncNo;
    original.push_back({list().List(i), LineTable[i],
                        std::vector<uint8_t>(FuncBlock[i], FuncBlock[i] + kCatalogueLength[f])});
  }
  std::string title = "part.kqx", name = part;
  int16_t count = 5;
  SaveFile(title, name, false, 5, 9, count);

  for (const int at : {0, 6, 12}) {
    build();
    Insert(part, at);
    ASSERT_EQ(list().ListCount(), 17) << at;
    for (int j = 0; j < 17; ++j) {
      const int from = j < at ? j : j < at + 5 ? 5 + (j - at) : j - 5;
      const Line& want = original[from];
      std::string text = Format0000(j) + want.text.substr(4);
      // The inserted lines are read as the file holds them: 180 characters, blanks behind.
      if (j >= at && j < at + 5) text.resize(kDisplayLineWidth, ' ');
      EXPECT_EQ(list().List(j), text) << at << " " << j;
      EXPECT_EQ(std::memcmp(&LineTable[j], &want.entry, sizeof(ProgramLine)), 0) << at << j;
      EXPECT_EQ(std::memcmp(FuncBlock[j], want.block.data(), want.block.size()), 0) << at << j;
    }
    EXPECT_EQ(PrgHdr.LineCount, 17);
    EXPECT_TRUE(ChangedFlag);
  }
}

}  // namespace
