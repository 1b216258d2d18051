// The speech tools on the headless platform: settings, messages, conversions through the
// real library on WAVE files made here, and what is asked of the media control.
#include <cerrno>
#include <filesystem>
#include <functional>

#include "document/document.h"
#include "document/state.h"
#include "document/text.h"
#include "speech/codec/codecs.h"
#include "speech/codec/convert.h"
#include "speech/forms/frm_about.h"
#include "speech/forms/frm_convert.h"
#include "speech/forms/frm_listen.h"
#include "speech/forms/frm_recording_wave.h"
#include "speech/forms/speech_forms.h"
#include "speech/forms/system_info.h"
#include "tests/speech/speech_fixture.h"
#include "ui/headless/headless_platform.h"
#include "ui/platform/durable_file.h"

namespace {

using speechtest::Bytes;
namespace fs = std::filesystem;

class SpeechFormsTest : public speechtest::SpeechTest {
 protected:
  void SetUp() override {
    SpeechTest::SetUp();
    cwd_ = fs::current_path();
    fs::create_directories(dir_ / "tmp");
    fs::create_directories(dir_ / "src");
    fs::create_directories(dir_ / "dst");
    p.SetDataDirectory(KQ_TEST_DATA_DIR);
    p.SetUserDirectory(dir_.string());
    p.SetTempDirectory((dir_ / "tmp").string());
    ui::SetPlatform(&p);
    kq::InitDocument();
    kq::SpeechAudioFormat = 0;
  }
  void TearDown() override {
    ui::SetPlatform(nullptr);
    fs::current_path(cwd_);
    SpeechTest::TearDown();
  }

  // Shows the form modally; the action plays the person's part, then the form unloads.
  template <class F>
  void Show(const std::function<void(F&)>& action) {
    F form;
    p.QueueModal(form.Name(), [&](ui::Form& f) {
      action(static_cast<F&>(f));
      if (f.Loaded()) f.Unload();
    });
    form.ShowModal();
  }

  std::string Setting(const std::string& key) { return p.SettingsOf("KQEdit", "Settings")[key]; }
  void SetSetting(const std::string& key, const std::string& value) {
    p.SettingsOf("KQEdit", "Settings")[key] = value;
  }
  std::vector<std::string> Media() const {
    std::vector<std::string> out;
    for (const auto& e : p.EventsOf("media")) {
      out.push_back(e.fields["command"].Str() + " " + e.fields["file"].Str());
    }
    return out;
  }
  std::vector<std::string> Boxes() const {
    std::vector<std::string> out;
    for (const auto& e : p.EventsOf("msgbox")) {
      out.push_back(e.fields["title"].Str() + ": " + e.fields["text"].Str());
    }
    return out;
  }
  std::string Tone(const std::string& name, int rate = 8000, int bits = 16) {
    return Write(name, speechtest::WaveFile(speechtest::Tone(rate, 0.25), rate, bits));
  }

  ui::HeadlessPlatform p;
  fs::path cwd_;
};

TEST_F(SpeechFormsTest, ListenConvertsAVoxFileInTheMenuFormatAndCopiesAWaveFile) {
  const std::string wave = Tone("src/a.wav");
  const std::string vox = PathOf("src/b.vox");
  ASSERT_EQ(kq::speech::Convert(wave.c_str(), 4, 8, vox.c_str(), 2, 8), 0);
  kq::SpeechAudioFormat = 2;  // a ".vox" file is taken to be u-Law
  SetSetting("ListenFileName", vox);
  const std::string temp = (dir_ / "tmp" / "listen.wav").string();
  Show<kq::frmListen>([&](kq::frmListen& f) {
    EXPECT_EQ(f.filPath.FileName(), "b.vox");
    f.cmdPlay.UserClick();
    EXPECT_GT(ui::WaveLengthMs(temp), 200);  // decoded back to a quarter of a second
    f.filPath.UserSelect(0);
    f.cmdPlay.UserClick();
    EXPECT_EQ(Read(temp), Read(wave));  // copied, not converted
  });
  EXPECT_EQ(Media(),
            (std::vector<std::string>{"Close ", "Open " + temp, "Play " + temp, "Close " + temp,
                                      "Open " + temp, "Play " + temp, "Close " + temp}));
  EXPECT_TRUE(Boxes().empty());
  EXPECT_EQ(Setting("ListenFileName"), wave);
}

TEST_F(SpeechFormsTest, ListenRefusesUnknownExtensionsAndAnEmptyFolder) {
  Write("src/c.xyz", Bytes{1, 2, 3});
  SetSetting("ListenFileName", PathOf("src/"));
  Show<kq::frmListen>([&](kq::frmListen& f) {
    EXPECT_EQ(f.filPath.Pattern(), "*.wav;*.vox;*.lin;*.r32;*.r24;*.o32;*.024;*.alw;*.mlw");
    f.cmdPlay.UserClick();
    f.filPath.SetPattern("*.xyz");
    f.filPath.UserSelect(0);
    f.cmdPlay.UserClick();
  });
  EXPECT_EQ(Boxes(),
            (std::vector<std::string>{"Play Function: Select a speech file.",
                                      "Play Function: Illegal speech file extension selected."}));
  EXPECT_EQ(p.CountOf("media"), 3);  // a Close for each press and for the exit
}

TEST_F(SpeechFormsTest, ConvertWritesTheTargetInTheMenuFormatAndKeepsTheFolders) {
  Tone("src/HELLO.WAV", 11025, 8);
  SetSetting("SourceConvertFileName", PathOf("src/HELLO.WAV"));
  SetSetting("TargetConvertFileName", PathOf("dst/"));
  Show<kq::frmConvert>([&](kq::frmConvert& f) {
    EXPECT_EQ(f.Caption(), "Convert Speech Files From WAVE To Rhetorex 32Kbit/sec ADPCM");
    EXPECT_EQ(f.cboTargetPathVar.List(0), "User selected");
    f.cmdConvert.UserClick();
    EXPECT_EQ(f.filTarget.Items(), std::vector<std::string>{"HELLO.R32"});
    f.filTarget.UserSelect(0);
    f.cmdTargetPlay.UserClick();
  });
  EXPECT_GT(fs::file_size(dir_ / "dst" / "HELLO.R32"), 400u);
  EXPECT_GT(ui::WaveLengthMs((dir_ / "tmp" / "convert.wav").string()), 200);
  EXPECT_TRUE(Boxes().empty());
  EXPECT_EQ(Setting("SourceConvertFileName"), PathOf("src/HELLO.WAV"));
  EXPECT_EQ(Setting("TargetConvertFileName"), PathOf("dst/HELLO.R32"));
}

TEST_F(SpeechFormsTest, ConvertReportsFaultsAndMissingSelections) {
  Write("src/bad.wav", Bytes{'n', 'o', 't', ' ', 'a', ' ', 'w', 'a', 'v', 'e'});
  SetSetting("SourceConvertFileName", PathOf("src/bad.wav"));
  SetSetting("TargetConvertFileName", PathOf("dst/"));
  Show<kq::frmConvert>([&](kq::frmConvert& f) {
    f.cmdConvert.UserClick();
    f.dirSource.UserPath(PathOf("dst"));
    f.cmdConvert.UserClick();
    f.cmdSourcePlay.UserClick();
    f.cmdTargetPlay.UserClick();
  });
  const auto boxes = Boxes();
  ASSERT_EQ(boxes.size(), 4u);
  EXPECT_EQ(boxes[0].rfind("Speech File Convert Error: ", 0), 0u);
  EXPECT_EQ(boxes[1], "Convert Function: Select a WAVE speech file (*.WAV).");
  EXPECT_EQ(boxes[2], "Play Function: Select a WAVE speech file (*.WAV).");
  EXPECT_EQ(boxes[3], "Play Function: Select a speech file.");
}

TEST_F(SpeechFormsTest, ConvertFollowsAVoicePathAndEndsOnFormatsWithoutExtension) {
  auto& entry = kq::PrgHdr.Path[0][kq::kPathVoice - kq::kPathExport];
  kq::SetField(entry.PathName, "Prompts");
  kq::SetField(entry.PathText, PathOf("dst/"));
  Tone("dst/x.wav");
  Write("dst/a.vox", Bytes(8, 0x80));
  Write("dst/b.vox", Bytes(8, 0x80));
  Write("src/c.vox", Bytes(8, 0x80));
  SetSetting("TargetConvertFileName", PathOf("src/c.vox"));
  Show<kq::frmConvert>([&](kq::frmConvert& f) {
    EXPECT_EQ(f.filTarget.ListIndex(), 0);  // Load selects the file of the setting
    ASSERT_EQ(f.cboTargetPathVar.ListCount(), 2);
    f.cboTargetPathVar.UserSelect(1);
    EXPECT_EQ(f.dirTarget.Path(), PathOf("dst"));
    // The voice path shows its files and selects none of them.
    EXPECT_EQ(f.filTarget.Items(), (std::vector<std::string>{"a.vox", "b.vox"}));
    EXPECT_EQ(f.filTarget.ListIndex(), -1);
    kq::SpeechAudioFormat = 4;  // Windows Wave has no target extension of its own
    f.dirSource.UserPath(PathOf("dst"));
    f.filSource.UserSelect(0);
    EXPECT_THROW(f.cmdConvert.UserClick(), ui::ProgramEnded);
  });
  EXPECT_EQ(ui::LastProgramError(), "Illegal speech format =  4 in GetSpeechFileExt.");
  kq::SpeechAudioFormat = 5;
  kq::frmConvert form;
  p.QueueModal("frmConvert", [](ui::Form&) {});
  EXPECT_THROW(form.ShowModal(), ui::ProgramEnded);
  EXPECT_EQ(ui::LastProgramError(), "Illegal speech format index =  5");
}

TEST_F(SpeechFormsTest, RecordingOpensTemplatesAndReadsTheFormatChunk) {
  Write("stereo.wav", speechtest::RiffFile({speechtest::Fmt(22050, 16, 2),
                                            speechtest::Chunk("data", Bytes(88200, 0))}));
  Bytes late = speechtest::RiffFile({speechtest::Chunk("junk", Bytes(200, 0)),
                                     speechtest::Fmt(8000, 8), speechtest::Chunk("data", {})});
  Write("late.wav", late);
  Write("alaw.wav", speechtest::RiffFile({speechtest::Fmt(8000, 8, 1, 6),
                                          speechtest::Chunk("data", Bytes(800, 0))}));
  for (const char* name : {"stereo.wav", "late.wav", "alaw.wav"}) p.QueueFile(PathOf(name));
  p.QueueFile(std::nullopt);
  std::vector<std::string> shown;
  Show<kq::frmRecordingWave>([&](kq::frmRecordingWave& f) {
    auto state = [&] {
      shown.push_back(f.lblAudioValue.Caption() + " " + f.lblkHzValue.Caption() + " " +
                      f.lblBitsValue.Caption() + " " + f.lblDurationValue.Caption());
    };
    EXPECT_TRUE(f.mnuItemSettings[4].Checked());
    f.mnuFileNew.UserClick();
    state();
    f.mnuItemSettings[1].UserClick();  // only the next New takes it
    state();
    EXPECT_FALSE(f.mnuItemSettings[4].Checked());
    f.mnuFileNew.UserClick();
    state();
    for (int i = 0; i < 4; ++i) {  // three files, then a cancel that changes nothing
      f.mnuFileOpen.UserClick();
      state();
    }
    EXPECT_EQ(f.lblFileNameValue.Caption(), PathOf("alaw.wav"));
  });
  EXPECT_EQ(shown, (std::vector<std::string>{"Mono 8 16 0.00", "Mono 8 16 0.00", "Mono 11 8 0.00",
                                             "Stereo 22 16 1.00", "? ? ? 0.00", "? ? ? 0.10",
                                             "? ? ? 0.10"}));
}

TEST_F(SpeechFormsTest, RecordingSavesThroughTheTemporaryFileAndSeeks) {
  const std::string source = Tone("tone.wav");
  const std::string target = Write("old.wav", Bytes{1, 2, 3});
  p.QueueFile(source);
  p.QueueFile(target);
  Show<kq::frmRecordingWave>([&](kq::frmRecordingWave& f) {
    f.mnuFileOpen.UserClick();
    f.HScroll1.SetValue(16384);
    EXPECT_EQ(f.lblCurrentValue.Caption(), "0.13");
    EXPECT_TRUE(f.MMControl1.UserPress(ui::MediaButton::Prev));
    EXPECT_EQ(f.lblCurrentValue.Caption(), "0.00");
    EXPECT_EQ(f.HScroll1.Value(), 0);
    EXPECT_TRUE(f.MMControl1.UserPress(ui::MediaButton::Next));
    EXPECT_EQ(f.HScroll1.Value(), 32767);
    EXPECT_FALSE(f.MMControl1.UserPress(ui::MediaButton::Eject));  // not shown
    f.mnuFileSaveAs.UserClick();  // over an existing file, without asking
    EXPECT_EQ(f.lblFileNameValue.Caption(), target);
    EXPECT_EQ(f.MMControl1.FileName(), source);
  });
  EXPECT_EQ(Read(target), Read(source));
  EXPECT_EQ(Read((dir_ / "tmp" / "LISTEN.WAV").string()), Read(source));
  EXPECT_TRUE(Boxes().empty());
}

TEST_F(SpeechFormsTest, RecordingShowsMciErrorAndUnloadsWithoutEndingTheProgram) {
  Write("broken.wav", Bytes{'R', 'I', 'F', 'F'});
  p.QueueFile(PathOf("broken.wav"));
  kq::frmRecordingWave form;
  p.QueueModal("frmRecordingWave",
               [](ui::Form& f) { static_cast<kq::frmRecordingWave&>(f).mnuFileOpen.UserClick(); });
  form.ShowModal();  // the error unloaded it; nothing was thrown
  EXPECT_FALSE(form.Loaded());
  EXPECT_EQ(Boxes(), std::vector<std::string>{"Program Error: MCI_ERROR"});
  EXPECT_EQ(p.EventsOf("msgbox")[0].fields["icon"].Str(), "critical");
}

TEST_F(SpeechFormsTest, AboutPlaysItsSoundAndTheTildeTogglesTheSpareFunctions) {
  kq::ShowAllFunctions = true;
  Show<kq::frmAbout>([&](kq::frmAbout& f) {
    EXPECT_EQ(f.lblCpu.Caption().rfind("CPU: ", 0), 0u);
    EXPECT_EQ(f.lblTotalPhysical.Caption().rfind("Total Physical Memory: ", 0), 0u);
    EXPECT_NE(f.lblTotalPhysical.Caption().find(','), std::string::npos);
    f.UserKey(f.cmdExit, '~');
    EXPECT_FALSE(kq::ShowAllFunctions);
    f.UserKey(f.cmdExit, '~');
    f.UserKey(f.cmdExit, '~');
    EXPECT_TRUE(f.Loaded());
    f.UserKey(f.cmdExit, 13);  // Enter presses the button
    EXPECT_FALSE(f.Loaded());
  });
  EXPECT_FALSE(kq::ShowAllFunctions);
  const std::string about = std::string(KQ_TEST_DATA_DIR) + "/about.wav";
  EXPECT_EQ(Media(),
            (std::vector<std::string>{"Open " + about, "Play " + about, "Close " + about}));
  EXPECT_EQ(kq::FormatThousands(1234567), "1,234,567");
  EXPECT_EQ(kq::FormatThousands(0), "");
}

TEST(SpeechFormats, GetSpeechFileExtFollowsTheMenuAndRefusesWave) {
  ui::HeadlessPlatform platform;
  ui::SetPlatform(&platform);
  const int16_t saved = kq::SpeechAudioFormat;
  kq::SpeechAudioFormat = kq::speech::kRhetorex32;
  EXPECT_EQ(kq::speech::GetSpeechFileExt(), "R32");
  kq::SpeechAudioFormat = kq::speech::kWave;
  std::string error;
  try {
    kq::speech::GetSpeechFileExt();
  } catch (const ui::ProgramEnded& e) {
    error = e.what();
  }
  EXPECT_EQ(error, "Illegal speech format =  4 in GetSpeechFileExt.");
  kq::SpeechAudioFormat = saved;
  ui::SetPlatform(nullptr);
}

TEST_F(SpeechFormsTest, ATemporaryWaveThatCannotBeWrittenGivesTheSystemsMessage) {
  const std::string wave = Tone("src/a.wav");
  const std::string vox = PathOf("src/b.vox");
  ASSERT_EQ(kq::speech::Convert(wave.c_str(), 4, 8, vox.c_str(), 2, 8), 0);
  kq::SpeechAudioFormat = 2;
  SetSetting("ListenFileName", wave);
  const std::string temp = (dir_ / "tmp" / "listen.wav").string();
  Write("tmp/listen.wav", Bytes{'l', 'a', 's', 't'});
  p.QueueAnswer(ui::vbCancel);
  Show<kq::frmListen>([&](kq::frmListen& f) {
    ui::InjectDurableWriteFault(ENOSPC, 100, 1);  // the copy of a WAVE file
    f.cmdPlay.UserClick();
    f.filPath.UserSelect(1);
    ui::InjectDurableWriteFault(ENOSPC, 100, 1);  // the conversion of a ".vox" file
    f.cmdPlay.UserClick();
    EXPECT_EQ(Read(temp), (Bytes{'l', 'a', 's', 't'}));
    fs::remove_all(dir_ / "tmp");  // the folder vanished
    f.cmdPlay.UserClick();
  });
  EXPECT_EQ(Boxes(), (std::vector<std::string>{
                         "Play Function: Disk is full.\r\rInsert a new disk and try again.",
                         "Speech File Convert Error: Error writing to output filename.",
                         "Speech File Convert Error: Error opening output filename."}));
  EXPECT_FALSE(fs::exists(temp + ".kqx-save"));
}

}  // namespace
