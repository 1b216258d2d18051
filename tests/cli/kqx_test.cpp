#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "cli/kqx.h"
#include "document/catalogue.h"
#include "document/document.h"
#include "document/state.h"
#include "document/text.h"
#include "tests/support/doc_fixture.h"

namespace {

using namespace kq;

class KqxTest : public kqtest::DocTest {
 protected:
  int Run(std::vector<std::string> args) {
    out_.str("");
    err_.str("");
    const int status = kqx::RunKqx(args, out_, err_);
    // The run took its platform and list away again; the builders need the test's own.
    ui::SetPlatform(&platform_);
    SetEditList(&host_.lstEdit);
    return status;
  }
  // A document with declarations and three lines, saved as `name`.
  std::string Sample(const std::string& name) {
    PrgHdr.Variable[0].VarRefType = kVarString;
    SetField(PrgHdr.Variable[0].VarRefName, "Caller");
    PrgHdr.Variable[3].VarRefType = kVarDouble;
    SetField(PrgHdr.Variable[3].VarRefName, "Amount");
    SetField(PrgHdr.Path[0][3].PathName, "Prompts");
    SetField(PrgHdr.Path[0][3].PathText, "/voice/");
    SetField(PrgHdr.Table[0].TableName, "Orders");
    PrgHdr.Table[0].Column[1] = PrgHdr.Variable[3];
    PrgHdr.CompiledFlag = -1;
    kqtest::AddLine(13, "Start", 1);
    kqtest::AddLine(4, "", 2);
    kqtest::AddLine(10, "", 3);
    const std::string path = TempPath(name);
    kqtest::SaveAll(path);
    return path;
  }
  std::ostringstream out_, err_;
};

TEST_F(KqxTest, InfoDescribesTheHeader) {
  const std::string path = Sample("app.kqx");
  ASSERT_EQ(Run({"info", path}), 0);
  EXPECT_EQ(out_.str(),
            R"({"version":"3.10","compiled":true,"lines":3,)"
            R"("variables":[{"name":"Caller","type":"String"},{"name":"Amount","type":"Double"}],)"
            R"("paths":{"A":[],"B":[],"C":[],"D":[{"name":"Prompts","path":"/voice/"}],"E":[]},)"
            R"("tables":[{"name":"Orders","columns":[null,"Amount",null,null,null,null,null,null,)"
            R"(null,null,null,null,null,null,null,null,null,null,null,null,null,null,null,null]}]})"
            "\n");
}

TEST_F(KqxTest, InfoGivesTheVersionAsTheFileHoldsIt) {
  auto bytes = kqtest::ReadBytes(Sample("app.kqx"));
  std::memcpy(bytes.data(), "3.09", 5);
  bytes.resize(84007);
  bytes.push_back(0);
  bytes.push_back(0);
  kqtest::WriteBytes(TempPath("old.kqx"), bytes);
  ASSERT_EQ(Run({"info", TempPath("old.kqx")}), 0);
  EXPECT_NE(out_.str().find(R"("version":"3.09","compiled":false,"lines":0,)"), std::string::npos);
}

TEST_F(KqxTest, LinesAreTrimmedUtf8) {
  const std::string path = Sample("app.kqx");
  ASSERT_EQ(Run({"lines", path}), 0);
  EXPECT_EQ(out_.str(),
            "0000\tStart\tRemark\tparameters of line 0 \xC3\x86\xC3\xA9\n"
            "0001\t\tDelay\tparameters of line 1 \xC3\x86\xC3\xA9\n"
            "0002\t\tGoto\tparameters of line 2 \xC3\x86\xC3\xA9\n");
}

TEST_F(KqxTest, ResaveKeepsACurrentFileByteForByte) {
  kqtest::FillDeclarations();
  kqtest::AddMixedLines(200);
  const std::string in = TempPath("in.kqx");
  kqtest::SaveAll(in);
  ASSERT_EQ(Run({"resave", in, TempPath("out.kqx")}), 0);
  EXPECT_TRUE(kqtest::ReadBytes(in) == kqtest::ReadBytes(TempPath("out.kqx")));
  EXPECT_EQ(out_.str(), "");
}

TEST_F(KqxTest, ResaveConvertsAnOlderFile) {
  auto bytes = kqtest::ReadBytes(Sample("app.kqx"));
  std::memcpy(bytes.data(), "3.09", 5);
  kqtest::WriteBytes(TempPath("old.kqx"), bytes);
  ASSERT_EQ(Run({"resave", TempPath("old.kqx"), TempPath("new.kqx")}), 0);
  auto converted = kqtest::ReadBytes(TempPath("new.kqx"));
  ASSERT_EQ(converted.size(), bytes.size());
  EXPECT_EQ(std::memcmp(converted.data(), "3.10", 5), 0);
  EXPECT_EQ(converted[5], 0);  // no longer compiled
  EXPECT_TRUE(std::equal(converted.begin() + 7, converted.end(), bytes.begin() + 7));
}

TEST_F(KqxTest, RefusalsPrintTheBoxAndExitWithOne) {
  EXPECT_EQ(Run({"lines", TempPath("none.kqx")}), 1);
  EXPECT_EQ(out_.str(),
            R"({"event":"msgbox","title":"File Error","text":"File none.kqx doesn't exist.",)"
            R"("icon":"exclamation","buttons":"OK","answer":"OK","default":true})"
            "\n");
  std::vector<uint8_t> old(84009, 0);
  std::memcpy(old.data(), "2.05", 5);
  kqtest::WriteBytes(TempPath("old.kqx"), old);
  EXPECT_EQ(Run({"info", TempPath("old.kqx")}), 1);
  EXPECT_NE(out_.str().find("must be manually ported"), std::string::npos);
}

// A damaged file is refused through every command, and resave writes nothing (which damages
// the reader finds, FileTest.DamagedFilesLeaveTheDocumentAsItWas and the corpus replay
// walk).
TEST_F(KqxTest, DamagedFilesAreRefusedWithOne) {
  const auto bytes = kqtest::ReadBytes(Sample("app.kqx"));
  kqtest::WriteBytes(TempPath("bad.kqx"), {bytes.begin(), bytes.end() - 2});
  const std::string box =
      R"({"event":"msgbox","title":"File Error","text":"File bad.kqx is damaged.",)"
      R"("icon":"exclamation","buttons":"OK","answer":"OK","default":true})"
      "\n";
  EXPECT_EQ(Run({"info", TempPath("bad.kqx")}), 1);
  EXPECT_EQ(out_.str(), box);
  EXPECT_EQ(Run({"lines", TempPath("bad.kqx")}), 1);
  EXPECT_EQ(out_.str(), box);
  EXPECT_EQ(Run({"resave", TempPath("bad.kqx"), TempPath("out.kqx")}), 1);
  EXPECT_EQ(out_.str(), box);
  EXPECT_FALSE(std::filesystem::exists(TempPath("out.kqx")));
}

TEST_F(KqxTest, ProgramErrorEndsWithTwo) {
  kqtest::WriteBytes(TempPath("bad.kqx"), {'a', 'b', 'c', 'd', 'e'});
  EXPECT_EQ(Run({"info", TempPath("bad.kqx")}), 2);
  const std::string text = out_.str();
  EXPECT_NE(text.find(R"("title":"Program Error")"), std::string::npos);
  EXPECT_NE(
      text.find(
          R"({"event":"programend","text":"String 'abcde' not terminated with null character in Global RTrimZ."})"),
      std::string::npos);
}

// The help lists every command; a command's help shows its own arguments and options.
TEST_F(KqxTest, HelpAndVersionGoToStandardOutput) {
  ASSERT_EQ(Run({"--help"}), 0);
  EXPECT_EQ(err_.str(), "");
  for (const char* command : {"info", "lines", "resave", "compile", "list", "convert", "script"}) {
    EXPECT_NE(out_.str().find(std::string("\n  ") + command), std::string::npos) << command;
  }
  ASSERT_EQ(Run({"list", "--help"}), 0);
  EXPECT_NE(out_.str().find("kqx list"), std::string::npos);
  EXPECT_NE(out_.str().find("--now"), std::string::npos);
  EXPECT_EQ(out_.str().find("--screen"), std::string::npos);  // that is script's
  ASSERT_EQ(Run({"script", "-h"}), 0);
  EXPECT_NE(out_.str().find("--screen"), std::string::npos);

  ASSERT_EQ(Run({"--version"}), 0);
  EXPECT_EQ(out_.str(), std::string("kqx ") + kqx::Version() + "\n");
  EXPECT_EQ(err_.str(), "");
}

// Every wrong command line names the fault and shows the usage of what was asked for on
// the error stream, and runs nothing.
TEST_F(KqxTest, WrongUseExitsWith64) {
  const std::string path = Sample("app.kqx");
  const std::vector<std::pair<std::vector<std::string>, std::string>> wrong = {
      {{}, "kqx [OPTIONS] SUBCOMMAND"},
      {{"frobnicate"}, "kqx [OPTIONS] SUBCOMMAND"},
      {{"info"}, "kqx info"},
      {{"info", path, "extra"}, "kqx info"},
      {{"lines", path, "--colour"}, "kqx lines"},
      {{"resave", path}, "kqx resave"},
      {{"compile", path, "-o"}, "kqx compile"},
      {{"list", path, "--now"}, "kqx list"},
      {{"convert", "a.wav", "b.vox", "--format", "100"}, "kqx convert"},
  };
  for (const auto& [args, usage] : wrong) {
    const std::string shown = args.empty() ? "(none)" : args.back();
    EXPECT_EQ(Run(args), kqx::kExitUsage) << shown;
    EXPECT_EQ(out_.str(), "") << shown;
    EXPECT_EQ(err_.str().rfind("kqx: ", 0), 0u) << shown;
    EXPECT_NE(err_.str().find("Usage: " + usage), std::string::npos) << err_.str();
  }
  EXPECT_NE(err_.str().find("--format"), std::string::npos);
}

// The program itself, as a user runs it.
TEST_F(KqxTest, EndToEnd) {
  const std::string path = Sample("app.kqx");
  const std::string out = TempPath("out.txt");
  const std::string kqx = KQX_PROGRAM;
  EXPECT_EQ(std::system((kqx + " lines " + path + " > " + out).c_str()), 0);
  std::ifstream in(out);
  std::string first;
  std::getline(in, first);
  EXPECT_EQ(first, "0000\tStart\tRemark\tparameters of line 0 \xC3\x86\xC3\xA9");
  EXPECT_EQ(WEXITSTATUS(std::system((kqx + " info " + TempPath("x.kqx") + " > " + out).c_str())),
            1);
  EXPECT_EQ(WEXITSTATUS(std::system((kqx + " resave " + path + " " + TempPath("r.kqx")).c_str())),
            0);
  EXPECT_TRUE(kqtest::ReadBytes(path) == kqtest::ReadBytes(TempPath("r.kqx")));
  EXPECT_EQ(WEXITSTATUS(std::system((kqx + " --version > " + out).c_str())), 0);
  EXPECT_EQ(WEXITSTATUS(std::system((kqx + " resave " + path + " 2> " + out).c_str())), 64);
  std::ifstream usage(out);
  std::getline(usage, first);
  EXPECT_EQ(first.rfind("kqx: ", 0), 0u) << first;
}

}  // namespace
