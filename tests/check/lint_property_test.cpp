// Lint against compile on random documents: the first error is the very fault compile
// reports (its box and selected line, or its program error), a document that compiles
// has no error, every planted fault is listed, and lint changes nothing.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <vector>

#include "check/lint.h"
#include "document/state.h"
#include "editor/compile.h"
#include "tests/support/doc_builder.h"
#include "tests/support/random_doc.h"

namespace kq::test {
namespace {

struct Planted {
  int line;
  std::string code;
  std::string name;  // the name the message must carry
};

class LintPropertyTest : public ::testing::Test, public DocFixture {
 protected:
  int Lines() { return list().ListCount(); }

  void Replace(int line, const Rec& r) {
    LineTable[line].LineFuncNo = static_cast<int16_t>(r.funcNo);
    std::memset(FuncBlock[line], 0, kBlockSize);
    std::memcpy(FuncBlock[line], r.bytes.data(), r.bytes.size());
  }

  // Overwrites random lines with lines that carry one fault each, of every kind, and
  // declares a table column on a variable nobody declared.
  std::vector<Planted> Plant(std::mt19937& rng) {
    std::vector<Planted> planted;
    const int n = Lines();
    auto line = [&] { return static_cast<int>(rng() % static_cast<unsigned>(n)); };
    std::vector<int> used;
    auto fresh = [&] {
      for (int tries = 0; tries < 20; ++tries) {
        const int l = line();
        if (std::find(used.begin(), used.end(), l) == used.end()) {
          used.push_back(l);
          return l;
        }
      }
      return -1;
    };
    for (int kind = 0; kind < 7; ++kind) {
      if (rng() % 2) continue;
      const int l = fresh();
      if (l < 0) break;
      switch (kind) {
        case 0:  // Assign with an undeclared target
          Replace(l, Rec(0).Var(0, kVarLong, "Nobody").Var(32, kConstLong, "1"));
          planted.push_back({l, "undefined-variable", "Nobody"});
          break;
        case 1:  // Voice on an undeclared path
          Replace(l, Rec(18).Text(0, 28, "NoVoicePath"));
          planted.push_back({l, "undefined-path", "NoVoicePath"});
          break;
        case 2:  // Add Record on an undeclared table
          Replace(l, Rec(26).Text(0, 16, "NoSuchTable"));
          planted.push_back({l, "undefined-table", "NoSuchTable"});
          break;
        case 3:  // Goto a label no line carries
          Replace(l, Rec(10).LabelRef(0, "Vanished", -1));
          planted.push_back({l, "label-not-found", "Vanished"});
          break;
        case 4:  // Get Keys whose timeout label no line carries
          Replace(l, Rec(7).Var(0, kConstLong, "1").LabelRef(84, "NoTimeout", -1));
          planted.push_back({l, "label-not-found", "NoTimeout"});
          break;
        case 5: {  // a label carried twice
          const int other = fresh();
          if (other < 0) break;
          SetField(LineTable[l].LineLabel, "Twice");
          SetField(LineTable[other].LineLabel, "Twice");
          planted.push_back({std::min(l, other), "duplicate-label", "Twice"});
          break;
        }
        case 6:  // a declared column on an undeclared variable
          DeclareTable(40, "Planted");
          DeclareColumn(40, 0, kVarString, "NoColumnVar");
          planted.push_back({-1, "undefined-variable", "NoColumnVar"});
          break;
      }
    }
    return planted;
  }

  struct CompileOutcome {
    bool ok = false;
    std::string programError;
    std::string box;
    std::vector<int> selected;
  };
  CompileOutcome RunCompile() {
    CompileOutcome o;
    for (int i : list().SelectedIndexes()) list().SetSelected(i, false);
    platform.ClearEvents();
    try {
      o.ok = Compile();
    } catch (const ui::ProgramEnded& e) {
      o.programError = e.what();
    }
    const auto boxes = platform.EventsOf("msgbox");
    if (!boxes.empty()) o.box = boxes.front().fields["text"].Str();
    o.selected = list().SelectedIndexes();
    return o;
  }
};

TEST_F(LintPropertyTest, FirstErrorIsCompilesFaultAndPlantedFaultsAreListed) {
  std::mt19937 rng(20261124);
  int compiled = 0, boxes = 0, programErrors = 0, plantedSeen = 0;
  for (int round = 0; round < 1500; ++round) {
    RandomDocOptions options;
    options.maxLines = round % 10 == 0 ? 150 : 25;
    options.faultRate = round % 3 == 0 ? 0.0 : (round % 3 == 1 ? 0.01 : 0.05);
    options.illegalRate = round % 5 == 0 ? 0.01 : 0.0;
    BuildRandomDocument(list(), rng, options);
    const std::vector<Planted> planted = round % 2 ? Plant(rng) : std::vector<Planted>{};

    const std::vector<uint8_t> before(&FuncBlock[0][0], &FuncBlock[0][0] + Lines() * kBlockSize);
    const check::Findings findings = check::Lint(Lines());
    ASSERT_EQ(0, std::memcmp(before.data(), &FuncBlock[0][0], before.size())) << "lint wrote";
    ASSERT_TRUE(list().SelectedIndexes().empty());
    std::vector<const check::Finding*> errors;
    for (const auto& f : findings) {
      if (f.severity == check::Severity::Error) errors.push_back(&f);
    }
    const bool programError = !errors.empty() && errors.back()->code == "program-error";

    if (!programError) {
      for (const Planted& p : planted) {
        const bool listed = std::any_of(errors.begin(), errors.end(), [&](const auto* f) {
          return f->line == p.line && f->code == p.code &&
                 f->message.find("'" + p.name + "'") != std::string::npos;
        });
        EXPECT_TRUE(listed) << "round " << round << ": " << p.code << " " << p.name << " line "
                            << p.line;
        plantedSeen += listed;
      }
    }

    const CompileOutcome c = RunCompile();
    if (c.ok) {
      ++compiled;
      EXPECT_TRUE(errors.empty()) << "round " << round << ": " << errors.front()->message;
      continue;
    }
    ASSERT_FALSE(errors.empty()) << "round " << round << ": compile failed, lint found nothing";
    const check::Finding& first = *errors.front();
    if (!c.programError.empty()) {
      ++programErrors;
      EXPECT_EQ(first.code, "program-error") << "round " << round;
      EXPECT_EQ(first.message, c.programError) << "round " << round;
      EXPECT_EQ(errors.size() == 1, true) << "round " << round;
    } else {
      ++boxes;
      EXPECT_EQ(first.message, c.box) << "round " << round;
      if (first.line >= 0) {
        EXPECT_EQ(c.selected, std::vector<int>{first.line}) << "round " << round;
      } else {
        EXPECT_TRUE(c.selected.empty()) << "round " << round;
      }
      EXPECT_FALSE(programError && errors.size() == 1);
    }
  }
  // The rounds covered every outcome.
  EXPECT_GT(compiled, 50);
  EXPECT_GT(boxes, 200);
  EXPECT_GT(programErrors, 10);
  EXPECT_GT(plantedSeen, 500);
}

}  // namespace
}  // namespace kq::test
