// Tools, Make Missing Prompts: the window lists what the application names, makes what is
// missing with the texts beside the application, and Cancel stops between two files.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "document/functions.h"
#include "document/text.h"
#include "editor/frm_prompts.h"
#include "tests/editor/editor_fixture.h"
#include "tests/support/doc_fixture.h"

namespace {

using namespace kq;
namespace fs = std::filesystem;

// One sample a character of the text, so the file's length shows what was spoken.
class LetterSpeaker : public prompts::Speaker {
 public:
  explicit LetterSpeaker(std::vector<std::string>& spoken) : spoken_(spoken) {}
  bool Speak(const std::string& text, speech::Pcm& pcm, std::string&) override {
    spoken_.push_back(text);
    pcm.rate = 8000;
    pcm.samples.assign(text.size(), 100);
    return true;
  }

 private:
  std::vector<std::string>& spoken_;
};

class PromptsFormTest : public test::EditorTest {
 protected:
  void SetUp() override {
    EditorTest::SetUp();
    dir_ = fs::path(::testing::TempDir()) / "kqpromptsform" /
           ::testing::UnitTest::GetInstance()->current_test_info()->name();
    fs::remove_all(dir_);
    fs::create_directories(dir_ / "voice");
    frmPrompts::OpenSpeaker = [this](std::string&) {
      return std::make_unique<LetterSpeaker>(spoken_);
    };
  }
  void TearDown() override {
    frmPrompts::OpenSpeaker = nullptr;
    frmPrompts::Pump = nullptr;
    fs::remove_all(dir_);
    EditorTest::TearDown();
  }
  // An application in dir_ whose Voice line names three files, the first one there already.
  void ThreeVoiceFiles() {
    Start();
    SetField(PrgHdr.Path[0][kPathVoice - kPathExport].PathName, "Prompts");
    SetField(PrgHdr.Path[0][kPathVoice - kPathExport].PathText, "voice/");
    VoiceRec rec = InitRecord.Voice;
    SetField(rec.VoicePath, "Prompts");
    SetField(rec.VoiceFile[0], "THERE.WAV");
    SetField(rec.VoiceFile[1], "HELLO.WAV");
    SetField(rec.VoiceFile[2], "GOOD_BYE.WAV");
    kqtest::AddLine(static_cast<int>(Fn::Voice), "", 1, reinterpret_cast<uint8_t*>(&rec));
    ApplFileName = (dir_ / "app.kqx").string();
    std::ofstream(dir_ / "voice" / "THERE.WAV") << "recorded";
    std::ofstream(dir_ / "prompts.csv") << "file,text\nHELLO.WAV,Hello there\n";
  }

  fs::path dir_;
  std::vector<std::string> spoken_;
};

TEST_F(PromptsFormTest, MakesWhatIsMissingWithTheTextsBesideTheApplication) {
  ThreeVoiceFiles();
  bool shown = false;
  platform_.QueueModal("frmPrompts", [&](ui::Form& f) {
    shown = true;
    auto& form = dynamic_cast<frmPrompts&>(f);
    EXPECT_EQ(form.lblStatus.Caption(), "The application names 3 voice files.");
    EXPECT_EQ(form.prgPrompts.Max(), 3);
    form.cmdMake.UserClick();
    EXPECT_EQ(form.lblStatus.Caption(), "2 files made, 1 was there already.");
    EXPECT_EQ(form.prgPrompts.Value(), 3);
    EXPECT_FALSE(form.cmdMake.Enabled());
    EXPECT_EQ(form.cmdCancel.Caption(), "&Close");
    form.cmdCancel.UserClick();
    EXPECT_FALSE(form.Loaded());
  });
  form_->mnuToolsPrompts.UserClick();
  ASSERT_TRUE(shown);
  EXPECT_EQ(spoken_, (std::vector<std::string>{"Hello there", "good bye"}));
  EXPECT_EQ(fs::file_size(dir_ / "voice" / "HELLO.WAV"), 44u + 2 * 11);
  EXPECT_EQ(fs::file_size(dir_ / "voice" / "THERE.WAV"), 8u);  // left as it was
  EXPECT_TRUE(BoxTexts().empty());
}

TEST_F(PromptsFormTest, CancelStopsBeforeTheNextFileAndKeepsWhatWasMade) {
  ThreeVoiceFiles();
  platform_.QueueModal("frmPrompts", [&](ui::Form& f) {
    auto& form = dynamic_cast<frmPrompts&>(f);
    int pumps = 0;
    // The window system delivers a click on Cancel while the second file is being made.
    frmPrompts::Pump = [&] {
      if (++pumps == 2) form.cmdCancel.UserClick();
    };
    form.cmdMake.UserClick();
    EXPECT_TRUE(form.Loaded());  // Cancel during the run stops it, not the window
    EXPECT_EQ(form.lblStatus.Caption(),
              "0 files made, 1 was there already, 2 not made (cancelled).");
    form.cmdCancel.UserClick();
  });
  form_->mnuToolsPrompts.UserClick();
  EXPECT_TRUE(spoken_.empty());
  EXPECT_FALSE(fs::exists(dir_ / "voice" / "HELLO.WAV"));
}

TEST_F(PromptsFormTest, WrongTextsAndMissingFoldersAreSaid) {
  ThreeVoiceFiles();
  std::ofstream(dir_ / "prompts.csv") << "HELLO.WAV\n";
  fs::remove_all(dir_ / "voice");
  platform_.QueueModal("frmPrompts", [&](ui::Form& f) {
    auto& form = dynamic_cast<frmPrompts&>(f);
    form.cmdMake.UserClick();
    form.cmdCancel.UserClick();
  });
  form_->mnuToolsPrompts.UserClick();
  const auto texts = BoxTexts();
  ASSERT_EQ(texts.size(), 2u);
  EXPECT_EQ(texts[0], "prompts.csv line 1: expected 2 columns (file name, text), found 1");
  EXPECT_NE(texts[1].find("THERE.WAV: folder "), std::string::npos) << texts[1];
  EXPECT_NE(texts[1].find("/voice/ does not exist"), std::string::npos) << texts[1];
}

}  // namespace
