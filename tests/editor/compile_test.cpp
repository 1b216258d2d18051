// Compile: the faults of each pass with their boxes and selected lines, the resolving of
// labels, and the flags of the Compile menu.
#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <set>

#include "document/state.h"
#include "editor/commands.h"
#include "editor/compile.h"
#include "editor/compile_index.h"
#include "tests/support/doc_builder.h"
#include "tests/support/record_layouts.h"
#include "tests/support/test_text.h"

namespace kq::test {
namespace {

class CompileTest : public ::testing::Test, public DocFixture {
 protected:
  void SetUp() override {
    DeclareVariable(0, kVarLong, "Count");
    DeclareVariable(1, kVarString, "Name");
    DeclareVariable(2, kVarDouble, "Rate");
  }
  // The one box shown, as title and text.
  std::pair<std::string, std::string> OnlyBox() {
    auto boxes = platform.EventsOf("msgbox");
    EXPECT_EQ(boxes.size(), 1u);
    if (boxes.empty()) return {};
    return {boxes[0].fields["title"].Str(), boxes[0].fields["text"].Str()};
  }
  std::vector<int> Selected() { return list().SelectedIndexes(); }
  // A record of function f whose every reference is satisfied: variables hold constants,
  // flags are on, path types are pathType, path names path and table names "T".
  static Rec Satisfied(int f, int32_t pathType, const std::string& path) {
    Rec r(f);
    for (const FieldSpec& s : RecordFields(f)) {
      for (int i = 0; i < s.count; ++i) {
        if (s.kind == FieldSpec::Var) r.Var(s.offset + 32 * i, kConstLong, "1");
        if (s.kind == FieldSpec::Flag) r.I32(s.offset + 4 * i, 1);
        if (s.kind == FieldSpec::PathType) r.I32(s.offset, pathType);
        if (s.kind == FieldSpec::Text && s.width == 28) r.Text(s.offset + 28 * i, 28, path);
        if (s.kind == FieldSpec::Text && s.width == 16) r.Text(s.offset + 16 * i, 16, "T");
      }
    }
    return r;
  }
};

TEST_F(CompileTest, CleanProgramCompilesAndResolvesEveryKindOfReference) {
  Add("Top", Rec(10).LabelRef(0, "End", 77));
  Add("",
      Rec(3).Var(0, kVarLong, "Count").Var(32, kConstLong, "5").Label(68, "Top").Label(84, "End"));
  Add("", Rec(5).Var(148, kConstString, "555").Label(16 * 3, "Top"));
  Add("", Rec(49).I32(0, kPathVoice).Text(4, 28, "V").Label(32, "End"));
  Add("End", Rec(14));
  DeclarePath(kPathVoice, 0, "V", "/v/");
  list().SetSelected(2, true);
  EXPECT_TRUE(Compile());
  EXPECT_EQ(OnlyBox(), std::make_pair(std::string("Compile Information"),
                                      std::string("Successfully compilation...")));
  EXPECT_EQ(LineRecord(0).I32At(16), 4);
  EXPECT_EQ(LineRecord(1).I32At(100), 0);
  EXPECT_EQ(LineRecord(1).I32At(104), 4);
  EXPECT_EQ(LineRecord(2).I32At(112 + 4 * 3), 0);
  EXPECT_EQ(LineRecord(2).I32At(112), -1);  // empty outcome keeps its number
  EXPECT_EQ(LineRecord(3).I32At(64), 4);
  EXPECT_EQ(LineRecord(3).I32At(68), -1);      // empty check label keeps its number
  EXPECT_EQ(Selected(), std::vector<int>{2});  // success leaves the selection alone
  EXPECT_EQ(platform.MousePointer(), ui::vbDefault);
}

TEST_F(CompileTest, EmptyLabelKeepsItsOldNumber) {
  Add("", Rec(0).Var(0, kVarLong, "Count").Var(32, kConstLong, "1").LabelRef(64, "", 1234));
  EXPECT_TRUE(Compile());
  EXPECT_EQ(LineRecord(0).I32At(80), 1234);
}

TEST_F(CompileTest, GetLineNoTakesTheLastNonEmptyMatch) {
  Add("A", Rec(13));
  Add("", Rec(13));
  Add("A", Rec(13));
  Add("B", Rec(13));
  const LabelIndex labels(list().ListCount());
  int32_t n = -7;
  char a[16];
  SetField(a, "A");
  EXPECT_TRUE(GetLineNo(labels, View(a), n, 3));
  EXPECT_EQ(n, 2);
  char empty[16];
  SetField(empty, "");
  n = -7;
  EXPECT_FALSE(GetLineNo(labels, View(empty), n, 3));  // an empty line label never matches
  EXPECT_EQ(n, -7);
  EXPECT_EQ(OnlyBox().second, "Label '' not found in line 3");
  EXPECT_EQ(Selected(), std::vector<int>{3});
}

TEST_F(CompileTest, UndeclaredVariableSelectsTheLine) {
  Add("", Rec(13).Text(0, 52, "hello"));
  Add("", Rec(41).Var(0, kVarLong, "Missing"));
  list().SetSelected(0, true);
  EXPECT_FALSE(Compile());
  EXPECT_EQ(OnlyBox(),
            std::make_pair(
                std::string("Compilation Error"),
                std::string("Variable 'Missing' in line 1 is not defined or data type mismatch.")));
  EXPECT_EQ(Selected(), std::vector<int>{1});
  EXPECT_EQ(platform.Events().back().fields["icon"].Str(), "exclamation");
}

TEST_F(CompileTest, VariableOfAnotherTypeIsATypeMismatch) {
  Add("", Rec(41).Var(0, kVarDouble, "Count"));
  EXPECT_FALSE(Compile());
  EXPECT_EQ(OnlyBox().second, "Variable 'Count' in line 0 is not defined or data type mismatch.");
}

TEST_F(CompileTest, ConstantsAreNeverLookedUp) {
  Add("",
      Rec(46).Var(0, kVarString, "Name").Var(32, kConstString, "no such").Var(64, kConstLong, "3"));
  EXPECT_TRUE(Compile());
}

TEST_F(CompileTest, UnusedFieldsAreNotChecked) {
  // Run's parameters, CT Bus's fifth variable, Wait for Call's ids with flags off,
  // Variable Export's unnamed entries.
  DeclarePath(kPathGeneral, 0, "Bin", "/bin/");
  DeclarePath(kPathExport, 0, "Out", "/out/");
  Add("", Rec(53).Text(0, 28, "Bin").Var(28, kVarString, "Name").Var(60, kVarLong, "Nope"));
  Add("", Rec(54)
              .Var(0, kVarLong, "Count")
              .Var(32, kVarLong, "Count")
              .Var(64, kVarLong, "Count")
              .Var(96, kVarLong, "Count")
              .Var(128, kVarLong, "Nope"));
  Add("", Rec(19).Var(44, kVarString, "Nope").Var(88, kVarString, "Nope"));
  Add("", Rec(17)
              .Var(0, kVarLong, "Count")
              .Var(32, kVarNone, "")
              .Text(808, 28, "Out")
              .Var(836, kConstString, "f.txt"));
  Add("", Rec(11).Var(0, kVarLong, "Count"));
  EXPECT_TRUE(Compile());
}

TEST_F(CompileTest, WaitForCallChecksTheIdsWhoseFlagsAreSet) {
  Add("", Rec(19).I32(80, 1).Var(88, kVarString, "Called"));
  EXPECT_FALSE(Compile());
  EXPECT_EQ(OnlyBox().second, "Variable 'Called' in line 0 is not defined or data type mismatch.");
}

TEST_F(CompileTest, VariableExportChecksTheFileAlways) {
  Add("", Rec(17).Var(836, kVarString, "File"));
  EXPECT_FALSE(Compile());
  EXPECT_EQ(OnlyBox().second, "Variable 'File' in line 0 is not defined or data type mismatch.");
}

TEST_F(CompileTest, TableColumnsAreCheckedBeforeTheLines) {
  DeclareTable(3, "Cust");
  DeclareColumn(3, 4, kVarLong, "Gone");
  Add("", Rec(41).Var(0, kVarLong, "Missing"));
  list().SetSelected(0, true);
  EXPECT_FALSE(Compile());
  EXPECT_EQ(
      OnlyBox(),
      std::make_pair(std::string("Compilation Error"),
                     std::string("Variable 'Gone' in database 'Cust' column 5 is not defined.")));
  EXPECT_EQ(Selected(), std::vector<int>{0});  // no line selected by a column fault
}

TEST_F(CompileTest, WhereConditionsCheckTheColumnThenTheValue) {
  DeclareTable(0, "Cust");
  DeclareColumn(0, 1, kVarLong, "Count");
  DeclareTable(1, "Cust");  // the last table of the name counts
  DeclareColumn(1, 1, kVarString, "Name");
  Add("", Rec(29).Text(0, 16, "Cust").I32(36, 0).I32(40, 2).Var(76 + 32, kVarLong, "Value"));
  EXPECT_FALSE(Compile());
  EXPECT_EQ(OnlyBox().second, "Variable 'Value' in line 0 is not defined or data type mismatch.");
}

TEST_F(CompileTest, WhereConditionOnAnUndeclaredTableEndsTheProgram) {
  Add("", Rec(34).Text(0, 16, "Nowhere").I32(36, 1).Var(76, kConstLong, "1"));
  EXPECT_EQ(ProgramErrorOf([] { Compile(); }), "Subscript out of range");
}

TEST_F(CompileTest, IllegalVariableTypeEndsTheProgram) {
  Add("", Rec(45).Var(0, kVarNone, "Zap"));
  EXPECT_EQ(ProgramErrorOf([] { Compile(); }), "Illegal variable type 'Zap" + std::string(25, ' ') +
                                                   "' in line  0 in Global DefinedVarMsgFunc.");
}

TEST_F(CompileTest, UndeclaredPathIsReportedWithoutLineNumber) {
  DeclarePath(kPathVoice, 0, "Voice", "/v/");
  Add("", Rec(16)
              .Var(0, kVarLong, "Count")
              .I32(60, 1)
              .Text(68, 28, "Voice")
              .Text(96, 28, "Other")
              .Text(124, 28, "Digits"));
  EXPECT_FALSE(Compile());
  EXPECT_EQ(OnlyBox(), std::make_pair(std::string("Compilation Error"),
                                      std::string("Path variable 'Digits' is not defined.")));
  EXPECT_EQ(Selected(), std::vector<int>{0});
}

TEST_F(CompileTest, EmptyPathNameIsNotDefined) {
  Add("", Rec(18));
  EXPECT_FALSE(Compile());
  EXPECT_EQ(OnlyBox().second, "Path variable '' is not defined.");
}

TEST_F(CompileTest, PathOfNoTypeEndsTheProgram) {
  Add("", Rec(49).Text(4, 28, "P"));
  EXPECT_EQ(ProgramErrorOf([] { Compile(); }),
            std::string("Illegal path variable type 'P ") +
                "' with value -1 in Global DefinedPathMsgVariable.");
}

TEST_F(CompileTest, PathTypeAboveTheLettersEndsTheProgramWithTheNumberAsConverted) {
  Add("", Rec(49).I32(0, 70).Text(4, 28, "P"));
  EXPECT_EQ(ProgramErrorOf([] { Compile(); }),
            std::string("Illegal path variable type 'P ") +
                "' with value  70 in Global DefinedPathMsgVariable.");
}

TEST_F(CompileTest, UndeclaredTableComesAfterVariablesAndPaths) {
  Add("", Rec(25).Text(0, 16, "Orders"));
  Add("", Rec(21).Text(0, 28, "NoPath").Var(28, kConstString, "x"));
  EXPECT_FALSE(Compile());
  EXPECT_EQ(OnlyBox().second, "Path variable 'NoPath' is not defined.");
  EXPECT_EQ(Selected(), std::vector<int>{1});
  platform.ClearEvents();
  DeclarePath(kPathMessage, 0, "NoPath", "/m/");
  EXPECT_FALSE(Compile());
  EXPECT_EQ(OnlyBox().second, "Database table name 'Orders' in line 0 is not defined.");
  EXPECT_EQ(Selected(), std::vector<int>{0});
}

TEST_F(CompileTest, PrototypeTableNameIsChecked) {
  DeclarePath(kPathGeneral, 0, "G", "/g/");
  Rec r(55);
  r.I32(480, kPathGeneral);
  for (int i = 0; i < 8; ++i) r.Var(64 + 32 * i, kConstLong, "1");
  for (int i = 0; i < 4; ++i) r.Text(484 + 28 * i, 28, "G");
  r.Text(596, 16, "T");
  Add("", r);
  EXPECT_FALSE(Compile());
  EXPECT_EQ(OnlyBox().second, "Database table name 'T' in line 0 is not defined.");
}

TEST_F(CompileTest, DuplicatedLabelNamesTheFirstPair) {
  Add("A", Rec(13));
  Add("B", Rec(13));
  Add("C", Rec(13));
  Add("B", Rec(13));
  Add("A", Rec(13));
  Add("B", Rec(13));
  EXPECT_FALSE(Compile());
  EXPECT_EQ(OnlyBox().second, "Label 'A' duplicated in line 0 and 4");
  EXPECT_EQ(Selected(), std::vector<int>{0});
}

TEST_F(CompileTest, DuplicateFoundOnlyAfterOtherChecksPass) {
  Add("A", Rec(41).Var(0, kVarLong, "Missing"));
  Add("A", Rec(13));
  EXPECT_FALSE(Compile());
  EXPECT_NE(OnlyBox().second.find("Variable 'Missing'"), std::string::npos);
}

TEST_F(CompileTest, MissingLabelStopsAndKeepsLaterNumbers) {
  Add("X", Rec(10).LabelRef(0, "X", 99));
  Add("", Rec(9).LabelRef(0, "X", 99).LabelRef(20, "Gone", 98));
  Add("", Rec(10).LabelRef(0, "X", 97));
  EXPECT_FALSE(Compile());
  EXPECT_EQ(OnlyBox(), std::make_pair(std::string("Compilation Error - GetLineNo"),
                                      std::string("Label 'Gone' not found in line 1")));
  EXPECT_EQ(Selected(), std::vector<int>{1});
  EXPECT_EQ(LineRecord(0).I32At(16), 0);   // written before the fault
  EXPECT_EQ(LineRecord(1).I32At(16), 99);  // the faulty line is not written back
  EXPECT_EQ(LineRecord(2).I32At(16), 97);  // later lines keep their numbers
}

TEST_F(CompileTest, ConditionWithoutThenLabelFailsInPlace) {
  Add("", Rec(3).Var(0, kConstLong, "1").Var(32, kConstLong, "1"));
  EXPECT_FALSE(Compile());
  EXPECT_EQ(OnlyBox(), std::make_pair(std::string("Compilation Error"),
                                      std::string("Label '' not found in line 0")));
}

TEST_F(CompileTest, CheckFileLabelsResolveInPlace) {
  DeclarePath(kPathMessage, 0, "Msg", "/m/");
  Add("Here", Rec(50)
                  .I32(0, kPathMessage)
                  .Text(4, 28, "Msg")
                  .Var(32, kConstString, "a.vox")
                  .Label(80, "Here"));
  Add("", Rec(51)
              .I32(0, kPathMessage)
              .Text(4, 28, "Msg")
              .Var(32, kConstString, "a.vox")
              .Label(64, "There"));
  EXPECT_FALSE(Compile());
  EXPECT_EQ(OnlyBox(), std::make_pair(std::string("Compilation Error"),
                                      std::string("Label 'There' not found in line 1")));
  EXPECT_EQ(LineRecord(0).I32At(100), 0);
  EXPECT_EQ(LineRecord(0).I32At(96), -1);
}

TEST_F(CompileTest, IllegalFunctionNumbersEndTheProgram) {
  Add("", Rec(13));
  LineTable[0].LineFuncNo = 60;
  EXPECT_EQ(ProgramErrorOf([] { Compile(); }),
            "Illegal Function Number 60 in frmEdit - UnDefinedMsgVariables");
  LineTable[0].LineFuncNo = 22;  // an empty slot passes the first two passes
  EXPECT_EQ(ProgramErrorOf([] { Compile(); }),
            "Illegal Function Number in frmEdit - UndefinedDatabase");
}

TEST_F(CompileTest, SecondCompileGivesTheSameNumbersAndAnInsertedLineMovesThem) {
  Add("", Rec(10).LabelRef(0, "L", -1));
  Add("L", Rec(13));
  ASSERT_TRUE(Compile());
  ASSERT_TRUE(Compile());
  EXPECT_EQ(LineRecord(0).I32At(16), 1);
  // Insert a line in front of the target: shift the stores by one.
  std::memmove(&LineTable[2], &LineTable[1], sizeof(ProgramLine));
  std::memmove(FuncBlock[2], FuncBlock[1], kBlockSize);
  list().AddItem("x", 1);
  Rec remark(13);
  SetField(LineTable[1].LineLabel, "");
  LineTable[1].LineFuncNo = 13;
  std::memcpy(FuncBlock[1], remark.bytes.data(), remark.bytes.size());
  ASSERT_TRUE(Compile());
  EXPECT_EQ(LineRecord(0).I32At(16), 2);
}

TEST_F(CompileTest, CompileCommandSetsTheFlags) {
  Add("", Rec(13));
  ChangedFlag = false;
  CompileCommand();
  EXPECT_EQ(PrgHdr.CompiledFlag, -1);
  EXPECT_TRUE(ChangedFlag);
  Add("", Rec(41).Var(0, kVarLong, "Missing"));
  ChangedFlag = false;
  CompileCommand();
  EXPECT_EQ(PrgHdr.CompiledFlag, 0);
  EXPECT_FALSE(ChangedFlag);
}

// Every label field of every live function names the label of line 0: after UpdateLabels
// each carries 0, except the out-of-range label of Insert Record, which compile leaves
// alone; no other byte of any record changes.
TEST_F(CompileTest, UpdateLabelsResolvesEveryLabelField) {
  Add("T", Rec(13));
  for (int f = 0; f < kFuncCount; ++f) {
    if (!IsLiveFunction(f)) continue;
    Rec r(f);
    for (const FieldSpec& s : RecordFields(f)) {
      if (s.kind == FieldSpec::LabelRef) r.LabelRef(s.offset, "T", -5);
      if (s.kind == FieldSpec::LabelArray) {
        for (int i = 0; i < s.count; ++i)
          r.Label(s.offset + 16 * i, "T").I32(s.lineOffset + 4 * i, -5);
      }
    }
    Add("", r);
  }
  std::vector<Rec> before;
  for (int line = 0; line < list().ListCount(); ++line) before.push_back(LineRecord(line));
  ASSERT_TRUE(UpdateLabels());
  for (int line = 1; line < list().ListCount(); ++line) {
    const Rec after = LineRecord(line);
    Rec expected = before[static_cast<size_t>(line)];
    for (const FieldSpec& s : RecordFields(after.funcNo)) {
      if (s.kind == FieldSpec::LabelRef && !(after.funcNo == 30 && s.offset == 36)) {
        expected.I32(s.offset + 16, 0);
      }
      if (s.kind == FieldSpec::LabelArray) {
        for (int i = 0; i < s.count; ++i) expected.I32(s.lineOffset + 4 * i, 0);
      }
    }
    EXPECT_EQ(after.bytes, expected.bytes) << "function " << after.funcNo;
  }
}

// Which VarRef fields the variable pass checks, by function: each field of the record in
// turn names an undeclared variable while all others hold constants, every flag is on and
// every path, table and label is declared.
TEST_F(CompileTest, VariablePassChecksExactlyTheListedFields) {
  std::map<int, std::set<int>> checked = {
      {0, {0, 32}},
      {2, {0, 32, 64}},
      {3, {0, 32}},
      {5, {148}},
      {6, {4}},
      {7, {0}},
      {8, {4}},
      {11, {0}},
      {12, {28}},
      {16, {0}},
      {19, {44, 88}},
      {21, {28}},
      {36, {4}},
      {37, {0}},
      {38, {36}},
      {39, {36}},
      {41, {0}},
      {44, {4, 36}},
      {45, {0, 32}},
      {46, {0, 32, 64}},
      {47, {0, 32, 64}},
      {48, {0, 32, 64}},
      {50, {32}},
      {51, {32}},
      {52, {4}},
      {53, {28}},
      {54, {0, 32, 64, 96}},
      {55, {64, 96, 128, 160, 192, 224, 256, 288}},
  };
  // Variable Export: the file always, each of the 25 entries when named (here all are).
  for (int i = 0; i < 25; ++i) checked[17].insert(32 * i);
  checked[17].insert(836);
  for (int f = 0; f < kFuncCount; ++f) {
    if (!IsLiveFunction(f) || f == 27 || f == 29 || f == 34) continue;
    std::set<int> offsets;
    for (const FieldSpec& s : RecordFields(f)) {
      if (s.kind == FieldSpec::Var) {
        for (int i = 0; i < s.count; ++i) offsets.insert(s.offset + 32 * i);
      }
    }
    for (int o : offsets) {
      ResetDocument();
      list().Clear();
      for (int t = 0; t < 5; ++t) DeclarePath(kPathExport + t, 0, "P", "/p/");
      DeclareTable(0, "T");
      Rec r = Satisfied(f, kPathExport, "P");
      if (f == 3) r.Label(68, "Here");
      if (f == 16) r.Text(124, 28, "P");
      r.Var(o, kVarLong, "Nope");
      Add("Here", r);
      platform.ClearEvents();
      const bool compiled = Compile();
      const bool expectFault = checked.count(f) > 0 && checked.at(f).count(o) > 0;
      EXPECT_EQ(compiled, !expectFault) << "function " << f << " offset " << o;
      if (expectFault) {
        EXPECT_EQ(OnlyBox().second,
                  "Variable 'Nope' in line 0 is not defined or data type mismatch.")
            << "function " << f << " offset " << o;
      }
    }
  }
}

// Which path variables the path pass checks, and against which path type: each type has
// a name of its own ("PA" to "PE"); a record whose fields name the path of the listed type
// compiles, and each field in turn naming an undeclared path fails.
TEST_F(CompileTest, PathPassChecksEveryPathFieldAgainstItsType) {
  const std::map<int, std::map<int, std::string>> paths = {
      {1, {{4, "PC"}, {32, "PC"}}},
      {12, {{0, "PB"}}},
      {16, {{68, "PD"}, {96, "PD"}, {124, "PC"}}},
      {17, {{808, "PA"}}},
      {18, {{0, "PD"}}},
      {21, {{0, "PB"}}},
      {49, {{4, "PC"}}},
      {50, {{4, "PC"}}},
      {51, {{4, "PC"}}},
      {53, {{0, "PE"}}},
      {55, {{484, "PC"}, {512, "PC"}, {540, "PC"}, {568, "PC"}}},
  };
  auto build = [&](int f, int nope) {
    ResetDocument();
    list().Clear();
    for (int t = 0; t < 5; ++t)
      DeclarePath(kPathExport + t, 0, std::string("P") + char('A' + t), "/p/");
    DeclareTable(0, "T");
    Rec r = Satisfied(f, kPathNumber, "");
    for (const auto& [o, name] : paths.at(f)) r.Text(o, 28, o == nope ? "Nope" : name);
    Add("", r);
    platform.ClearEvents();
  };
  for (const auto& [f, fields] : paths) {
    build(f, -1);
    EXPECT_TRUE(Compile()) << "function " << f;
    for (const auto& [o, name] : fields) {
      build(f, o);
      EXPECT_FALSE(Compile()) << "function " << f << " offset " << o;
      EXPECT_EQ(OnlyBox().second, "Path variable 'Nope' is not defined.");
    }
  }
  // Say Number's two voice paths count only with their play flags.
  build(16, 68);
  Rec r = LineRecord(0);
  r.I32(60, 0);
  std::memcpy(FuncBlock[0], r.bytes.data(), r.bytes.size());
  EXPECT_TRUE(Compile());
}

// The table pass: the functions 24 to 34, 38, 39, 40 name their table at 0, Prototype at
// 596; other 16-character texts (the voice files of Say Number and Voice) are no tables.
TEST_F(CompileTest, TablePassChecksTheTableNames) {
  const std::set<int> named = {24, 25, 26, 27, 28, 29, 30, 31, 32, 33, 34, 38, 39, 40, 55};
  for (int f = 0; f < kFuncCount; ++f) {
    if (!IsLiveFunction(f)) continue;
    for (const FieldSpec& s : RecordFields(f)) {
      if (s.kind != FieldSpec::Text || s.width != 16) continue;
      ResetDocument();
      list().Clear();
      for (int t = 0; t < 5; ++t) DeclarePath(kPathExport + t, 0, "P", "/p/");
      Rec r = Satisfied(f, kPathExport, "P");
      r.Text(s.offset, 16, "Nope");
      Add("", r);
      platform.ClearEvents();
      const bool expectFault = named.count(f) > 0;
      EXPECT_EQ(Compile(), !expectFault) << "function " << f;
      if (expectFault) {
        EXPECT_EQ(OnlyBox().second, "Database table name 'Nope' in line 0 is not defined.");
      }
    }
  }
}

}  // namespace
}  // namespace kq::test
