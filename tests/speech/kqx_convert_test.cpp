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
  EXPECT_NE(err_.str().find("Usage: kqx convert [OPTIONS] IN"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(PathOf("out.mlw")));
}

TEST_F(KqxConvertTest, ABatchConvertsFoldersAndFilesInParallelAndReportsEachFailure) {
  namespace fs = std::filesystem;
  fs::create_directories(PathOf("in"));
  fs::create_directories(PathOf("out"));
  for (const char* name : {"a.wav", "b.WAV", "c.wav", "d.wav", "e.wav"}) {
    Write(std::string("in/") + name, WaveFile(Tone(11025, 0.5), 11025, 16));
  }
  Write("in/stereo.wav", RiffFile({Fmt(8000, 16, 2)}));
  Write("in/notes.txt", {'x'});  // no speech file: left out of the folder
  Write("lone.r24", Bytes(300, 0x55));
  ASSERT_EQ(Run({PathOf("in"), PathOf("missing.wav"), PathOf("lone.r24"), "--to", "o32", "--out",
                 PathOf("out"), "--jobs", "3"}),
            1);
  EXPECT_EQ(out_.str(), "");  // not a terminal: no progress, no message boxes
  EXPECT_EQ(err_.str(), PathOf("in/stereo.wav") + ": Illegal Wave file: File must be mono.\n" +
                            PathOf("missing.wav") + ": Error opening input filename.\n");
  // Each output is what the single conversion makes.
  ASSERT_EQ(Run({PathOf("in/c.wav"), PathOf("single.o32")}), 0);
  for (const char* name : {"a", "b", "c", "d", "e", "lone"}) {
    EXPECT_TRUE(fs::exists(PathOf(std::string("out/") + name + ".o32"))) << name;
  }
  EXPECT_EQ(Read(PathOf("out/c.o32")), Read(PathOf("single.o32")));
  EXPECT_FALSE(fs::exists(PathOf("out/stereo.o32")));
  EXPECT_FALSE(fs::exists(PathOf("out/notes.o32")));
  // All good: exit 0; WAVE by name or by number.
  EXPECT_EQ(Run({PathOf("in/a.wav"), "--to", "4", "--out", PathOf("out")}), 0);
  EXPECT_EQ(fs::file_size(PathOf("out/a.wav")), 44u + 2u * 4000u);
  EXPECT_EQ(err_.str(), "");
  // A wrong format or no folder to write to is a usage or a clear error.
  EXPECT_EQ(Run({PathOf("in"), "--to", "xyz", "--out", PathOf("out")}), kqx::kExitUsage);
  EXPECT_NE(err_.str().find("usage: kqx convert"), std::string::npos);
  EXPECT_EQ(Run({PathOf("in"), "--to", "o32"}), kqx::kExitUsage);
  EXPECT_NE(err_.str().find("usage: kqx convert"), std::string::npos);
  EXPECT_EQ(Run({PathOf("in"), "--to", "o32", "--out", PathOf("nowhere")}), 1);
  EXPECT_NE(err_.str().find("is not a folder"), std::string::npos);
}

}  // namespace
