// The control flow: on random documents the edges are exactly the label references of the
// records (each to the last line carrying the label) plus the fall-throughs; on small
// programs the keywords, the ways back of Return, the blocks and reachability.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <tuple>

#include "check/flow.h"
#include "document/state.h"
#include "document/text.h"
#include "tests/support/doc_builder.h"
#include "tests/support/random_doc.h"
#include "tests/support/record_layouts.h"

namespace kq::test {
namespace {

using check::EdgeKind;

class FlowTest : public ::testing::Test, public DocFixture {
 protected:
  int Lines() { return list().ListCount(); }
  int LastLineOf(const std::string& field16) {
    int found = -1;
    for (int l = 0; l < Lines(); ++l) {
      if (!FieldEmpty(View(LineTable[l].LineLabel)) && View(LineTable[l].LineLabel) == field16) {
        found = l;
      }
    }
    return found;
  }
  // (from, to) of every edge that is not a way back of Return.
  static std::multiset<std::pair<int, int>> Pairs(const check::FlowGraph& g) {
    std::multiset<std::pair<int, int>> s;
    for (const auto& e : g.edges) {
      if (e.kind != EdgeKind::Return) s.insert({e.from, e.to});
    }
    return s;
  }
  std::vector<std::tuple<int, int, EdgeKind, std::string>> EdgesFrom(const check::FlowGraph& g,
                                                                     int line) {
    std::vector<std::tuple<int, int, EdgeKind, std::string>> v;
    for (const auto& e : g.edges) {
      if (e.from == line) v.emplace_back(e.from, e.to, e.kind, e.label);
    }
    return v;
  }
};

TEST_F(FlowTest, EdgesAreTheLabelReferencesPlusTheFallThroughs) {
  std::mt19937 rng(1124);
  size_t jumps = 0;
  for (int round = 0; round < 800; ++round) {
    RandomDocOptions options;
    options.maxLines = round % 10 == 0 ? 120 : 30;
    options.faultRate = 0.05;
    options.illegalRate = 0;
    BuildRandomDocument(list(), rng, options);
    std::multiset<std::pair<int, int>> expected;
    for (int line = 0; line < Lines(); ++line) {
      const Rec r = LineRecord(line);
      const std::string_view rec(reinterpret_cast<const char*>(r.bytes.data()), r.bytes.size());
      auto refer = [&](int offset) {
        const std::string_view name = rec.substr(static_cast<size_t>(offset), 16);
        if (FieldEmpty(name)) return;
        const int to = LastLineOf(std::string(name));
        if (to >= 0) expected.insert({line, to});
      };
      for (const FieldSpec& s : RecordFields(r.funcNo)) {
        // Insert Record's second label is never resolved, so nothing follows it.
        if (s.kind == FieldSpec::LabelRef && !(r.funcNo == 30 && s.offset == 36)) refer(s.offset);
        if (s.kind == FieldSpec::LabelArray) {
          for (int i = 0; i < s.count; ++i) refer(s.offset + 16 * i);
        }
      }
      jumps += expected.size();
      // Falling through: never after Goto, Gosub and Return, nor after a branch with both
      // targets, nor from the last line.
      bool next = line + 1 < Lines();
      const int f = r.funcNo;
      if (f == 9 || f == 10 || f == 14) next = false;
      if (f == 3 && !FieldEmpty(rec.substr(84, 16))) next = false;
      if (f == 49 && !FieldEmpty(rec.substr(32, 16)) && !FieldEmpty(rec.substr(48, 16)))
        next = false;
      if ((f == 50 || f == 51) && !FieldEmpty(rec.substr(64, 16)) &&
          !FieldEmpty(rec.substr(80, 16))) {
        next = false;
      }
      if (next) expected.insert({line, line + 1});
    }
    const check::FlowGraph g = check::BuildFlow(Lines());
    ASSERT_EQ(Pairs(g), expected) << "round " << round;
  }
  EXPECT_GT(jumps, 5000u);
}

TEST_F(FlowTest, EdgesCarryTheKeywordsTheDisplayLineWrites) {
  Add("Start", Rec(20)
                   .Label(0, "Menu")                           // key 0
                   .Label(16 * 10, "Menu")                     // key #
                   .Label(16 * 16, "Bye")                      // hangup
                   .Label(16 * 18, "Start"));                  // timeout or error
  Add("Menu", Rec(5).Label(0, "Bye").Label(16 * 4, "Start"));  // busy tone, no answer
  Add("", Rec(3).Label(68, "Bye").Label(84, "Menu"));          // THEN, ELSE
  Add("", Rec(32).Text(0, 16, "T").LabelRef(16, "Bye", -1).LabelRef(36, "Menu", -1));
  Add("Bye", Rec(43));
  const check::FlowGraph g = check::BuildFlow(Lines());
  using T = std::tuple<int, int, EdgeKind, std::string>;
  EXPECT_EQ(EdgesFrom(g, 0), (std::vector<T>{{0, 1, EdgeKind::Key, "0"},
                                             {0, 1, EdgeKind::Key, "#"},
                                             {0, 4, EdgeKind::Key, "H"},
                                             {0, 0, EdgeKind::Key, "T/E"},
                                             {0, 1, EdgeKind::Next, ""}}));
  EXPECT_EQ(EdgesFrom(g, 1), (std::vector<T>{{1, 4, EdgeKind::Outcome, "BusyTone"},
                                             {1, 0, EdgeKind::Outcome, "NoAnsw"},
                                             {1, 2, EdgeKind::Next, ""}}));
  EXPECT_EQ(EdgesFrom(g, 2),
            (std::vector<T>{{2, 4, EdgeKind::Then, "THEN"}, {2, 1, EdgeKind::Else, "ELSE"}}));
  EXPECT_EQ(EdgesFrom(g, 3), (std::vector<T>{{3, 4, EdgeKind::Outcome, "E"},
                                             {3, 1, EdgeKind::Outcome, "ND"},
                                             {3, 4, EdgeKind::Next, ""}}));
  EXPECT_TRUE(EdgesFrom(g, 4).empty());  // the last line goes nowhere
}

TEST_F(FlowTest, ReturnGoesBackBehindEveryGosubThatReachesIt) {
  Add("", Rec(9).LabelRef(0, "Sub", -1));      // 0 Gosub Sub
  Add("", Rec(9).LabelRef(0, "Other", -1));    // 1 Gosub Other
  Add("", Rec(10).LabelRef(0, "End", -1));     // 2 Goto End
  Add("Sub", Rec(13));                         // 3
  Add("", Rec(9).LabelRef(0, "Other", -1));    // 4 nested call
  Add("", Rec(14));                            // 5 Return (of Sub)
  Add("Other", Rec(4));                        // 6
  Add("", Rec(14));                            // 7 Return (of Other)
  Add("End", Rec(10).LabelRef(0, "End", -1));  // 8 waits here for ever
  Add("", Rec(43));                            // 9 never reached
  const check::FlowGraph g = check::BuildFlow(Lines());
  std::multiset<std::pair<int, int>> back;
  for (const auto& e : g.edges) {
    if (e.kind == EdgeKind::Return) back.insert({e.from, e.to});
  }
  EXPECT_EQ(back, (std::multiset<std::pair<int, int>>{{5, 1}, {7, 2}, {7, 5}}));
  const std::vector<bool> seen = check::Reachable(g);
  EXPECT_EQ(seen, (std::vector<bool>{true, true, true, true, true, true, true, true, true, false}));
  // Blocks start at line 0, at labels and behind jumps.
  EXPECT_EQ(g.blockStarts, (std::vector<int>{0, 1, 2, 3, 5, 6, 8, 9}));
}

TEST_F(FlowTest, BranchesFallThroughOnlyWithoutTheirSecondTarget) {
  Add("A", Rec(49).I32(0, 68).Label(32, "A"));                // Check Path, THEN only
  Add("", Rec(49).I32(0, 68).Label(32, "A").Label(48, "A"));  // both: no way on
  Add("", Rec(50).I32(0, 68).Label(80, "A"));                 // ELSE only: CONTINUE
  Add("", Rec(3).Label(68, "A"));                             // THEN only
  Add("", Rec(43));
  const check::FlowGraph g = check::BuildFlow(Lines());
  auto falls = [&](int line) {
    for (const auto& e : g.edges) {
      if (e.from == line && e.kind == EdgeKind::Next) return true;
    }
    return false;
  };
  EXPECT_TRUE(falls(0));
  EXPECT_FALSE(falls(1));
  EXPECT_TRUE(falls(2));
  EXPECT_TRUE(falls(3));
}

}  // namespace
}  // namespace kq::test
