#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "cli/kqx.h"
#include "tests/speech/speech_fixture.h"

namespace {

using namespace speechtest;

class KqxConvertTest : public SpeechTest {
 protected:
  int Run(std::vector<std::string> args) {
    out_.str("");
    err_.str("");
    args.insert(args.begin(), "convert");
    return kqx::RunKqx(args, out_, err_);
  }
  std::ostringstream out_, err_;
};

TEST_F(KqxConvertTest, ConvertsByTheExtensionsAndTakesVoxAsTheGivenFormat) {
  const std::string wav = Write("Hello.WAV", WaveFile(Tone(22050, 1.0), 22050, 16));
  ASSERT_EQ(Run({wav, PathOf("hello.r24")}), 0);
  EXPECT_EQ(out_.str(), "");
  EXPECT_EQ(std::filesystem::file_size(PathOf("hello.r24")), 3000u);
  ASSERT_EQ(Run({wav, PathOf("hello.vox"), "--format", "8"}), 0);
  EXPECT_EQ(std::filesystem::file_size(PathOf("hello.vox")), 3000u);  // OKI at 6000 Hz
  // Without --format a ".vox" file is in the application's format, linear at start.
  ASSERT_EQ(Run({PathOf("hello.r24"), PathOf("back.vox")}), 0);
  EXPECT_EQ(std::filesystem::file_size(PathOf("back.vox")), 16000u);
  ASSERT_EQ(Run({PathOf("hello.vox"), PathOf("back.wav"), "--format", "8"}), 0);
  EXPECT_EQ(std::filesystem::file_size(PathOf("back.wav")), 16044u);
}

TEST_F(KqxConvertTest, AFailurePrintsTheConversionMessageBox) {
  const std::string bad = Write("bad.wav", RiffFile({Fmt(8000, 16, 2)}));
  EXPECT_EQ(Run({bad, PathOf("out.mlw")}), 1);
  EXPECT_EQ(out_.str(), R"({"event":"msgbox","title":"Speech File Convert Error",)"
                        R"("text":"Illegal Wave file: File must be mono.","icon":"exclamation",)"
                        R"("buttons":"OK","answer":"OK","default":true})"
                        "\n");
  EXPECT_EQ(Run({bad, PathOf("out.txt")}), 1);  // an unknown extension is no format
  EXPECT_NE(out_.str().find("Illegal audio format, must be one of the following:"),
            std::string::npos);
  EXPECT_EQ(Run({bad, PathOf("out.mlw"), "--format", "x"}), kqx::kExitUsage);
  EXPECT_EQ(out_.str(), "");
  EXPECT_NE(err_.str().find("Usage: kqx convert [OPTIONS] IN OUT"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(PathOf("out.mlw")));
}

}  // namespace
