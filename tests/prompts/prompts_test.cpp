#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <fstream>

#include "document/functions.h"
#include "document/state.h"
#include "document/text.h"
#include "prompts/make_prompts.h"
#include "speech/codec/convert.h"
#include "tests/support/doc_fixture.h"

namespace {

using namespace kq;
using namespace kq::prompts;
namespace fs = std::filesystem;

TEST(PromptWords, FileNamesBecomeWords) {
  EXPECT_EQ(WordsOfFileName("ENTER_PIN.VOX"), "enter pin");
  EXPECT_EQ(WordsOfFileName("YourBalance.wav"), "your balance");
  EXPECT_EQ(WordsOfFileName("menu2-main.r32"), "menu 2 main");
  EXPECT_EQ(WordsOfFileName("/voice/__GOODBYE__.vox"), "goodbye");
  EXPECT_EQ(WordsOfFileName("NOEXT"), "noext");
  EXPECT_EQ(WordsOfFileName(".vox"), "vox");
}

TEST(PromptTexts, ReadsRowsHeaderAndQuotes) {
  PromptTexts texts;
  std::string error;
  std::vector<std::string> names;
  ASSERT_TRUE(
      ParsePromptTexts("file,text\r\nwelcome.vox, Welcome to the bank\n\n"
                       "PIN.VOX,\"Enter your PIN, then \"\"hash\"\"\"\n",
                       texts, error, &names))
      << error;
  EXPECT_EQ(names, (std::vector<std::string>{"welcome.vox", "PIN.VOX"}));
  EXPECT_EQ(PromptText(texts, "WELCOME.VOX"), "Welcome to the bank");
  EXPECT_EQ(PromptText(texts, "pin.vox"), "Enter your PIN, then \"hash\"");
  EXPECT_EQ(PromptText(texts, "GOOD_BYE.VOX"), "good bye");  // not listed: its name's words
}

TEST(PromptTexts, WrongColumnsAreRefusedWithTheLine) {
  PromptTexts texts{{"KEEP.VOX", "kept"}};
  std::string error;
  EXPECT_FALSE(ParsePromptTexts("a.vox,one\nb.vox,two,three\n", texts, error));
  EXPECT_EQ(error, "line 2: expected 2 columns (file name, text), found 3");
  EXPECT_FALSE(ParsePromptTexts("a.vox\n", texts, error));
  EXPECT_EQ(error, "line 1: expected 2 columns (file name, text), found 1");
  EXPECT_FALSE(ParsePromptTexts("a.vox,\"open\nstill open\n", texts, error));
  EXPECT_EQ(error, "line 1: a quoted field is not closed");
  EXPECT_FALSE(ParsePromptTexts(",text\n", texts, error));
  EXPECT_EQ(error, "line 1: the file name is empty");
  EXPECT_EQ(texts.size(), 1u);  // a refused file changes nothing
}

TEST(PromptTexts, AByteOrderMarkAndTextsOfTwoLinesKeepTheRowsAndTheirLines) {
  PromptTexts texts;
  std::string error;
  std::vector<std::string> names;
  // An editor that saves UTF-8 with a byte order mark: the header is still the header.
  ASSERT_TRUE(
      ParsePromptTexts("\xEF\xBB\xBF"
                       "file,text\nA.VOX,hi\n",
                       texts, error, &names));
  EXPECT_EQ(names, (std::vector<std::string>{"A.VOX"}));
  ASSERT_TRUE(
      ParsePromptTexts("\xEF\xBB\xBF"
                       "B.VOX,bee\n",
                       texts, error, &names));
  EXPECT_EQ(PromptText(texts, "b.vox"), "bee");
  EXPECT_FALSE(ParsePromptTexts("a.vox,\"one\ntwo\"\n\nb.vox\n", texts, error));
  EXPECT_EQ(error, "line 4: expected 2 columns (file name, text), found 1");
}

// A speaker that gives one sample a character of the text, at 8000 Hz.
class CountingSpeaker : public Speaker {
 public:
  bool Speak(const std::string& text, speech::Pcm& pcm, std::string& error) override {
    spoken.push_back(text);
    if (text == "fail") {
      error = "cannot";
      return false;
    }
    pcm.rate = 8000;
    pcm.samples.assign(text.size() * 800, 1000);
    return true;
  }
  std::vector<std::string> spoken;
};

class PromptDocTest : public kqtest::DocTest {
 protected:
  void DeclarePath(int row, int32_t type, const std::string& name, const std::string& folder) {
    SetField(PrgHdr.Path[row][type - kPathExport].PathName, name);
    SetField(PrgHdr.Path[row][type - kPathExport].PathText, folder);
  }
  void AddVoice(const std::string& path, std::vector<std::string> files) {
    VoiceRec rec = InitRecord.Voice;
    SetField(rec.VoicePath, path);
    for (size_t i = 0; i < files.size(); ++i) SetField(rec.VoiceFile[i], files[i]);
    kqtest::AddLine(static_cast<int>(Fn::Voice), "", 1, reinterpret_cast<uint8_t*>(&rec));
  }
};

TEST_F(PromptDocTest, NamedPromptsFollowTheLinesAndTheirPaths) {
  DeclarePath(0, kPathVoice, "Prompts", "voice/");
  DeclarePath(1, kPathVoice, "Shared", "/srv/shared/");
  DeclarePath(0, kPathMessage, "Msgs", "msg/");
  AddVoice("Prompts", {"HELLO.VOX", "MENU.WAV"});
  SayNumberRec say = InitRecord.SayNumber;
  say.PlayFlag[0] = 0;  // the first file is not played: not named
  say.PlayFlag[1] = 1;
  SetField(say.SayPath[0], "Prompts");
  SetField(say.SayVoiceFile[0], "CENTS.VOX");
  SetField(say.SayPath[1], "Shared");
  SetField(say.SayVoiceFile[1], "DOLLARS.R32");
  kqtest::AddLine(static_cast<int>(Fn::SayNumber), "", 2, reinterpret_cast<uint8_t*>(&say));
  SayFileRec file = InitRecord.SayFile;
  SetField(file.MessagePath, "Msgs");
  file.FileName.VarRefType = 10;
  SetField(file.FileName.VarRefName, "CLOSED.ALW");
  kqtest::AddLine(static_cast<int>(Fn::SayFile), "", 3, reinterpret_cast<uint8_t*>(&file));
  file.FileName.VarRefType = 2;  // a variable: its file is known only when the call runs
  SetField(file.FileName.VarRefName, "Name");
  kqtest::AddLine(static_cast<int>(Fn::SayFile), "", 4, reinterpret_cast<uint8_t*>(&file));
  AddVoice("Prompts", {"HELLO.VOX"});  // named twice, listed once
  AddVoice("Nowhere", {"LOST.VOX"});

  const auto prompts = NamedPrompts("/app", 2);
  ASSERT_EQ(prompts.size(), 5u);
  EXPECT_EQ(PromptPath(prompts[0]), "/app/voice/HELLO.VOX");
  EXPECT_EQ(prompts[0].format, 2);  // .vox: the application's format
  EXPECT_EQ(prompts[1].file, "MENU.WAV");
  EXPECT_EQ(prompts[1].format, 4);
  EXPECT_EQ(PromptPath(prompts[2]), "/srv/shared/DOLLARS.R32");
  EXPECT_EQ(prompts[2].format, 0);
  EXPECT_EQ(PromptPath(prompts[3]), "/app/msg/CLOSED.ALW");
  EXPECT_EQ(prompts[4].pathName, "Nowhere");
  EXPECT_EQ(prompts[4].folder, "");
}

TEST_F(PromptDocTest, MakesOnlyWhatIsMissingAndNeverOverwrites) {
  const fs::path folder = fs::path(dir_) / "voice";
  fs::create_directories(folder);
  {
    std::ofstream keep(folder / "KEEP.VOX", std::ios::binary);
    keep << "mine";
  }
  DeclarePath(0, kPathVoice, "Prompts", folder.string() + "/");
  AddVoice("Prompts", {"KEEP.VOX", "NEW_ONE.WAV", "BAD.TXT", "fail.vox"});
  AddVoice("Missing", {"X.VOX"});
  DeclarePath(1, kPathVoice, "Gone", (fs::path(dir_) / "gone/").string());
  AddVoice("Gone", {"Y.VOX"});

  CountingSpeaker speaker;
  const auto results = MakeMissingPrompts(NamedPrompts("", 2), {}, speaker);
  ASSERT_EQ(results.size(), 6u);
  EXPECT_EQ(results[0].outcome, Outcome::Exists);
  EXPECT_EQ(results[1].outcome, Outcome::Made);
  EXPECT_EQ(results[1].text, "new one");
  EXPECT_EQ(results[2].outcome, Outcome::NoFormat);
  EXPECT_EQ(results[3].outcome, Outcome::Failed);
  EXPECT_EQ(results[3].detail, "cannot");
  EXPECT_EQ(results[4].outcome, Outcome::NoFolder);
  EXPECT_EQ(results[4].detail, "path variable \"Missing\" is not declared");
  EXPECT_EQ(results[5].outcome, Outcome::NoFolder);
  EXPECT_EQ(speaker.spoken, (std::vector<std::string>{"new one", "fail"}));

  std::ifstream kept(folder / "KEEP.VOX", std::ios::binary);
  std::string mine((std::istreambuf_iterator<char>(kept)), {});
  EXPECT_EQ(mine, "mine");
  // 7 characters at 800 samples each, written as an 8000 Hz 16-bit wave: 11,200 data bytes.
  EXPECT_EQ(fs::file_size(folder / "NEW_ONE.WAV"), 44u + 7 * 800 * 2);
  EXPECT_FALSE(fs::exists(folder / "fail.vox"));
  for (const auto& entry : fs::directory_iterator(folder)) {
    EXPECT_EQ(entry.path().string().find(".spoken"), std::string::npos) << entry.path();
  }
}

TEST_F(PromptDocTest, CancelStopsBeforeTheNextFile) {
  const fs::path folder = fs::path(dir_) / "v";
  fs::create_directories(folder);
  DeclarePath(0, kPathVoice, "P", folder.string() + "/");
  AddVoice("P", {"A.WAV", "B.WAV", "C.WAV"});
  CountingSpeaker speaker;
  std::vector<size_t> seen;
  const auto results =
      MakeMissingPrompts(NamedPrompts("", 2), {}, speaker, [&](size_t i, size_t count, auto&) {
        seen.push_back(i);
        EXPECT_EQ(count, 3u);
        return i < 1;
      });
  EXPECT_EQ(seen, (std::vector<size_t>{0, 1}));
  EXPECT_EQ(results[0].outcome, Outcome::Made);
  EXPECT_EQ(results[1].outcome, Outcome::Cancelled);
  EXPECT_EQ(results[2].outcome, Outcome::Cancelled);
  EXPECT_FALSE(fs::exists(folder / "B.WAV"));
}

TEST(SynthSpeaker, AMissingVoiceIsNamed) {
  std::string error;
  EXPECT_EQ(OpenSynthSpeaker("xx-nosuchvoice", error), nullptr);
  EXPECT_NE(error.find("no voice \"xx-nosuchvoice\""), std::string::npos) << error;
}

TEST(SynthSpeaker, SpeaksWordsForAPlausibleTime) {
  std::string error;
  auto speaker = OpenSynthSpeaker("en", error);
  ASSERT_NE(speaker, nullptr) << error;
  speech::Pcm one, five;
  ASSERT_TRUE(speaker->Speak("hello", one, error)) << error;
  ASSERT_TRUE(speaker->Speak("please enter your account number", five, error)) << error;
  const double oneSec = static_cast<double>(one.samples.size()) / one.rate;
  const double fiveSec = static_cast<double>(five.samples.size()) / five.rate;
  EXPECT_GT(oneSec, 0.2);
  EXPECT_LT(oneSec, 2.0);
  EXPECT_GT(fiveSec, oneSec * 2);
  EXPECT_LT(fiveSec, 5.0);
}

}  // namespace

// The synthesizer's library is loaded when a speaker is first opened: the installed one
// has every call, and a library that is not there is named in the message.
TEST(SynthSpeaker, ItsLibraryIsLoadedByName) {
  EXPECT_EQ(SynthLibraryFault(SynthLibrary()), "");
  EXPECT_EQ(SynthLibraryFault("libkq-no-such-synth.so.9"),
            "espeak-ng could not start: its library (libkq-no-such-synth.so.9) is not installed");
  EXPECT_NE(SynthLibraryFault("libc.so.6").find("lacks a call"), std::string::npos);
}
