// The function table against the catalogue and against the record layouts the tests keep
// by hand: every field the table names must start where the layout has a field of that
// kind, so that a wrong offset or kind in either is found.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "document/catalogue.h"
#include "document/function_table.h"
#include "document/records.h"
#include "tests/support/record_layouts.h"

namespace {

using namespace kq;
using kq::test::FieldSpec;
using kq::test::RecordFields;

// True when the layout has an entry of `kind` whose entries (width apart) include `offset`.
bool LayoutHas(int funcNo, FieldSpec::Kind kind, int offset, int width) {
  for (const FieldSpec& s : RecordFields(funcNo)) {
    if (s.kind != kind) continue;
    for (int i = 0; i < s.count; ++i) {
      if (s.offset + i * width == offset) return true;
    }
  }
  return false;
}
bool LayoutHasText(int funcNo, int offset, int width) {
  for (const FieldSpec& s : RecordFields(funcNo)) {
    if (s.kind != FieldSpec::Text || s.width != width) continue;
    for (int i = 0; i < s.count; ++i) {
      if (s.offset + i * s.width == offset) return true;
    }
  }
  return false;
}
bool LayoutHasFlag(int funcNo, int offset) {
  return LayoutHas(funcNo, FieldSpec::Flag, offset, 4) ||
         LayoutHas(funcNo, FieldSpec::Number, offset, 4);
}

TEST(FunctionTable, SlotsMatchTheCatalogueAndTheRecordSet) {
  int live = 0;
  int previousEnd = 0;
  RecordSet set{};
  for (int n = 0; n < kFuncCount; ++n) {
    const FunctionInfo& f = kFunctions[static_cast<size_t>(n)];
    SCOPED_TRACE(n);
    EXPECT_EQ(ToInt(f.fn), n);
    EXPECT_EQ(f.live(), IsLiveFunction(n));
    EXPECT_EQ(f.size, kCatalogueLength[n]);
    if (!f.live()) {
      EXPECT_EQ(set.Image(n), nullptr);
      EXPECT_TRUE(f.vars.empty() && f.paths.empty() && f.labels.empty());
      continue;
    }
    ++live;
    ASSERT_NE(f.record, nullptr);
    // The records follow each other in the set in catalogue order, without overlapping.
    EXPECT_GE(f.at, previousEnd);
    previousEnd = f.at + f.size;
    EXPECT_EQ(set.Image(n), reinterpret_cast<uint8_t*>(&set) + f.at);
  }
  EXPECT_EQ(live, 52);
  EXPECT_LE(previousEnd, static_cast<int>(sizeof(RecordSet)));
  EXPECT_EQ(FunctionOf(-1), nullptr);
  EXPECT_EQ(FunctionOf(kFuncCount), nullptr);
  EXPECT_EQ(FunctionOf(Fn::Voice).record, std::string("VoiceRec"));
}

TEST(FunctionTable, EveryFieldStartsAtAFieldOfItsKind) {
  for (int n = 0; n < kFuncCount; ++n) {
    const FunctionInfo& f = kFunctions[static_cast<size_t>(n)];
    if (!f.live()) continue;
    SCOPED_TRACE(n);
    for (const VarField& v : f.vars) {
      for (int i = 0; i < v.count; ++i) {
        EXPECT_TRUE(LayoutHas(n, FieldSpec::Var, v.offset + 32 * i, 32)) << v.offset + 32 * i;
      }
      if (v.guard >= 0) {
        EXPECT_TRUE(LayoutHasFlag(n, v.guard)) << v.guard;
      }
      EXPECT_LE(v.offset + 32 * v.count, f.size);
    }
    for (const PathField& p : f.paths) {
      for (int i = 0; i < p.count; ++i) {
        EXPECT_TRUE(LayoutHasText(n, p.offset + 28 * i, 28)) << p.offset + 28 * i;
      }
      if (p.typeOffset >= 0) {
        EXPECT_TRUE(LayoutHas(n, FieldSpec::PathType, p.typeOffset, 4));
      } else {
        EXPECT_GE(p.type, kPathExport);
        EXPECT_LE(p.type, kPathGeneral);
      }
      if (p.guard >= 0) {
        EXPECT_TRUE(LayoutHasFlag(n, p.guard)) << p.guard;
      }
    }
    for (const LabelField& l : f.labels) {
      if (l.form == LabelForm::Ref) {
        EXPECT_TRUE(LayoutHas(n, FieldSpec::LabelRef, l.name, 20)) << l.name;
        EXPECT_EQ(l.line, l.name + 16);
        continue;
      }
      bool found = false;
      for (const FieldSpec& s : RecordFields(n)) {
        if (s.kind == FieldSpec::LabelArray && s.offset == l.name) {
          found = true;
          EXPECT_EQ(s.lineOffset, l.line);
          EXPECT_EQ(s.count, l.count);
        }
      }
      EXPECT_TRUE(found) << l.name;
      EXPECT_LE(l.mandatory, l.count);
    }
    if (f.table >= 0) {
      EXPECT_TRUE(LayoutHasText(n, f.table, 16)) << f.table;
    }
    if (f.where) {
      EXPECT_TRUE(LayoutHas(n, FieldSpec::Var, static_cast<int>(kWhereValue), 32));
      EXPECT_TRUE(LayoutHas(n, FieldSpec::Number, static_cast<int>(kWhereColumn), 4));
    }
  }
}

// Every label the layout holds is resolved by compile, and every table name is checked:
// a field left out of the table would go unresolved or unchecked.
TEST(FunctionTable, CompileLooksAtEveryLabelAndTable) {
  for (int n = 0; n < kFuncCount; ++n) {
    const FunctionInfo& f = kFunctions[static_cast<size_t>(n)];
    if (!f.live()) continue;
    SCOPED_TRACE(n);
    for (const FieldSpec& s : RecordFields(n)) {
      if (s.kind == FieldSpec::LabelRef || s.kind == FieldSpec::LabelArray) {
        bool listed = false;
        for (const LabelField& l : f.labels) listed = listed || l.name == s.offset;
        // Insert Record keeps a No Data label that nothing resolves.
        if (n == ToInt(Fn::InsertRecord) && s.offset == 36) {
          EXPECT_FALSE(listed);
        } else {
          EXPECT_TRUE(listed) << s.offset;
        }
      }
    }
    const bool namesTable = (n >= ToInt(Fn::ConnectTable) && n <= ToInt(Fn::UpdateRecord)) ||
                            n == ToInt(Fn::GetRecordNo) || n == ToInt(Fn::GetNoOfRec) ||
                            n == ToInt(Fn::EmptyTable) || n == ToInt(Fn::Prototype);
    EXPECT_EQ(f.table >= 0, namesTable);
  }
}

// What the dialogs check before opening: a need of a kind goes with the check of it.
TEST(FunctionTable, DeclarationNeedsAgreeWithTheirChecks) {
  for (const FunctionInfo& f : kFunctions) {
    SCOPED_TRACE(ToInt(f.fn));
    if (f.needs & kNeedsVar) {
      EXPECT_NE(f.varNeed, VarNeed::None);
    }
    EXPECT_EQ((f.needs & kNeedsPath) != 0, f.pathNeed != PathNeed::None);
    if (f.needs & kNeedsTable) {
      EXPECT_GE(f.table, 0);
    }
  }
}

}  // namespace
