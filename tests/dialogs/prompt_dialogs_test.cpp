// The dialogs of the functions that talk to the caller: Say File, Get Keys, Wait for Key
// and Record Sound, driven as a person drives them, with their records and DisplayLines.
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

TEST_F(PromptDialogTest, SayFileWithEveryOptionAndATypedName) {
  Declare();
  Run<kq::frmSayFile>(21, [&](kq::frmSayFile& d) {
    EXPECT_EQ(d.Caption(), "Say File");
    EXPECT_EQ(Items(d.cboPathVar), (std::vector<std::string>{"Msg", "Greet"}));
    EXPECT_EQ(Items(d.cboVar), (std::vector<std::string>{"Name"}));
    d.cboPathVar.UserSelect(1);
    d.cboVar.SetFocus();
    d.cboVar.SetText("");
    Type(d.cboVar, "hello.vox");
    d.chkCounterActive.UserClick();
    d.chkRGControl.UserClick();
    d.chkDisableHangup.UserClick();
    Type(d.cboLabel[0], " Gone");
    Type(d.cboLabel[1], "Oops");
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Head("", "Say File") + "Greet\\hello.vox CA R&GC DHD=Yes H=Gone E=Oops");
  EXPECT_EQ(Bytes(kq::WorkRecord.SayFile), Field<28>("Greet") + Bytes(Var(10, "hello.vox")) +
                                               Int(1) + Int(1) + Int(1) + Bytes(Label("Gone")) +
                                               Bytes(Label("Oops")));
}

TEST_F(PromptDialogTest, SayFileWithoutOptionsEndsAtTheHangupRow) {
  Declare();
  Run<kq::frmSayFile>(21, [&](kq::frmSayFile& d) { d.cmdOk.UserClick(); });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Head("", "Say File") + "Msg\\Name DHD=No");
}

// ---- Get Keys

TEST_F(PromptDialogTest, GetKeysListsKeysByTypeAndNeedsTimeoutTargetAndSeconds) {
  Declare();
  Run<kq::frmGetKey>(7, [&](kq::frmGetKey& d) {
    EXPECT_EQ(d.cboNoOfKeys.ListCount(), 9);  // Count, a Long, is shown first
    EXPECT_EQ(d.cboNoOfKeys.List(8), "9");
    d.cboVariable.UserSelect(1);
    EXPECT_EQ(d.cboNoOfKeys.ListCount(), 15);
    EXPECT_EQ(d.cboTermKey.ListCount(), 17);
    EXPECT_EQ(d.cboTermKey.List(11), "*");
    // Terminating the previous sound leaves no label of the line's own.
    EXPECT_EQ(d.chkTerminate.Value(), 1);
    EXPECT_FALSE(d.txtLabel.Enabled());
    d.chkTerminate.UserClick();
    EXPECT_TRUE(d.txtLabel.Enabled());
    Type(d.txtLabel, "Ask");
    d.chkTerminate.UserClick();
    EXPECT_EQ(d.txtLabel.Text(), "");
    d.cboLabel[2].SetText("  ");
    ExpectRefused(d, "cboLabel(2)");
    EXPECT_EQ(d.cboLabel[2].Text(), "");
    Type(d.cboLabel[2], "Late");
    d.txtSec.SetText("");
    ExpectRefused(d, "txtSec");
    d.txtSec.SetText("61");
    ExpectRefused(d, "txtSec");
    d.txtSec.SetText("");
    d.txtSec.SetFocus();
    Type(d.txtSec, "0x12");  // two digits at most, digits only
    EXPECT_EQ(d.txtSec.Text(), "01");
    d.cboNoOfKeys.UserSelect(14);
    d.cboTermKey.UserSelect(12);
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine,
            Head("", "Get Keys") + "Rate NOK=15     TK=#      DHD=No T=Late 1sec. Term=Yes");
  EXPECT_EQ(Bytes(kq::WorkRecord.GetKeys), Bytes(kq::PrgHdr.Variable[1]) + Int(16) + Int(12) +
                                               Int(0) + Bytes(kNoLabel) + Bytes(kNoLabel) +
                                               Bytes(Label("Late")) + Int(1) + Int(1));
}

TEST_F(PromptDialogTest, GetKeysModifyOfALongStoredWithTwelveKeys) {
  Declare();
  AddLine("Ask", 7);
  kq::RecordSet rec = kq::InitRecord;
  kq::GetKeysRec& r = rec.GetKeys;
  r.Target = kq::PrgHdr.Variable[0];
  r.KeyCount = 13;
  r.TermKey = 16;
  r.DisableHangup = 1;
  r.HangupLabel = Label("Bye", 4);
  r.TimeoutLabel = Label("Late", 7);
  r.TimeoutSec = 60;
  r.Terminate = 0;
  PrepareModify(0, rec);
  Run<kq::frmGetKey>(7, [&](kq::frmGetKey& d) {
    EXPECT_EQ(d.txtLabel.Text(), "Ask");
    EXPECT_TRUE(d.txtLabel.Enabled());
    EXPECT_EQ(Items(d.cboNoOfKeys).back(), "9");
    EXPECT_EQ(d.cboTermKey.Text(), "D");
    EXPECT_EQ(d.txtSec.Text(), "60");
    d.cboNoOfKeys.UserSelect(0);
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Head("Ask", "Get Keys") +
                              "Count NOK=1      TK=D      DHD=Yes H=Bye T=Late 60sec. Term=No ");
  EXPECT_EQ(kq::WorkRecord.GetKeys.KeyCount, 2);
  EXPECT_EQ(kq::WorkRecord.GetKeys.TimeoutLabel.LabelRefLine, 7);
}

// ---- Wait for Key

TEST_F(PromptDialogTest, WaitForKeyNeedsTheTimeoutTargetAndZeroToSixtySeconds) {
  Run<kq::frmWaitForKey>(20, [&](kq::frmWaitForKey& d) {
    EXPECT_EQ(d.Caption(), "Wait for Key");
    EXPECT_EQ(d.lblKey[7].Caption(), "Key 7 goto label:");
    EXPECT_EQ(d.lblTimeout.Caption(), "On timeout/error goto:");
    ExpectRefused(d, "cboLabel(18)");
    Type(d.cboLabel[18], "Late");
    d.txtSec.SetText("61");
    ExpectRefused(d, "txtSec");
    d.txtSec.SetText("0");
    Type(d.cboLabel[0], "Zero");
    Type(d.cboLabel[10], "Square");
    Type(d.cboLabel[16], "Bye");
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Head("", "Wait for Key") +
                              " DHD=No  0=  Zero #=  Square H=  Bye T/E=Late  0sec. Term=Yes");
  kq::WaitForKeyRec want = kq::InitRecord.WaitForKey;
  kq::SetField(want.KeyLabel[0], "Zero");
  kq::SetField(want.KeyLabel[10], "Square");
  kq::SetField(want.KeyLabel[16], "Bye");
  kq::SetField(want.KeyLabel[18], "Late");
  want.DisableHangup = 0;
  want.TimeoutSec = 0;
  want.Terminate = 1;
  EXPECT_EQ(Bytes(kq::WorkRecord.WaitForKey), Bytes(want));
}

TEST_F(PromptDialogTest, WaitForKeyModifyKeepsTheCompiledLines) {
  AddLine("Menu", 20);
  kq::RecordSet rec = kq::InitRecord;
  kq::WaitForKeyRec& r = rec.WaitForKey;
  kq::SetField(r.KeyLabel[5], "Five");
  kq::SetField(r.KeyLabel[18], "Late");
  r.KeyLine[5] = 12;
  r.DisableHangup = 1;
  r.TimeoutSec = 15;
  r.Terminate = 0;
  PrepareModify(0, rec);
  Run<kq::frmWaitForKey>(20, [&](kq::frmWaitForKey& d) {
    EXPECT_EQ(d.cboLabel[5].Text(), "Five");
    EXPECT_EQ(d.chkDisableHangup.Value(), 1);
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine,
            Head("Menu", "Wait for Key") + " DHD=Yes 5=  Five T/E=Late  15sec. Term=No ");
  EXPECT_EQ(Bytes(kq::WorkRecord.WaitForKey), Bytes(r));
}

// ---- Record Sound

TEST_F(PromptDialogTest, RecordSoundRefusesInOrderAndTakesZeroSeconds) {
  Declare();
  Run<kq::frmRecordSound>(12, [&](kq::frmRecordSound& d) {
    EXPECT_EQ(d.txtRecordSec.Text(), "10");
    EXPECT_EQ(d.chkBeepBeforeRecording.Value(), 1);
    d.cboVariable.SetText("");
    d.txtRecordSec.SetText("");
    d.txtTimeoutSec.SetText("61");
    ExpectRefused(d, "cboVariable");
    d.cboVariable.UserSelect(0);
    ExpectRefused(d, "txtRecordSec");
    d.txtRecordSec.SetFocus();
    Type(d.txtRecordSec, "1000");  // the fourth digit cannot be typed
    EXPECT_EQ(d.txtRecordSec.Text(), "100");
    d.txtRecordSec.SetText("0");
    ExpectRefused(d, "cboLabel(2)");
    Type(d.cboLabel[2], "Quiet");
    ExpectRefused(d, "txtTimeoutSec");
    d.txtTimeoutSec.SetText("60");
    for (ui::CheckBox* c : {&d.chkCounterActive, &d.chkAppend, &d.chkDoNotRecordSilence,
                            &d.chkBeepDuringSilence, &d.chkDisableHangup}) {
      c->UserClick();
    }
    Type(d.cboLabel[1], "Oops");
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine,
            Head("", "Record Sound") +
                "Msg\\Name RT= 0sec. CA A BBR DRS VAB DHD=Yes E=Oops S=Quiet 60sec. ");
  EXPECT_EQ(Bytes(kq::WorkRecord.RecordSound),
            Field<28>("Msg") + Bytes(kq::PrgHdr.Variable[2]) + Int(0) + Int(1) + Int(1) + Int(1) +
                Int(1) + Int(1) + Int(1) + Bytes(kNoLabel) + Bytes(Label("Oops")) +
                Bytes(Label("Quiet")) + Int(60));
}

TEST_F(PromptDialogTest, RecordSoundWithoutFlagsShowsTheLimitAndSilence) {
  Declare();
  Run<kq::frmRecordSound>(12, [&](kq::frmRecordSound& d) {
    d.chkBeepBeforeRecording.UserClick();
    d.txtRecordSec.SetText("999");
    d.cboLabel[2].SetText("Quiet");
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Head("", "Record Sound") + "Msg\\Name RT= 999sec. DHD=No S=Quiet 2sec. ");
}

// ---- Say Number

TEST_F(VoiceFolderTest, SayNumberLayoutsFollowTheVariableAndPlayNeedsAFile) {
  Run<kq::frmSayNo>(16, [&](kq::frmSayNo& d) {
    EXPECT_EQ(d.Caption(), "Say Number");
    EXPECT_EQ(Items(d.cboLayout), (std::vector<std::string>{"All", "1", "2"}));
    EXPECT_FALSE(d.chkPlay[0].Enabled());  // a Long has no period
    EXPECT_FALSE(d.filVoice[1].Enabled());
    EXPECT_EQ(d.filVoice[1].Pattern(), "12345678.123");
    d.cboVariable.UserSelect(2);  // Name, a String
    EXPECT_EQ(Items(d.cboLayout), (std::vector<std::string>{"1", "2"}));
    d.cboLayout.UserSelect(1);
    d.cboVariable.UserSelect(1);  // Rate, a Double
    EXPECT_TRUE(d.chkPlay[0].Enabled());
    d.chkPlay[0].UserClick();
    EXPECT_TRUE(d.cboPathVar[1].Enabled());
    EXPECT_EQ(d.filVoice[0].Pattern(), "*.*");
    EXPECT_EQ(Files(d.filVoice[0]), (std::vector<std::string>{"A.vox", "a.vox", "b.vox", "c.wav"}));
    d.filVoice[0].SetListIndex(-1);
    ExpectRefused(d, "filVoice(0)");
    d.filVoice[0].UserSelect(2);
    // A path whose folder is gone shows the path message and leaves the list.
    d.cboPathVar[1].UserSelect(1);
    EXPECT_EQ(BoxTexts().back(), "Path do not exist for the defined path variable.");
    d.cboPathVar[1].UserSelect(0);
    d.filVoice[0].UserSelect(2);
    d.chkPlay[1].UserClick();
    d.chkPlay[1].UserClick();  // unchecked again: not played
    EXPECT_FALSE(d.filVoice[1].Enabled());
    d.cboVariable.UserSelect(2);  // back to a String: after the period goes
    EXPECT_EQ(d.chkPlay[0].Value(), 0);
    EXPECT_FALSE(d.cboPathVar[1].Enabled());
    d.cboLayout.UserSelect(1);
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Head("", "Say Number") + "Digits\\Name  Layout=2    DHD=No");
  const kq::SayNumberRec& r = kq::WorkRecord.SayNumber;
  EXPECT_EQ(r.Layout, 2);
  EXPECT_EQ(Bytes(r.Number), Bytes(kq::PrgHdr.Variable[2]));
  EXPECT_EQ(r.PlayFlag[0], 0);
  EXPECT_EQ(r.PlayFlag[1], 0);
  EXPECT_EQ(std::string(kq::View(r.SayPath[2])), Field<28>("Digits"));
}

TEST_F(VoiceFolderTest, SayNumberModifyShowsTheStoredFilesAndWritesBoth) {
  AddLine("Say", 16);
  kq::RecordSet rec = kq::InitRecord;
  kq::SayNumberRec& r = rec.SayNumber;
  r.Number = kq::PrgHdr.Variable[1];
  r.Layout = 1;
  r.PlayFlag[0] = 1;
  r.PlayFlag[1] = 1;
  kq::SetField(r.SayPath[0], "Voices");
  kq::SetField(r.SayPath[1], "Voices");
  kq::SetField(r.SayPath[2], "Digits");
  kq::SetField(r.SayVoiceFile[0], "b.vox");
  kq::SetField(r.SayVoiceFile[1], "c.wav");
  r.HangupLabel = Label("Bye", 3);
  PrepareModify(0, rec);
  Run<kq::frmSayNo>(16, [&](kq::frmSayNo& d) {
    EXPECT_EQ(d.cboLayout.Text(), "1");
    EXPECT_EQ(d.filVoice[0].FileName(), "b.vox");
    EXPECT_EQ(d.filVoice[1].FileName(), "c.wav");
    d.chkDisableHangup.UserClick();
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Head("Say", "Say Number") +
                              "Digits\\Rate  Layout=1     After period=Voices\\b.vox  At the "
                              "end=Voices\\c.wav DHD=Yes H=Bye");
  r.DisableHangup = 1;
  EXPECT_EQ(Bytes(kq::WorkRecord.SayNumber), Bytes(r));
}

TEST_F(VoiceFolderTest, SayNumberRefusesAVoiceFileLongerThanItsField) {
  std::ofstream(root / "voice" / "abcdefghijkl.vox") << "x";  // 16 characters
  Run<kq::frmSayNo>(16, [&](kq::frmSayNo& d) {
    d.cboVariable.UserSelect(1);  // Rate, a Double
    d.chkPlay[0].UserClick();
    ASSERT_EQ(d.filVoice[0].List(2), "abcdefghijkl.vox");
    d.filVoice[0].UserSelect(2);
    EXPECT_EQ(d.filVoice[0].ListIndex(), -1);
    ASSERT_EQ(
        BoxTexts(),
        (std::vector<std::string>{"Voice file abcdefghijkl.vox has more than 15 characters."}));
    EXPECT_EQ(p.EventsOf("msgbox").back().fields["title"].Str(), "Say Number");
    d.cmdOk.UserClick();  // no file now: refused as ever
    EXPECT_TRUE(d.Loaded());
    d.filVoice[0].UserSelect(3);
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(std::string(kq::View(kq::WorkRecord.SayNumber.SayVoiceFile[0])), Field<16>("b.vox"));
}

TEST_F(PromptDialogTest, SayNumberPlayWithoutAVoicePathIsTakenBack) {
  Declare();
  DeclarePath(kq::kPathNumber, 0, "Digits");
  Run<kq::frmSayNo>(16, [&](kq::frmSayNo& d) {
    d.chkPlay[1].UserClick();
    EXPECT_EQ(d.chkPlay[1].Value(), 0);
    EXPECT_FALSE(d.cboPathVar[2].Enabled());
    EXPECT_EQ(d.filVoice[1].Pattern(), "12345678.123");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(BoxTexts(),
            (std::vector<std::string>{"Define a voice path variable before using this function."}));
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Head("", "Say Number") + "Digits\\Count  Layout=All  DHD=No");
}

// ---- Voice

}  // namespace
}  // namespace kqtest
