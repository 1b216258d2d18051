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
#include "tests/editor/compile_fixture.h"
#include "tests/support/doc_builder.h"
#include "tests/support/record_layouts.h"
#include "tests/support/test_text.h"

namespace kq::test {
namespace {

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

}  // namespace
}  // namespace kq::test
