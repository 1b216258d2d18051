// The warnings of lint on small programs that compile: each kind found where it is, and
// nothing where the program is sound.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "check/lint.h"
#include "document/state.h"
#include "document/text.h"
#include "tests/support/doc_builder.h"

namespace kq::test {
namespace {

class WarningsTest : public ::testing::Test, public DocFixture {
 protected:
  void SetUp() override {
    dir_ = std::filesystem::temp_directory_path() /
           ("kq_lint_" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) + "_" +
            ::testing::UnitTest::GetInstance()->current_test_info()->name());
    std::filesystem::remove_all(dir_);
    std::filesystem::create_directories(dir_);
  }
  void TearDown() override { std::filesystem::remove_all(dir_); }
  void Touch(const std::string& name) { std::ofstream(dir_ / name) << "x"; }

  // The warnings as "line code" and the errors, which must be none.
  std::vector<std::string> Warnings() {
    std::vector<std::string> v;
    for (const auto& f : check::Lint(list().ListCount())) {
      EXPECT_EQ(f.severity, check::Severity::Warning) << f.message;
      v.push_back(std::to_string(f.line) + " " + f.code);
    }
    return v;
  }
  check::Finding Only(const std::string& code) {
    check::Finding found;
    int n = 0;
    for (const auto& f : check::Lint(list().ListCount())) {
      if (f.code == code) {
        found = f;
        ++n;
      }
    }
    EXPECT_EQ(n, 1) << code;
    return found;
  }
  std::filesystem::path dir_;
};

TEST_F(WarningsTest, ASoundProgramHasNone) {
  DeclareVariable(0, kVarLong, "Count");
  DeclarePath(kPathVoice, 0, "Prompts", dir_.string() + "/");
  Touch("hello.vox");
  Add("Start", Rec(18).Text(0, 28, "Prompts").Text(28, 16, "hello.vox"));
  Add("", Rec(7).Var(0, kVarLong, "Count").LabelRef(84, "Again", -1));
  Add("", Rec(4));
  Add("Again", Rec(10).LabelRef(0, "Start", -1));
  EXPECT_EQ(Warnings(), std::vector<std::string>{});
}

TEST_F(WarningsTest, DeclarationsNoLineUsesComeFirst) {
  DeclareVariable(0, kVarLong, "Used");
  DeclareVariable(1, kVarString, "Idle");
  DeclareVariable(2, kVarDouble, "Used");  // same name, other type: not the used one
  DeclareVariable(3, kVarLong, "Column");  // bound to a column of a used table
  DeclarePath(kPathGeneral, 2, "Tools", "/tmp/");
  DeclareTable(0, "Orders");
  DeclareColumn(0, 0, kVarLong, "Column");
  DeclareTable(1, "Archive");
  Add("", Rec(11).Var(0, kVarLong, "Used"));
  Add("", Rec(26).Text(0, 16, "Orders"));
  const auto v = Warnings();
  EXPECT_EQ(v, (std::vector<std::string>{"-1 unused-variable", "-1 unused-variable",
                                         "-1 unused-path", "-1 unused-table"}));
  const auto all = check::Lint(list().ListCount());
  EXPECT_EQ(all[0].message, "Variable 'Idle' is declared but no line uses it.");
  EXPECT_EQ(all[2].message, "General path variable 'Tools' is declared but no line uses it.");
  EXPECT_EQ(all[3].message, "Database table 'Archive' is declared but no line uses it.");
}

TEST_F(WarningsTest, UnreachableRunsAndUnusedLabels) {
  Add("", Rec(10).LabelRef(0, "Here", -1));  // 0
  Add("", Rec(4));                           // 1 dead
  Add("Lost", Rec(4));                       // 2 dead, and nobody jumps to Lost
  Add("", Rec(13));                          // 3 a remark behind the jump: a comment
  Add("Here", Rec(14));                      // 4 Return without a Gosub
  Add("", Rec(13));                          // 5
  EXPECT_EQ(Warnings(), (std::vector<std::string>{"1 unreachable-line", "2 unused-label"}));
  EXPECT_EQ(Only("unreachable-line").message, "Lines 1 to 3 are never reached.");
  EXPECT_EQ(Only("unused-label").message, "Label 'Lost' of line 2 is never jumped to.");
}

TEST_F(WarningsTest, TimeoutsThatLeadNowhereUseful) {
  DeclareVariable(0, kVarLong, "Keys");
  Add("Ask", Rec(7).Var(0, kVarLong, "Keys").LabelRef(84, "Ask", -1));  // 0 to itself
  Add("", Rec(7).Var(0, kVarLong, "Keys").LabelRef(84, "Go", -1));      // 1 onwards
  Add("Go", Rec(13));                                                   // 2
  Add("Wait", Rec(20).Label(0, "Ask").Label(16 * 18, "Loop"));          // 3 via a Goto
  Add("Loop", Rec(10).LabelRef(0, "Wait", -1));                         // 4
  Add("", Rec(7).Var(0, kVarLong, "Keys").LabelRef(84, "Ask", -1));     // 5 sound
  Add("", Rec(43));                                                     // 6
  const auto v = Warnings();
  EXPECT_EQ(v, (std::vector<std::string>{"0 timeout-nowhere", "1 timeout-nowhere",
                                         "3 timeout-nowhere", "5 unreachable-line"}));
}

TEST_F(WarningsTest, VoiceFilesMissingOrCutShortInTheirFolder) {
  DeclarePath(kPathVoice, 0, "Prompts", dir_.string() + "/");
  DeclarePath(kPathNumber, 0, "Digits", "/tmp/");
  Touch("hello.vox");
  Touch("averylongname.vox");  // 17 characters: a field holds 15 of them
  Add("", Rec(18)
              .Text(0, 28, "Prompts")
              .Text(28, 16, "hello.vox")
              .Text(44, 16, "gone.vox")
              .Text(60, 16, "averylongname.v"));
  Add("", Rec(16)
              .Var(0, kConstLong, "1")
              .I32(60, 1)
              .I32(64, 0)
              .Text(68, 28, "Prompts")
              .Text(124, 28, "Digits")
              .Text(152, 16, "x.vox"));
  const auto v = Warnings();
  EXPECT_EQ(v, (std::vector<std::string>{"0 missing-voice-file", "0 name-cut-short",
                                         "1 missing-voice-file"}));
  const auto all = check::Lint(list().ListCount());
  EXPECT_EQ(all[0].message, "Voice file 'gone.vox' in line 0 is not in the folder '" +
                                dir_.string() + "/' of path 'Prompts'.");
  EXPECT_NE(all[1].message.find("'averylongname.vox'"), std::string::npos);
}

TEST_F(WarningsTest, NamesThatFillTheirField) {
  Add("", Rec(10).LabelRef(0, "Here", -1));
  // A label of 16 characters with no room for its end, as a file made elsewhere holds it.
  Add("Here", Rec(13));
  std::memcpy(LineTable[1].LineLabel, "ABCDEFGHIJKLMNOP", 16);
  Add("", Rec(10).LabelRef(0, "Here", -1));
  std::memcpy(FuncBlock[2], "QRSTUVWXYZABCDEF", 16);
  const auto findings = check::Lint(list().ListCount());
  std::vector<std::string> cut;
  for (const auto& f : findings) {
    if (f.code == "name-cut-short") cut.push_back(f.message);
  }
  EXPECT_EQ(cut, (std::vector<std::string>{
                     "Label 'ABCDEFGHIJKLMNOP' in line 1 fills its field of 16 characters without "
                     "its end: the name was cut short.",
                     "Label 'QRSTUVWXYZABCDEF' in line 2 fills its field of 16 characters without "
                     "its end: the name was cut short."}));
}

}  // namespace
}  // namespace kq::test
