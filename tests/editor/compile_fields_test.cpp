// Compile field by field: which label, variable, path and table fields of every live
// function each pass looks at.
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
