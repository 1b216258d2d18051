// kqx lint and kqx graph: their output forms, exit statuses and bad input.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "cli/kqx.h"
#include "document/state.h"
#include "tests/support/doc_builder.h"
#include "tests/support/doc_fixture.h"

namespace {

using namespace kq;
using kq::test::Rec;

class LintGraphCliTest : public kqtest::DocTest {
 protected:
  int Run(std::vector<std::string> args) {
    out_.str("");
    err_.str("");
    const int status = kqx::RunKqx(args, out_, err_);
    ui::SetPlatform(&platform_);
    SetEditList(&host_.lstEdit);
    return status;
  }
  // Line 1 names an undeclared variable, line 3 a label nobody carries; line 2 is dead.
  std::string Faulty() {
    test::DeclareVariable(0, kVarLong, "Idle");
    test::AddLine(list(), "", Rec(11).Var(0, kVarLong, "Ghost"));  // Random
    test::AddLine(list(), "", Rec(10).LabelRef(0, "Nowhere", -1));
    test::AddLine(list(), "", Rec(4));
    const std::string path = TempPath("faulty.kqx");
    kqtest::SaveAll(path);
    return path;
  }
  std::string Sound(bool withWarning) {
    if (withWarning) test::DeclareVariable(0, kVarLong, "Idle");
    test::AddLine(list(), "Top", Rec(4));
    test::AddLine(list(), "", Rec(10).LabelRef(0, "Top", -1));
    const std::string path = TempPath("sound.kqx");
    kqtest::SaveAll(path);
    return path;
  }
  std::ostringstream out_, err_;
};

TEST_F(LintGraphCliTest, LintWritesJsonLinesAndFailsOnErrors) {
  const std::string path = Faulty();
  EXPECT_EQ(Run({"lint", path}), 1);
  EXPECT_EQ(out_.str(), R"({"severity":"error","line":0,"code":"undefined-variable","message":)"
                        R"("Variable 'Ghost' in line 0 is not defined or data type mismatch."})"
                        "\n"
                        R"({"severity":"error","line":1,"code":"label-not-found","message":)"
                        R"("Label 'Nowhere' not found in line 1"})"
                        "\n"
                        R"({"severity":"warning","line":-1,"code":"unused-variable","message":)"
                        R"("Variable 'Idle' is declared but no line uses it."})"
                        "\n"
                        R"({"severity":"warning","line":2,"code":"unreachable-line","message":)"
                        R"("Line 2 is never reached."})"
                        "\n");
  EXPECT_EQ(err_.str(), "");
}

TEST_F(LintGraphCliTest, LintTextFormFollowsFileLineSeverity) {
  const std::string path = Faulty();
  EXPECT_EQ(Run({"lint", path, "--format", "text"}), 1);
  std::istringstream lines(out_.str());
  std::string first, second, third;
  std::getline(lines, first);
  std::getline(lines, second);
  std::getline(lines, third);
  EXPECT_EQ(first,
            path + ":0: error: Variable 'Ghost' in line 0 is not defined or data type mismatch.");
  EXPECT_EQ(second, path + ":1: error: Label 'Nowhere' not found in line 1");
  EXPECT_EQ(third, path + ": warning: Variable 'Idle' is declared but no line uses it.");
}

TEST_F(LintGraphCliTest, WarningsFailOnlyWithWerror) {
  const std::string path = Sound(true);
  EXPECT_EQ(Run({"lint", path}), 0);
  EXPECT_NE(out_.str().find("\"warning\""), std::string::npos);
  EXPECT_EQ(Run({"lint", "--werror", path}), 1);
}

TEST_F(LintGraphCliTest, ASoundProgramPassesEvenWithWerror) {
  EXPECT_EQ(Run({"lint", Sound(false), "--werror"}), 0);
  EXPECT_EQ(out_.str(), "");
}

TEST_F(LintGraphCliTest, BadInputIsRefusedWithAMessageAndNothingWritten) {
  const std::string missing = TempPath("missing.kqx");
  EXPECT_EQ(Run({"lint", missing}), 1);
  EXPECT_NE(err_.str().find("no such file"), std::string::npos);
  EXPECT_EQ(out_.str(), "");
  EXPECT_FALSE(std::filesystem::exists(missing));  // not created by the open
  EXPECT_EQ(Run({"graph", missing, "-o", TempPath("x.svg")}), 1);
  EXPECT_FALSE(std::filesystem::exists(TempPath("x.svg")));

  const std::string damaged = TempPath("damaged.kqx");
  std::ofstream(damaged, std::ios::binary) << std::string("3.10\0and then nothing", 21);
  EXPECT_EQ(Run({"lint", damaged}), 1);
  EXPECT_NE(err_.str().find("damaged"), std::string::npos) << err_.str();
  EXPECT_EQ(out_.str(), "");

  const std::string path = Sound(false);
  for (std::vector<std::string> args : {std::vector<std::string>{"lint"},
                                        {"lint", path, "--format", "xml"},
                                        {"lint", path, "x"},
                                        {"graph"},
                                        {"graph", path, "-o"},
                                        {"graph", path, "--out", "x.dot"}}) {
    EXPECT_EQ(Run(args), kqx::kExitUsage) << args.size();
    EXPECT_NE(err_.str().find("Usage: kqx"), std::string::npos);
  }
  const std::string intoNothing = TempPath("no/such/folder/flow.svg");
  EXPECT_EQ(Run({"graph", path, "-o", intoNothing}), 1);
  EXPECT_NE(err_.str().find("cannot write"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(intoNothing));
}

TEST_F(LintGraphCliTest, GraphWritesDotOrSvgByTheFileName) {
  const std::string path = Sound(false);
  ASSERT_EQ(Run({"graph", path, "-o", TempPath("flow.dot")}), 0) << err_.str();
  std::stringstream dot;
  dot << std::ifstream(TempPath("flow.dot")).rdbuf();
  EXPECT_NE(dot.str().find("L1 -> L0"), std::string::npos);
  EXPECT_NE(dot.str().find("L0 -> L1"), std::string::npos);
  ASSERT_EQ(Run({"graph", path, "-o", TempPath("flow.svg")}), 0) << err_.str();
  std::stringstream svg;
  svg << std::ifstream(TempPath("flow.svg")).rdbuf();
  EXPECT_NE(svg.str().find("<svg"), std::string::npos);
  ASSERT_EQ(Run({"graph", path}), 0);
  EXPECT_NE(out_.str().find("digraph"), std::string::npos);
}

}  // namespace
