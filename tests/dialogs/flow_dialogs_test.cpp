#include "dialogs/dialogs.h"
#include "dialogs/frm_condition.h"
#include "dialogs/frm_delay.h"
#include "dialogs/frm_gosub.h"
#include "dialogs/frm_goto.h"
#include "dialogs/frm_random.h"
#include "dialogs/frm_remark.h"
#include "dialogs/frm_return.h"
#include "dialogs/services.h"
#include "tests/dialogs/dialog_fixture.h"
#include "tests/dialogs/dialog_values.h"

namespace kqtest {
namespace {

using FlowDialogTest = DialogTest;

// ---- Goto

TEST_F(FlowDialogTest, GotoBuildsItsLineAndRecord) {
  AddLine("Start", 13);
  Run<kq::frmGoto>(10, [&](kq::frmGoto& d) {
    EXPECT_EQ(d.Caption(), "Goto");
    EXPECT_EQ(d.lblGotoLabel.Caption(), "Goto Label:");
    EXPECT_EQ(d.cboLabel.ListCount(), 1);
    EXPECT_EQ(d.cboLabel.Text(), "");
    Type(d.txtLabel, "Top");
    d.cboLabel.UserSelect(0);
    d.cmdOk.UserClick();
  });
  EXPECT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, "\tTop\t" + Name17("Goto") + "\tStart");
  EXPECT_EQ(kq::FuncLabel, std::string("Top") + '\0');
  EXPECT_EQ(Bytes(kq::WorkRecord.Goto.Target), Bytes(Label("Start")));
}

TEST_F(FlowDialogTest, GotoRefusesAnEmptyTargetAndLeavesTheLabelAlone) {
  Run<kq::frmGoto>(10, [&](kq::frmGoto& d) {
    kq::FuncLabel = "kept";
    Type(d.txtLabel, "Here");
    ExpectRefused(d, "cboLabel");
    EXPECT_EQ(kq::FuncLabel, "kept");
    d.cboLabel.SetText("   ");
    ExpectRefused(d, "cboLabel");
    EXPECT_EQ(d.cboLabel.Text(), "");
    // A label that no line bears is accepted: compile finds it.
    Type(d.cboLabel, " Nowhere ");
    d.cmdOk.UserClick();
  });
  EXPECT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, "\tHere\t" + Name17("Goto") + "\tNowhere");
}

TEST_F(FlowDialogTest, LabelsOfFifteenCharactersAndTheSixteenthKey) {
  const std::string fifteen = "ABCDEFGHIJKLMNO";
  Run<kq::frmGoto>(10, [&](kq::frmGoto& d) {
    Type(d.txtLabel, fifteen + "P");
    EXPECT_EQ(d.txtLabel.Text(), fifteen);  // the field's maximum length
    Type(d.cboLabel, fifteen);
    const int beeps = p.CountOf("beep");
    Type(d.cboLabel, "P");
    EXPECT_EQ(p.CountOf("beep"), beeps + 1);
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, "\t" + fifteen + "\t" + Name17("Goto") + "\t" + fifteen);
  // Fifteen characters end in the NUL with no blank behind it.
  EXPECT_EQ(Bytes(kq::WorkRecord.Goto.Target.LabelRefName), fifteen + '\0');
}

TEST_F(FlowDialogTest, EnterIsSwallowedInFieldsAndPressesTheButtons) {
  Run<kq::frmGoto>(10, [&](kq::frmGoto& d) {
    Type(d.txtLabel, "\r");
    Type(d.cboLabel, "\r");
    EXPECT_TRUE(d.Loaded());
    EXPECT_EQ(p.CountOf("beep"), 0);
    Type(d.cboLabel, "X");
    d.UserKey(d.cmdOk, 13);
    EXPECT_FALSE(d.Loaded());
  });
  EXPECT_TRUE(kq::FuncOk);
  Run<kq::frmGoto>(10, [&](kq::frmGoto& d) {
    Type(d.cboLabel, "X");
    d.UserKey(d.cmdCancel, 13);
    EXPECT_FALSE(d.Loaded());
  });
  EXPECT_FALSE(kq::FuncOk);
}

TEST_F(FlowDialogTest, ModifyLoadsTheLinesLabelAndRecord) {
  AddLine("Start", 13);
  AddLine("Jump", 10);
  kq::RecordSet rec = kq::InitRecord;
  rec.Goto.Target = Label("Start", 0);
  PrepareModify(1, rec);
  Run<kq::frmGoto>(10, [&](kq::frmGoto& d) {
    EXPECT_EQ(d.txtLabel.Text(), "Jump");
    EXPECT_EQ(d.cboLabel.Text(), "Start");
    EXPECT_EQ(d.cboLabel.ListIndex(), 0);
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, "\tJump\t" + Name17("Goto") + "\tStart");
  // The compiled line number of the block is kept: dialogs write only the name.
  EXPECT_EQ(Bytes(kq::WorkRecord.Goto.Target), Bytes(Label("Start", 0)));
}

TEST_F(FlowDialogTest, DialogIsCentredOnTheMainWindow) {
  Run<kq::frmGoto>(10, [&](kq::frmGoto& d) {
    EXPECT_EQ(d.Left(), window.Left() + (window.Width() - d.Width()) / 2);
    EXPECT_EQ(d.Top(), window.Top() + (window.Height() - d.Height()) / 2);
  });
}

// ---- Gosub

TEST_F(FlowDialogTest, GosubWithAndWithoutErrorLabel) {
  Run<kq::frmGosub>(9, [&](kq::frmGosub& d) {
    EXPECT_EQ(d.lblGosubLabel.Caption(), "Gosub Label:");
    EXPECT_EQ(d.lblError.Caption(), "On error goto:");
    Type(d.cboLabel, "Sub");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, "\t\t" + Name17("Gosub") + "\tSub");
  EXPECT_EQ(Bytes(kq::WorkRecord.Gosub), Bytes(Label("Sub")) + Bytes(Label("")));
  Run<kq::frmGosub>(9, [&](kq::frmGosub& d) {
    Type(d.txtLabel, "Call");
    Type(d.cboLabel, "Sub");
    Type(d.cboError, "Oops");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, "\tCall\t" + Name17("Gosub") + "\tSub E=Oops");
  EXPECT_EQ(Bytes(kq::WorkRecord.Gosub), Bytes(Label("Sub")) + Bytes(Label("Oops")));
}

TEST_F(FlowDialogTest, GosubRefusesAnEmptyTarget) {
  Run<kq::frmGosub>(9, [&](kq::frmGosub& d) {
    kq::FuncLabel = "kept";
    Type(d.cboError, "Oops");
    ExpectRefused(d, "cboLabel");
    EXPECT_EQ(kq::FuncLabel, "kept");
  });
  EXPECT_FALSE(kq::FuncOk);
}

// ---- Return

TEST_F(FlowDialogTest, ReturnWithoutErrorLabelEndsAtTheFunctionName) {
  Run<kq::frmReturn>(14, [&](kq::frmReturn& d) { d.cmdOk.UserClick(); });
  EXPECT_EQ(kq::FuncLine, "\t\tReturn");
  EXPECT_EQ(kq::WorkRecord.Return.ReturnReserved, -1);
  Run<kq::frmReturn>(14, [&](kq::frmReturn& d) {
    Type(d.txtLabel, "Back");
    Type(d.cboError, "Err");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, "\tBack\t" + Name17("Return") + "\t E=Err");
}

TEST_F(FlowDialogTest, ReturnKeepsTheReservedFieldOfTheLine) {
  AddLine("", 14);
  kq::RecordSet rec = kq::InitRecord;
  rec.Return.ReturnReserved = 77;
  rec.Return.ErrorLabel = Label("Err", 5);
  PrepareModify(0, rec);
  Run<kq::frmReturn>(14, [&](kq::frmReturn& d) {
    EXPECT_EQ(d.cboError.Text(), "Err");
    d.cboError.SetText("");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::WorkRecord.Return.ReturnReserved, 77);
  EXPECT_EQ(Bytes(kq::WorkRecord.Return.ErrorLabel), Bytes(Label("", 5)));
}

// ---- Delay

TEST_F(FlowDialogTest, DelayShowsTheDefaultAndStoresTheNumber) {
  Run<kq::frmDelay>(4, [&](kq::frmDelay& d) {
    EXPECT_EQ(d.txtDelay.Text(), "10");
    EXPECT_EQ(d.lblMS.Caption(), "ms");
    d.txtDelay.SelectAll();
    Type(d.txtDelay, "9x9-995");
    EXPECT_EQ(d.txtDelay.Text(), "9999");
    EXPECT_EQ(p.CountOf("beep"), 2);
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, "\t\t" + Name17("Delay") + "\t9999ms");
  EXPECT_EQ(kq::WorkRecord.Delay.DelayMs, 9999);
}

TEST_F(FlowDialogTest, DelayLeftEmptyStoresZero) {
  Run<kq::frmDelay>(4, [&](kq::frmDelay& d) {
    d.txtDelay.SetText("");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, "\t\t" + Name17("Delay") + "\t0ms");
  EXPECT_EQ(kq::WorkRecord.Delay.DelayMs, 0);
}

// ---- Remark

TEST_F(FlowDialogTest, RemarkTakesEveryCharacterUpToFiftyOne) {
  const std::string text = "Say \"hello\" {x} \xE9t\xE9 and more text to fill it up!";
  const std::string full = text + std::string(51 - text.size(), '.');
  ASSERT_EQ(full.size(), 51u);
  Run<kq::frmRemark>(13, [&](kq::frmRemark& d) {
    EXPECT_EQ(d.lblRemark.Caption(), "Remark:");
    Type(d.txtRemark, full + "!");
    EXPECT_EQ(d.txtRemark.Text(), full);
    EXPECT_EQ(p.CountOf("beep"), 0);
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, "\t\t" + Name17("Remark") + "\t" + full);
  EXPECT_EQ(Bytes(kq::WorkRecord.Remark), full + '\0');
}

TEST_F(FlowDialogTest, EnterInARemarkWithTextFinishesTheDialog) {
  Run<kq::frmRemark>(13, [&](kq::frmRemark& d) {
    Type(d.txtRemark, "\r");
    EXPECT_TRUE(d.Loaded());
    EXPECT_EQ(d.txtRemark.Text(), "");
    Type(d.txtRemark, "Note\r");
    EXPECT_FALSE(d.Loaded());
  });
  EXPECT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, "\t\t" + Name17("Remark") + "\tNote");
}

TEST_F(FlowDialogTest, RemarkSetWithATabKeepsIt) {
  Run<kq::frmRemark>(13, [&](kq::frmRemark& d) {
    d.txtRemark.SetText("a\tb");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, "\t\t" + Name17("Remark") + "\ta\tb");
}

TEST_F(FlowDialogTest, PastedLabelObeysTheLabelsRules) {
  Run<kq::frmGoto>(10, [&](kq::frmGoto& d) {
    kq::TypeText(d.txtLabel, "My \"label\"\r is long enough");
    EXPECT_EQ(d.txtLabel.Text(), "My label is lon");
    EXPECT_EQ(p.CountOf("beep"), 2);
    EXPECT_TRUE(d.Loaded());
  });
}

TEST_F(FlowDialogTest, EmptyRemark) {
  Run<kq::frmRemark>(13, [&](kq::frmRemark& d) { d.cmdOk.UserClick(); });
  EXPECT_EQ(kq::FuncLine, "\t\t" + Name17("Remark") + "\t");
  EXPECT_TRUE(kq::FieldEmpty(kq::View(kq::WorkRecord.Remark.RemarkText)));
}

// ---- Random

TEST_F(FlowDialogTest, RandomBoundsAreCheckedInOrder) {
  AddVariable("Text", kq::kVarString);
  AddVariable("Count", kq::kVarLong);
  Run<kq::frmRandom>(11, [&](kq::frmRandom& d) {
    ASSERT_EQ(d.cboVariable.ListCount(), 1);  // Long variables only
    EXPECT_EQ(d.txtLower.Text(), "0");
    EXPECT_EQ(d.txtUpper.Text(), "10");
    EXPECT_EQ(d.lblLessEqual[1].Caption(), "<=");
    d.txtLower.SetText("");
    d.txtUpper.SetText("");
    ExpectRefused(d, "txtLower");
    d.txtLower.SetText("5");
    ExpectRefused(d, "txtUpper");
    d.txtUpper.SetText("5");
    ExpectRefused(d, "txtUpper");
    d.txtUpper.SetText("4");
    ExpectRefused(d, "txtUpper");
    d.txtLower.SetText("0");
    d.txtUpper.SetText("32768");
    ExpectRefused(d, "txtUpper");
    d.txtUpper.SetText("32767");
    d.cmdOk.UserClick();
  });
  EXPECT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, "\t\t" + Name17("Random") + "\t0 <= Count <= 32767");
  EXPECT_EQ(Bytes(kq::WorkRecord.Random.Target), Bytes(kq::PrgHdr.Variable[1]));
  EXPECT_EQ(kq::WorkRecord.Random.Lower, 0);
  EXPECT_EQ(kq::WorkRecord.Random.Upper, 32767);
}

TEST_F(FlowDialogTest, RandomFieldsTakeDigitsOnly) {
  AddVariable("Count", kq::kVarLong);
  Run<kq::frmRandom>(11, [&](kq::frmRandom& d) {
    d.txtLower.SetText("");
    Type(d.txtLower, "-1a234567");
    EXPECT_EQ(d.txtLower.Text(), "12345");
    EXPECT_EQ(p.CountOf("beep"), 2);
  });
}

TEST_F(FlowDialogTest, RandomNeedsALongVariable) {
  AddVariable("Sum", kq::kVarDouble);
  PrepareNew(11);
  kq::GetFuncParm(11);
  EXPECT_EQ(BoxTexts(),
            (std::vector<std::string>{"Define a long variable before using this function."}));
  EXPECT_EQ(p.CountOf("show"), 0);
}

// ---- Condition

class ConditionTest : public FlowDialogTest {
 protected:
  void SetUp() override {
    FlowDialogTest::SetUp();
    AddVariable("Count", kq::kVarLong);   // 0
    AddVariable("Sum", kq::kVarDouble);   // 1
    AddVariable("Name", kq::kVarString);  // 2
    AddVariable("City", kq::kVarString);  // 3
    AddLine("Top", 13);
    AddLine("Next", 13);
  }
  static std::string Trimmed(const ui::ComboBox& c) { return kq::RTrim(c.Text()); }
  static std::vector<std::string> Items(const ui::ComboBox& c) {
    std::vector<std::string> out;
    for (int i = 0; i < c.ListCount(); ++i) out.push_back(kq::RTrim(c.List(i)));
    return out;
  }
};

TEST_F(ConditionTest, NewLineOffersTheLeftVariableOnTheRight) {
  Run<kq::frmCondition>(3, [&](kq::frmCondition& d) {
    EXPECT_EQ(d.lblIf.Caption(), "IF");
    EXPECT_EQ(d.lblThenLabel.Caption(), "THEN GOTO");
    EXPECT_EQ(d.lblElseLabel.Caption(), "ELSE GOTO");
    EXPECT_EQ(Trimmed(d.cboVar[0]), "Count");
    EXPECT_EQ(Items(d.cboVar[1]), (std::vector<std::string>{"Count", "Sum"}));
    EXPECT_EQ(Trimmed(d.cboVar[1]), "Count");
    EXPECT_EQ(d.cboOperator.ListCount(), 6);
    EXPECT_EQ(d.cboOperator.Text(), "=");
    d.cboOperator.UserSelect(5);
    // A String on the left offers Strings on the right and keeps "=" or "<>".
    d.cboVar[0].UserSelect(2);
    EXPECT_EQ(Items(d.cboVar[1]), (std::vector<std::string>{"Name", "City"}));
    EXPECT_EQ(Trimmed(d.cboVar[1]), "Name");
    EXPECT_EQ(d.cboOperator.ListCount(), 2);
    EXPECT_EQ(d.cboOperator.Text(), "=");
    d.cboOperator.UserSelect(1);
    d.cboVar[1].UserSelect(1);
    d.cboLabel[0].UserSelect(0);
    d.cboLabel[1].UserSelect(1);
    d.cmdOk.UserClick();
  });
  EXPECT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, "\t\t" + Name17("Condition") + "\tIF Name <> City THEN Top ELSE Next");
  const kq::ConditionRec& r = kq::WorkRecord.Condition;
  EXPECT_EQ(Bytes(r.Left), Bytes(kq::PrgHdr.Variable[2]));
  EXPECT_EQ(Bytes(r.Right), Bytes(kq::PrgHdr.Variable[3]));
  EXPECT_EQ(r.Operator, 1);
  EXPECT_EQ(Bytes(r.ThenLabel), Bytes(Label("Top").LabelRefName));
  EXPECT_EQ(Bytes(r.ElseLabel), Bytes(Label("Next").LabelRefName));
  EXPECT_EQ(r.ThenLine, -1);
  EXPECT_EQ(r.ElseLine, -1);
}

TEST_F(ConditionTest, ConstantOnTheRightFollowsTheLeftType) {
  Run<kq::frmCondition>(3, [&](kq::frmCondition& d) {
    d.cboVar[1].SetText("");
    Type(d.cboVar[1], "1.5");  // Long on the left: the point is refused
    EXPECT_EQ(d.cboVar[1].Text(), "15");
    EXPECT_EQ(p.CountOf("beep"), 1);
    d.cboVar[1].SetText("");
    ExpectRefused(d, "cboVar(1)");
    Type(d.cboVar[1], "-12");
    Type(d.cboLabel[0], "Top");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, "\t\t" + Name17("Condition") + "\tIF Count = -12 THEN Top");
  kq::VarRef expected;
  expected.VarRefType = kq::kConstLong;
  kq::SetField(expected.VarRefName, "-12");
  EXPECT_EQ(Bytes(kq::WorkRecord.Condition.Right), Bytes(expected));
}

TEST_F(ConditionTest, StringConstantShowsWithoutQuotes) {
  Run<kq::frmCondition>(3, [&](kq::frmCondition& d) {
    d.cboVar[0].UserSelect(3);
    d.cboVar[1].SetText("");
    Type(d.cboVar[1], "Oslo \"x\"");  // the double quote is refused
    Type(d.cboLabel[0], "Top");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, "\t\t" + Name17("Condition") + "\tIF City = Oslo x THEN Top");
  EXPECT_EQ(kq::WorkRecord.Condition.Right.VarRefType, kq::kConstString);
}

TEST_F(ConditionTest, ThenIsMandatoryWithoutAMessage) {
  Run<kq::frmCondition>(3, [&](kq::frmCondition& d) {
    d.cboLabel[0].SetText("  ");
    Type(d.cboLabel[1], "Next");
    ExpectRefused(d, "cboLabel(0)");
    EXPECT_EQ(d.cboLabel[0].Text(), "");
  });
  EXPECT_FALSE(kq::FuncOk);
}

TEST_F(ConditionTest, ModifiedStringConditionWithOperatorBeyondItsListFallsBackToEquals) {
  AddLine("Test", 3);
  kq::RecordSet rec = kq::InitRecord;
  rec.Condition.Left = kq::PrgHdr.Variable[2];
  rec.Condition.Right.VarRefType = kq::kConstString;
  kq::SetField(rec.Condition.Right.VarRefName, "abc");
  rec.Condition.Operator = 4;  // "<=", from when Name was a Long
  kq::SetField(rec.Condition.ThenLabel, "Top");
  kq::SetField(rec.Condition.ElseLabel, "Gone");
  PrepareModify(2, rec);
  Run<kq::frmCondition>(3, [&](kq::frmCondition& d) {
    EXPECT_EQ(d.txtLabel.Text(), "Test");
    EXPECT_EQ(Trimmed(d.cboVar[0]), "Name");
    EXPECT_EQ(d.cboVar[1].Text(), "abc");
    EXPECT_EQ(d.cboVar[1].ListIndex(), -1);
    EXPECT_EQ(d.cboOperator.Text(), "=");
    EXPECT_EQ(d.cboLabel[0].ListIndex(), 0);
    EXPECT_EQ(d.cboLabel[1].Text(), "Gone");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, "\tTest\t" + Name17("Condition") + "\tIF Name = abc THEN Top ELSE Gone");
  EXPECT_EQ(kq::WorkRecord.Condition.Operator, 0);
}

TEST_F(ConditionTest, RightSideKeysFollowTheTypeOfTheLeftVariable) {
  Run<kq::frmCondition>(3, [&](kq::frmCondition& d) {
    // Sum (Double) on the left: a decimal point is a legal key on the right.
    d.cboVar[0].UserSelect(1);
    EXPECT_EQ(Items(d.cboVar[1]), (std::vector<std::string>{"Count", "Sum"}));
    EXPECT_EQ(Trimmed(d.cboVar[1]), "Sum");
    d.cboVar[1].SetText("");
    Type(d.cboVar[1], "-2.5.");
    EXPECT_EQ(d.cboVar[1].Text(), "-2.5");
    EXPECT_EQ(p.CountOf("beep"), 1);
    // The left side is not filtered.
    Type(d.cboVar[0], "x");
    EXPECT_EQ(p.CountOf("beep"), 1);
    Type(d.cboLabel[0], "Top");
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, "\t\t" + Name17("Condition") + "\tIF Sum = -2.5 THEN Top");
  kq::VarRef expected;
  expected.VarRefType = kq::kConstDouble;
  kq::SetField(expected.VarRefName, "-2.5");
  EXPECT_EQ(Bytes(kq::WorkRecord.Condition.Right), Bytes(expected));
  EXPECT_EQ(Bytes(kq::WorkRecord.Condition.Left), Bytes(kq::PrgHdr.Variable[1]));
}

TEST_F(ConditionTest, AnEmptyLongConstantIsRefusedBeforeTheThenTarget) {
  Run<kq::frmCondition>(3, [&](kq::frmCondition& d) {
    d.cboVar[1].SetText("");
    Type(d.cboLabel[0], "Top");
    // An empty Long constant is refused before the THEN target is looked at.
    d.cboLabel[0].SetText("");
    ExpectRefused(d, "cboVar(1)");
    Type(d.cboVar[1], "4");
    ExpectRefused(d, "cboLabel(0)");
  });
  EXPECT_FALSE(kq::FuncOk);
}

TEST_F(FlowDialogTest, ConditionNeedsAVariableOfAnyKind) {
  PrepareNew(3);
  kq::GetFuncParm(3);
  EXPECT_EQ(BoxTexts(),
            (std::vector<std::string>{"Define a long, double or string variable before using this "
                                      "function."}));
  EXPECT_EQ(p.CountOf("show"), 0);
  AddVariable("Sum", kq::kVarDouble);
  Run<kq::frmCondition>(
      3, [&](kq::frmCondition& d) { EXPECT_EQ(kq::RTrim(d.cboVar[0].Text()), "Sum"); });
}

TEST_F(ConditionTest, CancelChangesNothing) {
  kq::FuncLine = Name17("Condition");
  Run<kq::frmCondition>(3, [&](kq::frmCondition& d) {
    Type(d.cboLabel[0], "Top");
    d.cmdCancel.UserClick();
  });
  EXPECT_FALSE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Name17("Condition"));
}

}  // namespace
}  // namespace kqtest
