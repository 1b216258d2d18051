// The call control dialogs: Wait for Call, On/Off Hook, Dial Number, Call Out, R Switch and
// CT Bus Connect, driven as a person drives them, with their records and DisplayLines.
#include <functional>

#include "dialogs/dialogs.h"
#include "dialogs/frm_call_out.h"
#include "dialogs/frm_ct_bus_con.h"
#include "dialogs/frm_dial_no.h"
#include "dialogs/frm_on_off_hook.h"
#include "dialogs/frm_r_switch.h"
#include "dialogs/frm_wait_for_call.h"
#include "tests/dialogs/dialog_fixture.h"
#include "tests/dialogs/dialog_values.h"

namespace kqtest {
namespace {

class CallDialogTest : public DialogTest {
 protected:
  static void Declare() {
    AddVariable("Count", kq::kVarLong);
    AddVariable("Rate", kq::kVarDouble);
    AddVariable("Name", kq::kVarString);
  }
};

// ---- Wait for Call

TEST_F(CallDialogTest, WaitForCallOpensWithoutVariablesAndRefusesIdentification) {
  Run<kq::frmWaitForCall>(19, [&](kq::frmWaitForCall& d) {
    EXPECT_EQ(d.Caption(), "Wait for Call");
    EXPECT_EQ(d.chkGetCallerID.Caption(), "Get caller  identification number");
    EXPECT_EQ(d.cboHour.ListCount(), 24);
    for (const ui::Control* c : std::initializer_list<const ui::Control*>{
             &d.cboHour, &d.cboMinute, &d.cboLabel, &d.lblGoto, &d.cboCallerIDTone,
             &d.cboCallerIDNo, &d.chkSystemTime, &d.cboCalledIDTone, &d.cboCalledIDNo}) {
      EXPECT_FALSE(c->Enabled()) << c->Name();
    }
    EXPECT_EQ(d.cboCallerIDTone.ListCount(), 2);
    EXPECT_EQ(d.cboCallerIDNo.ListCount(), 0);
    d.chkGetCallerID.UserClick();
    EXPECT_EQ(d.chkGetCallerID.Value(), 0);
    EXPECT_FALSE(d.cboCallerIDTone.Enabled());
    d.chkGetCalledID.UserClick();
    EXPECT_EQ(d.chkGetCalledID.Value(), 0);
    d.cmdOk.UserClick();
  });
  const std::string message = "Define a long or string variable before using this function.";
  EXPECT_EQ(BoxTexts(), (std::vector<std::string>{message, message}));
  EXPECT_EQ(p.EventsOf("msgbox")[0].fields["title"].Str(), "Variable Define Error");
  EXPECT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Head("", "Wait for Call") + "R=2");
  EXPECT_EQ(Bytes(kq::WorkRecord.WaitForCall), Bytes(kq::InitRecord.WaitForCall));
}

TEST_F(CallDialogTest, WaitForCallWithEveryGroupBuildsTheWholeLine) {
  Declare();
  Run<kq::frmWaitForCall>(19, [&](kq::frmWaitForCall& d) {
    EXPECT_EQ(d.cboCallerIDNo.ListCount(), 2);  // Long and String only
    d.cboRings.UserSelect(4);
    d.chkTerminate.UserClick();
    EXPECT_TRUE(d.cboHour.Enabled());
    EXPECT_TRUE(d.cboLabel.Enabled());
    d.cboHour.UserSelect(23);
    d.cboMinute.UserSelect(59);
    Type(d.cboLabel, "Daily label 15ch");  // the 16th key is refused
    d.chkGetCallerID.UserClick();
    EXPECT_TRUE(d.cboCallerIDNo.Enabled());
    EXPECT_FALSE(d.chkSystemTime.Enabled());
    d.cboCallerIDTone.UserSelect(1);
    EXPECT_TRUE(d.chkSystemTime.Enabled());
    d.chkSystemTime.UserClick();
    d.cboCallerIDNo.UserSelect(1);
    d.chkGetCalledID.UserClick();
    // Going back to DTMF disables the system time but keeps its value.
    d.cboCallerIDTone.UserSelect(0);
    EXPECT_FALSE(d.chkSystemTime.Enabled());
    EXPECT_EQ(d.chkSystemTime.Value(), 1);
    d.cboCalledIDTone.UserSelect(1);
    Type(d.txtLabel, "ABCDEFGHIJKLMNO");
    d.cmdOk.UserClick();
  });
  EXPECT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Head("ABCDEFGHIJKLMNO", "Wait for Call") +
                              "R=5  At 24.59 o'clock goto Daily label 15c"
                              "  Caller T=DTMF Caller ID=Name  Update system time"
                              "  Called T=FSK  Called ID=Count");
  EXPECT_EQ(Bytes(kq::WorkRecord.WaitForCall),
            Int(5) + Int(1) + Int(24) + Int(59) + Bytes(Label("Daily label 15c")) + Int(1) +
                Int(0) + Bytes(Var(2, "Name")) + Int(1) + Int(1) + Int(1) + Bytes(Var(0, "Count")));
}

TEST_F(CallDialogTest, WaitForCallUncheckingRestoresDefaultsAndSystemTimeAloneShowsNothing) {
  Declare();
  AddLine("Night", 13);
  AddLine("Call", 19);
  kq::RecordSet rec = kq::InitRecord;
  kq::WaitForCallRec& w = rec.WaitForCall;
  w.Rings = 3;
  w.DailyGoto = 1;
  w.DailyHour = 7;
  w.DailyMinute = 30;
  w.DailyLabel = Label("Night", 0);
  w.GetCallerId = 1;
  w.CallerIdTone = 1;
  w.CallerIdVar = Var(0, "Count");
  w.UpdateSystemTime = 1;
  PrepareModify(1, rec);
  Run<kq::frmWaitForCall>(19, [&](kq::frmWaitForCall& d) {
    EXPECT_EQ(d.txtLabel.Text(), "Call");
    EXPECT_EQ(d.cboHour.Text(), " 7");
    EXPECT_EQ(d.cboMinute.Text(), " 30");
    EXPECT_EQ(d.cboLabel.Text(), "Night");
    EXPECT_TRUE(d.cboHour.Enabled());
    EXPECT_EQ(d.cboCallerIDTone.ListIndex(), 1);
    EXPECT_EQ(kq::RTrim(d.cboCallerIDNo.Text()), "Count");
    EXPECT_TRUE(d.chkSystemTime.Enabled());
    EXPECT_FALSE(d.cboCalledIDNo.Enabled());
    d.chkTerminate.UserClick();
    EXPECT_FALSE(d.cboHour.Enabled());
    EXPECT_EQ(d.cboHour.Text(), " 1");
    EXPECT_EQ(d.cboMinute.Text(), " 0");
    EXPECT_EQ(d.cboLabel.Text(), "");
    d.chkGetCallerID.UserClick();  // unchecked: tone back to DTMF, system time disabled
    EXPECT_EQ(d.cboCallerIDTone.ListIndex(), 0);
    EXPECT_FALSE(d.chkSystemTime.Enabled());
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, Head("Call", "Wait for Call") + "R=3");
  EXPECT_EQ(Bytes(kq::WorkRecord.WaitForCall),
            Int(3) + Int(0) + Int(1) + Int(0) + Bytes(Label("", 0)) + Int(0) + Int(0) +
                Bytes(Var(0, "Count")) + Int(1) + Int(0) + Int(0) + Bytes(Var(0, "Count")));
}

// ---- On/Off Hook and R Switch

TEST_F(CallDialogTest, OnOffHookShowsTheActionWithItsPaddingAndKeysOnlyBeep) {
  Run<kq::frmOnOffHook>(43, [&](kq::frmOnOffHook& d) {
    EXPECT_TRUE(d.optAction[0].Value());
    d.optAction[1].SetFocus();
    Type(d.optAction[1], " ");
    EXPECT_TRUE(d.optAction[0].Value());
    EXPECT_EQ(p.CountOf("beep"), 1);
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, Head("", "On/Off Hook") + "On hook  ");
  EXPECT_EQ(kq::WorkRecord.OnOffHook.HookAction, 0);
}

TEST_F(CallDialogTest, RSwitchOffersTenToThousandMilliseconds) {
  Run<kq::frmRSwitch>(15, [&](kq::frmRSwitch& d) {
    EXPECT_EQ(d.Caption(), "RSwitch");
    EXPECT_EQ(d.cboInterrupt.ListCount(), 100);
    EXPECT_EQ(d.cboInterrupt.Text(), " 150");
    EXPECT_EQ(d.cboInterrupt.List(99), " 1000");
    d.cboInterrupt.UserSelect(0);
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, Head("", "R Switch") + "10ms");
  EXPECT_EQ(Bytes(kq::WorkRecord.RSwitch), Int(10));
}

// ---- Dial Number

TEST_F(CallDialogTest, DialNumberNeedsTheNoDialToneTargetOnlyWhenWaiting) {
  Declare();
  Run<kq::frmDialNo>(37, [&](kq::frmDialNo& d) {
    EXPECT_EQ(d.Caption(), "Dial No.");
    EXPECT_FALSE(d.cboLabel[0].Enabled());
    d.chkWaitForDialTone.UserClick();
    EXPECT_TRUE(d.cboLabel[0].Enabled());
    d.cboLabel[0].SetText("   ");
    Type(d.txtLabel, "Dial");
    kq::FuncLabel = "before";
    ExpectRefused(d, "cboLabel(0)");
    EXPECT_EQ(d.cboLabel[0].Text(), "");
    EXPECT_EQ(kq::FuncLabel, "before");  // the line's label is not taken yet
    Type(d.cboLabel[0], "NoTone");
    d.chkWaitForDialTone.UserClick();  // unchecking empties the target
    EXPECT_EQ(d.cboLabel[0].Text(), "");
    EXPECT_FALSE(d.lblNoDialToneLabel.Enabled());
    d.chkWaitForDialTone.UserClick();
    Type(d.cboLabel[0], "NoTone");
    Type(d.cboLabel[1], "Failed");
    d.cboVariable.SetFocus();
    d.cboVariable.SetText("");
    Type(d.cboVariable, "0123456789");  // nine characters at most
    EXPECT_EQ(d.cboVariable.Text(), "012345678");
    d.cmdOk.UserClick();
  });
  EXPECT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Head("Dial", "Dial Number") + "12345678 WFDT NDT=NoTone E=Failed");
  EXPECT_EQ(Bytes(kq::WorkRecord.DialNumber),
            Bytes(Var(8, "12345678")) + Int(1) + Bytes(Label("NoTone")) + Bytes(Label("Failed")));
}

TEST_F(CallDialogTest, DialNumberModifyKeepsANumberThatIsNotWhole) {
  Declare();
  AddLine("", 37);
  kq::RecordSet rec = kq::InitRecord;
  rec.DialNumber.Number = Var(2, "Name");
  rec.DialNumber.ErrorLabel = Label("Err", 4);
  PrepareModify(0, rec);
  Run<kq::frmDialNo>(37, [&](kq::frmDialNo& d) {
    EXPECT_EQ(kq::RTrim(d.cboVariable.Text()), "Name");
    EXPECT_EQ(d.chkWaitForDialTone.Value(), 0);
    d.cboVariable.SetText("1.5");
    d.cboLabel[1].SetText("");
    d.cmdOk.UserClick();
  });
  EXPECT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Head("", "Dial Number") + "Name");
  EXPECT_EQ(Bytes(kq::WorkRecord.DialNumber),
            Bytes(Var(2, "Name")) + Int(0) + Bytes(kq::BlankLabelRef) + Bytes(Label("", 4)));
}

// ---- Call Out

TEST_F(CallDialogTest, CallOutRefusesInOrderThenTheRingCount) {
  Declare();
  Run<kq::frmCallOut>(5, [&](kq::frmCallOut& d) {
    EXPECT_EQ(d.txtTimeout.Text(), "5");
    EXPECT_EQ(d.txtTimeout.MaxLength(), 2);
    EXPECT_EQ(d.chkWaitForDialTone.Value(), 1);
    for (const int i : {0, 1, 2, 4}) {
      d.cboLabel[i].SetText(" ");
      ExpectRefused(d, "cboLabel(" + std::to_string(i) + ")");
      EXPECT_EQ(d.cboLabel[i].Text(), "");
      Type(d.cboLabel[i], "T" + std::to_string(i));
    }
    for (const std::string rings : {"", "0", "61"}) {
      d.txtTimeout.SetText(rings);
      ExpectRefused(d, "txtTimeout");
    }
    d.txtTimeout.SetText("");
    Type(d.txtTimeout, "6x0");
    EXPECT_EQ(d.txtTimeout.Text(), "60");
    d.chkWaitForDialTone.UserClick();
    d.cmdOk.UserClick();
  });
  EXPECT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Head("", "Call Out") +
                              "Count BusyTone=T0 CallAnsw=T1 NoCall=T2 "
                              "NoAnsw=T4  NOR= 60 Wait=No ");
}

TEST_F(CallDialogTest, CallOutShowsAllSevenOutcomesTheLastTwoWithoutKeyword) {
  Declare();
  Run<kq::frmCallOut>(5, [&](kq::frmCallOut& d) {
    for (int i = 0; i < kq::frmCallOut::kOutcomes; ++i) {
      Type(d.cboLabel[i], i == 6 ? "Fifteen chars 6" : "L" + std::to_string(i));
    }
    d.cboVariable.SetFocus();
    d.cboVariable.SetText("");
    Type(d.cboVariable, "1.5");  // any String key; only a whole number is stored
    d.cmdOk.UserClick();
  });
  EXPECT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Head("", "Call Out") +
                              " BusyTone=L0 CallAnsw=L1 NoCall=L2 Operator=L3 NoAnsw=L4 L5 "
                              "Fifteen chars 6  NOR= 5 Wait=Yes");
  std::string labels;
  for (int i = 0; i < 6; ++i) labels += Field<16>("L" + std::to_string(i));
  labels += Field<16>("Fifteen chars 6");
  std::string lines;
  for (int i = 0; i < 7; ++i) lines += Int(-1);
  EXPECT_EQ(Bytes(kq::WorkRecord.CallOut),
            labels + lines + Int(5) + Int(1) + Bytes(kq::BlankVarRef));
}

// ---- CT Bus Connect

TEST_F(CallDialogTest, CTBusConnectReadsFiveLongSlotsInOrder) {
  Declare();
  Run<kq::frmCTBusCon>(54, [&](kq::frmCTBusCon& d) {
    EXPECT_EQ(d.cboVar[0].ListCount(), 1);  // Long variables only
    EXPECT_TRUE(d.optCTBusType[0].Value());
    d.cboVar[2].SetText("");
    ExpectRefused(d, "cboVar(2)");
    d.cboVar[2].SetFocus();
    Type(d.cboVar[2], "-7");  // digits only
    EXPECT_EQ(d.cboVar[2].Text(), "7");
    d.cboVar[4].SetText("");
    Type(d.cboVar[4], "31");
    d.optCTBusType[1].UserClick();
    Type(d.cboLabel, "Bus error");
    d.cmdOk.UserClick();
  });
  EXPECT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Head("", "CT Bus Connect") +
                              "H.100  BN=Count FS=Count FT=7 TS=Count TT=31 E=Bus error");
  const std::string count = Bytes(Var(0, "Count"));
  EXPECT_EQ(Bytes(kq::WorkRecord.CTBusConnect), count + count + Bytes(Var(8, "7")) + count +
                                                    Bytes(Var(8, "31")) + Int(1) +
                                                    Bytes(Label("Bus error")));

  Run<kq::frmCTBusCon>(54, [&](kq::frmCTBusCon& d) { d.cmdOk.UserClick(); });
  EXPECT_EQ(kq::FuncLine,
            Head("", "CT Bus Connect") + "MVIP  BN=Count FS=Count FT=Count TS=Count TT=Count");
}

}  // namespace
}  // namespace kqtest
