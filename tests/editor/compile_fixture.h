// The fixture of the compile tests: three declared variables, the boxes shown, the
// selected lines, and a record of any function whose every reference is satisfied.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "document/state.h"
#include "tests/support/doc_builder.h"
#include "tests/support/record_layouts.h"

namespace kq::test {

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

}  // namespace kq::test
