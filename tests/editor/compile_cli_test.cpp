// kqx compile and kqx list, run in-process on files saved from documents built here.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "cli/kqx.h"
#include "document/file.h"
#include "document/state.h"
#include "editor/listing.h"
#include "tests/support/doc_builder.h"
#include "tests/support/test_text.h"

namespace kq::test {
namespace {

namespace fs = std::filesystem;

class KqxCommandsTest : public ::testing::Test, public DocFixture {
 protected:
  void SetUp() override {
    dir = fs::temp_directory_path() / ("kq_cnp_cli_" + std::to_string(::getpid()));
    fs::create_directories(dir);
    DeclareVariable(0, kVarLong, "Count");
  }
  void TearDown() override { fs::remove_all(dir); }
  std::string Save(const std::string& name) {
    std::string title = name;
    std::string path = (dir / name).string();
    int16_t count = static_cast<int16_t>(list().ListCount());
    SaveFile(title, path, true, 0, count - 1, count);
    return path;
  }
  int Run(std::vector<std::string> args) {
    out.str("");
    err.str("");
    const int status = kqx::RunKqx(args, out, err);
    ui::SetPlatform(&platform);
    SetEditList(&host->lstEdit);
    return status;
  }
  std::vector<std::string> OutLines() {
    std::vector<std::string> lines;
    std::istringstream in(out.str());
    for (std::string l; std::getline(in, l);) lines.push_back(l);
    return lines;
  }
  fs::path dir;
  std::ostringstream out, err;
};

TEST_F(KqxCommandsTest, CompileSavesTheResolvedDocument) {
  Add("", Rec(10).LabelRef(0, "End", -1));
  Add("End", Rec(41).Var(0, kVarLong, "Count"));
  const std::string in = Save("app.kqx");
  const std::string outPath = (dir / "out.kqx").string();
  ASSERT_EQ(Run({"compile", in, "-o", outPath}), 0) << err.str();
  EXPECT_EQ(
      OutLines(),
      (std::vector<std::string>{
          R"({"event":"msgbox","title":"Compile Information","text":"Successfully compilation...","icon":"exclamation","buttons":"OK","answer":"OK","default":true})",
          R"({"event":"result","compiled":true,"selected":[0]})"}));
  // The saved document is compiled and holds the line number.
  std::string title = "out.kqx", name = outPath;
  OpenFile(title, name);
  EXPECT_EQ(PrgHdr.CompiledFlag, -1);
  EXPECT_EQ(LineRecord(0).I32At(16), 1);
  EXPECT_NE(ReadText(in), ReadText(outPath));
}

TEST_F(KqxCommandsTest, CompileErrorSavesNothing) {
  Add("", Rec(13));
  Add("", Rec(10).LabelRef(0, "Gone", -1));
  const std::string in = Save("bad.kqx");
  const std::string before = ReadText(in);
  ASSERT_EQ(Run({"compile", in}), 1);
  const auto lines = OutLines();
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_NE(
      lines[0].find(
          R"("title":"Compilation Error - GetLineNo","text":"Label 'Gone' not found in line 1")"),
      std::string::npos);
  EXPECT_EQ(lines[1], R"({"event":"result","compiled":false,"selected":[1]})");
  EXPECT_EQ(ReadText(in), before);
}

TEST_F(KqxCommandsTest, CompileProgramErrorExitsWithTwo) {
  Add("", Rec(41));  // no variable chosen: a state the dialogs never let through
  const std::string in = Save("prog.kqx");
  ASSERT_EQ(Run({"compile", in}), 2);
  EXPECT_NE(out.str().find(R"("event":"programend")"), std::string::npos);
}

TEST_F(KqxCommandsTest, CompileUsage) {
  EXPECT_EQ(Run({"compile"}), kqx::kExitUsage);
  EXPECT_EQ(Run({"compile", "a", "-x", "b"}), kqx::kExitUsage);
  EXPECT_NE(err.str().find("Usage: kqx compile [OPTIONS] IN"), std::string::npos) << err.str();
}

TEST_F(KqxCommandsTest, ListWritesTheListingText) {
  Add("Top", Rec(4).I32(0, 20));
  const std::string in = Save("list.kqx");
  ASSERT_EQ(Run({"list", in, "--now", "2026-01-02 03:04:05"}), 0) << err.str();
  const std::string expected =
      "Date/Time: 2026-01-02 03:04:05\r\n"
      "File Name: " +
      in +
      "\r\n"
      "Compiled : No            KQEdit V3.10.00           KQX File Format V3.10\r\n"
      "\r\n"
      "Declared Variables:\r\n"
      "\r\n"
      "Count As Long      \r\n"
      "\r\n"
      "Declared Database Tables:\r\n"
      "\r\n"
      "Voice/Response Application Code:\r\n"
      "\r\n"
      "0000  Top               Delay              \r\n" +
      std::string(26, ' ') + "20ms\r\n";
  EXPECT_EQ(out.str(), expected);
  const std::string file = (dir / "list.TXT").string();
  ASSERT_EQ(Run({"list", in, "-o", file, "--now", "2026-01-02 03:04:05"}), 0);
  EXPECT_EQ(ReadText(file), expected);
  EXPECT_EQ(out.str(), "");
}

TEST_F(KqxCommandsTest, ListOfAMissingFileIsRefused) {
  const std::string missing = (dir / "none.kqx").string();
  EXPECT_EQ(Run({"list", missing}), 1);
  EXPECT_EQ(out.str(), "");  // standard output holds only a listing
  EXPECT_NE(err.str().find("msgbox"), std::string::npos);
  EXPECT_EQ(Run({"list", missing, "-o", (dir / "none.TXT").string()}), 1);
  EXPECT_NE(out.str().find("msgbox"), std::string::npos);
}

TEST_F(KqxCommandsTest, ListFaultStopsWithWhatWasWritten) {
  Add("", Rec(43).I32(0, 5));
  const std::string in = Save("fault.kqx");
  EXPECT_EQ(Run({"list", in, "--now", "x"}), 1);
  EXPECT_NE(out.str().find("On/Off Hook"), std::string::npos);
  EXPECT_NE(err.str().find("the listing stops"), std::string::npos);
}

}  // namespace
}  // namespace kq::test
