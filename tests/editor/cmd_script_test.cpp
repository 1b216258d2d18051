// `kqx script` through the kqx entry point, with injected streams: the options, the
// settings file written back, the screen size, and the refusals of a wrong command line.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "cli/kqx.h"
#include "tests/support/test_text.h"

namespace fs = std::filesystem;

namespace {

class CmdScript : public ::testing::Test {
 protected:
  void SetUp() override {
    dir_ = fs::temp_directory_path() / ("kq-cmd-script-" + std::to_string(::getpid()));
    fs::remove_all(dir_);
    fs::create_directories(dir_);
  }
  void TearDown() override { fs::remove_all(dir_); }

  std::string Write(const std::string& name, const std::string& text) {
    const fs::path p = dir_ / name;
    std::ofstream(p, std::ios::binary) << text;
    return p.string();
  }
  std::string Read(const std::string& name) { return kq::test::ReadText((dir_ / name).string()); }

  fs::path dir_;
  std::ostringstream out_, err_;
};

TEST_F(CmdScript, RunsTheEditorWithTheGivenSettingsScreenAndHome) {
  const std::string settings = Write("s.ini", "SpeechAudioFormat=2\n");
  const std::string script = Write("a.kqs",
                                   "frmEdit.mnuFileItem(0).Click\n"
                                   "show frmEdit.mnuSpeechItem(2)\n"
                                   "frmEdit.Close\n");
  const int status = kqx::RunKqx({"script", script, "--settings", settings, "--home", dir_.string(),
                                  "--screen", "16000", "12000"},
                                 out_, err_);
  EXPECT_EQ(0, status) << err_.str();
  EXPECT_NE(std::string::npos, out_.str().find("\"control\":\"mnuSpeechItem\",\"index\":2,"
                                               "\"caption\":\"u-Law PCM\",\"enabled\":true,"
                                               "\"visible\":true,\"checked\":true}"));
  // The window took the default rectangle of the given screen and wrote it at unload.
  const std::string written = Read("s.ini");
  EXPECT_NE(std::string::npos, written.find("frmEditWidthPosition=12000\n"));
  EXPECT_NE(std::string::npos, written.find("frmEditTopPosition=1500\n"));
  EXPECT_NE(std::string::npos, written.find("SpeechAudioFormat=2\n"));
  EXPECT_EQ("", err_.str());
}

TEST_F(CmdScript, AnAbsentSettingsFileIsAnEmptyStoreAndIsCreated) {
  const std::string script = Write("b.kqs", "frmEdit.Close\n");
  const std::string settings = (dir_ / "new.ini").string();
  EXPECT_EQ(0, kqx::RunKqx({"script", script, "--settings", settings}, out_, err_));
  EXPECT_NE(std::string::npos, Read("new.ini").find("SpeechAudioFormat=6\n"));
}

TEST_F(CmdScript, TheStatusOfTheScriptIsTheStatusOfKqx) {
  EXPECT_EQ(3, kqx::RunKqx({"script", Write("c.kqs", "frmEdit.lstNone.Click\n")}, out_, err_));
  const std::string settings = Write("bad.ini", "SpeechAudioFormat=4\n");
  EXPECT_EQ(2,
            kqx::RunKqx({"script", Write("d.kqs", "dump\n"), "--settings", settings}, out_, err_));
}

// A form of the program that is not shown refuses the line and the script goes on; a name
// that is no form of the program at all is a wrong script, for an action and for show.
TEST_F(CmdScript, AFormNotShownIsRefusedAndANameThatIsNoFormIsWrong) {
  EXPECT_EQ(0, kqx::RunKqx({"script", Write("f.kqs",
                                            "frmRemark.cmdOk.Click\n"
                                            "show frmDefVar\n"
                                            "show frmGotoLabel.cmdOk\n"
                                            "frmAbout.Close\n")},
                           out_, err_));
  EXPECT_EQ(std::string::npos, out_.str().find("\"error\""));
  EXPECT_NE(std::string::npos, out_.str().find("\"reason\":\"form frmRemark is not shown\""));
  EXPECT_NE(std::string::npos, out_.str().find("{\"event\":\"state\",\"form\":\"frmDefVar\","
                                               "\"visible\":false}"));
  for (const std::string line :
       {"frmRemarks.cmdOk.Click", "show frmNoSuch", "show frmEdt.lstEdit", "frmedit.Close"}) {
    out_.str("");
    EXPECT_EQ(3, kqx::RunKqx({"script", Write("g.kqs", "dump\n" + line + "\ndump\n")}, out_, err_))
        << line;
    const std::string form = line.substr(line.rfind(' ') + 1, line.find('.') - line.rfind(' ') - 1);
    EXPECT_NE(std::string::npos,
              out_.str().find("{\"event\":\"error\",\"line\":2,\"message\":\"unknown form " + form +
                              "\"}"))
        << out_.str();
  }
}

TEST_F(CmdScript, AWrongCommandLineIsRefused) {
  const std::string script = Write("e.kqs", "dump\n");
  err_.str("");
  EXPECT_EQ(kqx::kExitRefused, kqx::RunKqx({"script", (dir_ / "absent.kqs").string()}, out_, err_));
  EXPECT_NE(err_.str().find("cannot read"), std::string::npos);
  const std::vector<std::vector<std::string>> wrong = {
      {"script"},
      {"script", script, "--screen", "wide", "100"},
      {"script", script, "--screen", "0", "100"},
      {"script", script, "--settings"},
      {"script", script, "extra"},
      {"script", script, "--colour", "red"},
  };
  for (const auto& args : wrong) {
    err_.str("");
    EXPECT_EQ(kqx::kExitUsage, kqx::RunKqx(args, out_, err_)) << args.back();
    EXPECT_NE("", err_.str()) << args.back();
  }
}

}  // namespace
