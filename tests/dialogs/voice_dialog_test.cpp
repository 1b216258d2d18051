// The Voice dialog: adding, modifying and playing voice files of a voice path variable.
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "dialogs/dialogs.h"
#include "dialogs/frm_get_key.h"
#include "dialogs/frm_record_sound.h"
#include "dialogs/frm_say_file.h"
#include "dialogs/frm_say_no.h"
#include "dialogs/frm_voice.h"
#include "dialogs/frm_wait_for_key.h"
#include "document/header.h"
#include "tests/dialogs/dialog_fixture.h"
#include "tests/dialogs/dialog_values.h"
#include "tests/dialogs/prompt_fixture.h"
#include "ui/platform/disk.h"

namespace kqtest {
namespace {

TEST_F(VoiceFolderTest, VoiceAddRefusesDuplicatesAndTheSixthAndOkNeedsAFile) {
  for (const char* f : {"e.lin", "f.r32", "g.alw"}) std::ofstream(root / "voice" / f) << "x";
  Run<kq::frmVoice>(18, [&](kq::frmVoice& d) {
    EXPECT_EQ(d.Caption(), "Voice");
    EXPECT_EQ(Files(d.filVoice),
              (std::vector<std::string>{"A.vox", "a.vox", "b.vox", "e.lin", "f.r32", "g.alw"}));
    EXPECT_FALSE(d.cmdDelete.Enabled());
    ExpectRefused(d, "filVoice");
    d.filVoice.UserSelect(1);
    d.cmdAdd.UserClick();
    d.cmdAdd.UserClick();
    d.filVoice.UserSelect(0);
    d.cmdAdd.UserClick();  // another letter case is another file
    for (int i = 0; i < d.filVoice.ListCount(); ++i) d.filVoice.SetSelected(i, true);
    d.cmdAdd.UserClick();
    d.cmdAdd.UserClick();
    EXPECT_EQ(Files(d.lstSelectedVoice),
              (std::vector<std::string>{"a.vox", "A.vox", "b.vox", "e.lin", "f.r32"}));
    EXPECT_EQ(BoxTexts(),
              (std::vector<std::string>{
                  "Voice file a.vox exist already.", "Voice file A.vox exist already.",
                  "Voice file a.vox exist already.", "Maximum number of voice files are  5",
                  "Maximum number of voice files are  5"}));
    EXPECT_EQ(p.EventsOf("msgbox").back().fields["title"].Str(), "Voice file add error");
    // Delete needs an entry; a double click deletes too.
    d.cmdDelete.UserClick();
    EXPECT_EQ(p.CountOf("beep"), 2);
    d.lstSelectedVoice.UserSelect(4);
    EXPECT_TRUE(d.cmdDelete.Enabled());
    d.cmdDelete.UserClick();
    EXPECT_FALSE(d.cmdDelete.Enabled());
    d.lstSelectedVoice.UserSelect(3);
    d.lstSelectedVoice.RaiseDblClick();
    p.QueueAnswer(ui::vbNo);
    d.cmdClear.UserClick();
    EXPECT_EQ(d.lstSelectedVoice.ListCount(), 3);
    EXPECT_EQ(BoxTexts().back(), "Clear all the voice files ?");
    EXPECT_EQ(p.EventsOf("msgbox").back().fields["title"].Str(), "Confirm clear");
    p.QueueAnswer(ui::vbYes);
    d.cmdClear.UserClick();
    EXPECT_EQ(d.lstSelectedVoice.ListCount(), 0);
    d.filVoice.UserSelect(2);
    d.cmdAdd.UserClick();
    d.filVoice.UserSelect(4);
    d.cmdAdd.UserClick();
    d.chkDisableHangup.UserClick();
    Type(d.cboLabel[1], "Oops");
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Head("", "Voice") + "Voices\\b.vox & f.r32 DHD=Yes E=Oops");
  EXPECT_EQ(Bytes(kq::WorkRecord.Voice),
            Field<28>("Voices") + Field<16>("b.vox") + Field<16>("f.r32") + Field<16>("") +
                Field<16>("") + Field<16>("") + Int(1) + Bytes(kNoLabel) + Bytes(Label("Oops")));
}

TEST_F(VoiceFolderTest, VoiceModifyShowsTheStoredFilesAndWritesTheSameRecord) {
  AddLine("Hello", 18);
  kq::RecordSet rec = kq::InitRecord;
  kq::VoiceRec& r = rec.Voice;
  kq::SetField(r.VoicePath, "Voices");
  kq::SetField(r.VoiceFile[0], "b.vox");
  kq::SetField(r.VoiceFile[1], "A.vox");
  r.HangupLabel = Label("Bye", 2);
  PrepareModify(0, rec);
  Run<kq::frmVoice>(18, [&](kq::frmVoice& d) {
    EXPECT_EQ(Files(d.lstSelectedVoice), (std::vector<std::string>{"b.vox", "A.vox"}));
    EXPECT_EQ(d.filVoice.FileName(), "b.vox");
    // The folder of a path variable that is gone gives the path message; the list stays.
    d.cboPathVar.UserSelect(1);
    EXPECT_EQ(BoxTexts(),
              (std::vector<std::string>{"Path do not exist for the defined path variable."}));
    EXPECT_EQ(d.filVoice.FileName(), "b.vox");
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Head("Hello", "Voice") + "Gone\\b.vox & A.vox DHD=No  H=Bye");
  kq::SetField(r.VoicePath, "Gone");
  EXPECT_EQ(Bytes(kq::WorkRecord.Voice), Bytes(r));
}

TEST_F(VoiceFolderTest, VoiceOfAnUndeclaredPathVariableSaysSo) {
  AddLine("", 18);
  kq::RecordSet rec = kq::InitRecord;
  kq::SetField(rec.Voice.VoicePath, "Lost");
  PrepareModify(0, rec);
  Run<kq::frmVoice>(18, [&](kq::frmVoice&) {});
  EXPECT_EQ(BoxTexts(),
            (std::vector<std::string>{"Path variable name 'Lost' not defined in Voice path."}));
  EXPECT_EQ(p.EventsOf("msgbox")[0].fields["title"].Str(), "Missing path definition");
}

TEST_F(VoiceFolderTest, VoicePlayConvertsTheSelectedFileToTheTemporaryWave) {
  fs::create_directories(root / "tmp");
  p.SetTempDirectory((root / "tmp").string());
  std::ofstream(root / "voice" / "d.txt") << "x";
  std::ofstream(root / "voice" / "s.vox") << std::string(400, '\x11');
  Run<kq::frmVoice>(18, [&](kq::frmVoice& d) {
    d.filVoice.SetListIndex(-1);
    d.cmdPlay.UserClick();
    d.filVoice.SetPattern("*.txt");
    d.filVoice.UserSelect(0);
    d.cmdPlay.UserClick();
    EXPECT_EQ(BoxTexts(), (std::vector<std::string>{"Select a speech file.",
                                                    "Illegal speech file extension selected."}));
    EXPECT_EQ(p.EventsOf("msgbox")[1].fields["title"].Str(), "Play Function");
    d.filVoice.SetPattern("s.vox");
    d.filVoice.UserSelect(0);
    EXPECT_EQ(p.CountOf("media"), 0);  // a refused play leaves the player alone
    d.filVoice.RaiseDblClick();        // a double click plays, it does not add
    EXPECT_EQ(d.lstSelectedVoice.ListCount(), 0);
    EXPECT_EQ(d.MMControl1.DeviceType(), "WaveAudio");
    EXPECT_EQ(d.MMControl1.Error(), 0);
  });
  EXPECT_EQ(p.CountOf("msgbox"), 2);
  EXPECT_GT(fs::file_size(root / "tmp" / "voice.wav"), 44u);
  // The converted file is opened and played; unloading the dialog closes it.
  const std::string wave = (root / "tmp" / "voice.wav").string();
  std::vector<std::string> media;
  for (const auto& e : p.EventsOf("media")) {
    media.push_back(e.fields["command"].Str() + " " + e.fields["file"].Str());
  }
  EXPECT_EQ(media, (std::vector<std::string>{"Open " + wave, "Play " + wave, "Close " + wave}));
}

TEST_F(VoiceFolderTest, VoiceUnloadClosesThePlayerEvenWhenNothingPlayed) {
  Run<kq::frmVoice>(18, [&](kq::frmVoice& d) {
    EXPECT_FALSE(d.MMControl1.Visible());
    EXPECT_EQ(p.CountOf("media"), 0);
  });
  ASSERT_EQ(p.CountOf("media"), 1);
  EXPECT_EQ(p.EventsOf("media")[0].fields["command"].Str(), "Close");
}

// The disk of this machine, with a drive whose current directory is gone.
class GoneDriveDisk : public ui::Disk {
 public:
  explicit GoneDriveDisk(ui::Disk& real, std::string current)
      : real_(real), current_(std::move(current)) {}
  int ReadFolder(const std::string& folder, std::vector<std::string>& folders,
                 std::vector<std::string>& files) override {
    return real_.ReadFolder(folder, folders, files);
  }
  std::string CurrentDirectory() override { return current_; }
  int ChangeDirectory(const std::string& folder) override { return real_.ChangeDirectory(folder); }

 private:
  ui::Disk& real_;
  std::string current_;
};

TEST_F(VoiceFolderTest, VoiceDriveChangeGivesTheDiskMessageAndKeepsTheFolder) {
  GoneDriveDisk gone(ui::disk(), (root / "gone").string());
  ui::SetDisk(&gone);
  Run<kq::frmVoice>(18, [&](kq::frmVoice& d) {
    d.drvVoice.UserPath("/");
    EXPECT_EQ(BoxTexts(), (std::vector<std::string>{"Path do not exist."}));
    EXPECT_EQ(p.EventsOf("msgbox")[0].fields["title"].Str(), "Change voice drive");
    EXPECT_EQ(d.dirVoice.Path(), (root / "voice").string());
    EXPECT_EQ(d.filVoice.ListCount(), 3);
  });
  ui::SetDisk(nullptr);
}

}  // namespace
}  // namespace kqtest
