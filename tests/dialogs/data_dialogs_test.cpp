#include <functional>

#include "dialogs/dialogs.h"
#include "dialogs/frm_assign.h"
#include "dialogs/frm_assign_pa.h"
#include "dialogs/frm_calculate.h"
#include "dialogs/frm_get_ch_no.h"
#include "dialogs/frm_get_date.h"
#include "dialogs/frm_get_day_of_week.h"
#include "dialogs/frm_get_time.h"
#include "dialogs/frm_in_str.h"
#include "dialogs/frm_left_str.h"
#include "dialogs/frm_len_str.h"
#include "dialogs/frm_right_str.h"
#include "dialogs/frm_trim_str.h"
#include "tests/dialogs/dialog_fixture.h"
#include "tests/dialogs/dialog_values.h"

namespace kqtest {
namespace {

// A combo's text and items as a person reads them: variable names stand padded in the list.
std::string Shown(const ui::ComboBox& c) {
  return kq::RTrim(c.Text());
}

class DataDialogTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    AddVariable("Count", kq::kVarLong);
    AddVariable("Rate", kq::kVarDouble);
    AddVariable("Name", kq::kVarString);
    AddVariable("Total", kq::kVarLong);
    AddVariable("Word", kq::kVarString);
  }
};

// ---- Assign

TEST_F(DataDialogTest, AssignValueMustSuitTheTarget) {
  Run<kq::frmAssign>(0, [&](kq::frmAssign& d) {
    EXPECT_EQ(d.lblAssign.Caption(), "Variable to assign a value or variable:");
    EXPECT_EQ(d.lblError.Caption(), "On conversion error goto:");
    EXPECT_EQ(Items(d.cboVar[0]).size(), 5u);
    EXPECT_EQ(Shown(d.cboVar[0]), "Count");
    d.cboVar[1].SetText("1.5");
    ExpectRefused(d, "cboVar(1)");
    d.cboVar[1].SetText("");
    ExpectRefused(d, "cboVar(1)");
    // A Double target takes it; letters cannot be typed there.
    d.cboVar[0].UserSelect(1);
    d.cboVar[1].SetFocus();
    d.cboVar[1].SetText("");
    Type(d.cboVar[1], "1x.5");
    EXPECT_EQ(Shown(d.cboVar[1]), "1.5");
    Type(d.txtLabel, "ABCDEFGHIJKLMNO");
    Type(d.cboLabel, "PQRSTUVWXYZABCD");
    d.cmdOk.UserClick();
  });
  EXPECT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Head("ABCDEFGHIJKLMNO", "Assign") + "Rate = 1.5 E=PQRSTUVWXYZABCD");
  EXPECT_EQ(Bytes(kq::WorkRecord.Assign),
            Bytes(Var(1, "Rate")) + Bytes(Var(9, "1.5")) + Bytes(Label("PQRSTUVWXYZABCD")));
  EXPECT_EQ(Bytes(kq::WorkRecord.Assign.ErrorLabel.LabelRefName),
            std::string("PQRSTUVWXYZABCD") + '\0');
}

TEST_F(DataDialogTest, AssignStringTargetTakesTextAndAVariableOfAnyType) {
  Run<kq::frmAssign>(0, [&](kq::frmAssign& d) {
    d.cboVar[0].UserSelect(2);  // Name
    d.cboVar[1].SetFocus();
    d.cboVar[1].SetText("");
    Type(d.cboVar[1], "Hi there");
    EXPECT_EQ(Shown(d.cboVar[1]), "Hi there");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, Head("", "Assign") + "Name = Hi there");
  EXPECT_EQ(Bytes(kq::WorkRecord.Assign.Source), Bytes(Var(10, "Hi there")));
  // The list may give a variable of another type: the conversion error label is for that.
  Run<kq::frmAssign>(0, [&](kq::frmAssign& d) {
    d.cboVar[1].UserSelect(2);
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, Head("", "Assign") + "Count = Name");
  EXPECT_EQ(Bytes(kq::WorkRecord.Assign.Source), Bytes(Var(2, "Name")));
}

TEST_F(DataDialogTest, AssignModifyShowsAConstantAndKeepsTheLabelLine) {
  AddLine("Set", 0);
  kq::RecordSet rec = kq::InitRecord;
  rec.Assign.Target = Var(0, "Total");
  rec.Assign.Source = Var(8, "-42");
  rec.Assign.ErrorLabel = Label("Bad", 7);
  PrepareModify(0, rec);
  Run<kq::frmAssign>(0, [&](kq::frmAssign& d) {
    EXPECT_EQ(d.txtLabel.Text(), "Set");
    EXPECT_EQ(Shown(d.cboVar[0]), "Total");
    EXPECT_EQ(Shown(d.cboVar[1]), "-42");
    EXPECT_EQ(d.cboVar[1].ListIndex(), -1);
    EXPECT_EQ(Shown(d.cboLabel), "Bad");
    d.cboLabel.SetText("");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, Head("Set", "Assign") + "Total = -42");
  EXPECT_EQ(Bytes(kq::WorkRecord.Assign),
            Bytes(Var(0, "Total")) + Bytes(Var(8, "-42")) + Bytes(Label("", 7)));
}

// ---- Calculate

TEST_F(DataDialogTest, CalculateOperandsAndOperatorsFollowTheTarget) {
  AddLine("", 2);
  kq::RecordSet rec = kq::InitRecord;
  rec.Calculate.Target = Var(0, "Count");
  rec.Calculate.Left = Var(0, "Total");
  rec.Calculate.Right = Var(8, "3");
  rec.Calculate.Operator = 4;  // "^" is not offered for a Long
  PrepareModify(0, rec);
  Run<kq::frmCalculate>(2, [&](kq::frmCalculate& d) {
    EXPECT_EQ(Items(d.cboVar[1]), (std::vector<std::string>{"Count", "Total"}));
    EXPECT_EQ(Shown(d.cboVar[2]), "3");
    EXPECT_EQ(Items(d.cboOperator), (std::vector<std::string>{"+", "-", "*", "/"}));
    EXPECT_EQ(Shown(d.cboOperator), "+");
    // Another Long target leaves the operands as they are.
    d.cboOperator.UserSelect(3);
    d.cboVar[0].UserSelect(3);
    EXPECT_EQ(Shown(d.cboVar[1]), "Total");
    EXPECT_EQ(Shown(d.cboVar[2]), "3");
    EXPECT_EQ(Shown(d.cboOperator), "/");
    // A Double target offers Long and Double, the target itself as both values.
    d.cboVar[0].UserSelect(1);
    EXPECT_EQ(Items(d.cboVar[1]), (std::vector<std::string>{"Count", "Rate", "Total"}));
    EXPECT_EQ(Shown(d.cboVar[2]), "Rate");
    EXPECT_EQ(Items(d.cboOperator).size(), 5u);
    EXPECT_EQ(Shown(d.cboOperator), "/");
    // A String target: every type, and "&" alone.
    d.cboVar[0].UserSelect(2);
    EXPECT_EQ(Items(d.cboVar[1]).size(), 5u);
    EXPECT_EQ(Items(d.cboOperator), (std::vector<std::string>{"&"}));
    d.cboVar[2].SetFocus();
    d.cboVar[2].SetText("");
    Type(d.cboVar[2], "!\"x");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, Head("", "Calculate") + "Name = Name & !x");
  EXPECT_EQ(Bytes(kq::WorkRecord.Calculate), Bytes(Var(2, "Name")) + Bytes(Var(2, "Name")) +
                                                 Bytes(Var(10, "!x")) +
                                                 std::string("\x05\0\0\0", 4) + Bytes(Label("")));
}

TEST_F(DataDialogTest, CalculateRefusesOperandsInOrder) {
  Run<kq::frmCalculate>(2, [&](kq::frmCalculate& d) {
    EXPECT_EQ(d.lblCalculateLabel.Caption(), "Calculate:");
    EXPECT_EQ(d.lblError.Caption(), "On error goto:");
    d.cboVar[1].SetText("1.5");
    d.cboVar[2].SetText("2.5");
    ExpectRefused(d, "cboVar(1)");
    d.cboVar[1].SetText("007");
    ExpectRefused(d, "cboVar(2)");
    // Keys follow the target's type: a Long slot takes no point.
    d.cboVar[2].SetText("");
    Type(d.cboVar[2], "-2.5");
    EXPECT_EQ(Shown(d.cboVar[2]), "-25");
    d.cboOperator.UserSelect(2);
    Type(d.cboLabel, "Overflow");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, Head("", "Calculate") + "Count = 7 * -25 E=Overflow");
  EXPECT_EQ(Bytes(kq::WorkRecord.Calculate),
            Bytes(Var(0, "Count")) + Bytes(Var(8, "7")) + Bytes(Var(8, "-25")) +
                std::string("\x02\0\0\0", 4) + Bytes(Label("Overflow")));
}

TEST_F(DataDialogTest, CalculateEveryOperatorOfADouble) {
  const char* ops[] = {"+", "-", "*", "/", "^"};
  for (int op = 0; op < 5; ++op) {
    Run<kq::frmCalculate>(2, [&](kq::frmCalculate& d) {
      d.cboVar[0].UserSelect(1);
      d.cboVar[2].SetText("0.5");
      d.cboOperator.UserSelect(op);
      d.cmdOk.UserClick();
    });
    EXPECT_EQ(kq::FuncLine, Head("", "Calculate") + "Rate = Rate " + ops[op] + " 0.5");
    EXPECT_EQ(kq::WorkRecord.Calculate.Operator, op);
    EXPECT_EQ(Bytes(kq::WorkRecord.Calculate.Right), Bytes(Var(9, "0.5")));
  }
}

// ---- Assign Path

TEST_F(DataDialogTest, AssignPathVariablesAreOfTheChosenType) {
  DeclarePath(kq::kPathExport, 0, "Out");
  DeclarePath(kq::kPathVoice, 0, "Greeting");
  DeclarePath(kq::kPathVoice, 1, "Menu");
  Run<kq::frmAssignPa>(1, [&](kq::frmAssignPa& d) {
    EXPECT_EQ(d.lblSelectPath.Caption(), "Select path type:");
    EXPECT_EQ(d.lblAssignPath.Caption(), "Path variable to assign a new path:");
    EXPECT_EQ(d.cboPath.ListCount(), 2);
    EXPECT_EQ(Items(d.cboPathVar[0]), (std::vector<std::string>{"Out"}));
    d.cboPath.UserSelect(1);
    EXPECT_EQ(Shown(d.cboPathVar[0]), "Greeting");
    EXPECT_EQ(Shown(d.cboPathVar[1]), "Greeting");
    d.cboPathVar[1].UserSelect(1);
    Type(d.txtLabel, "Copy");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, Head("Copy", "Assign Path") + "Voice:  Greeting = Menu");
  kq::AssignPathRec want{};
  want.PathType = kq::kPathVoice;
  kq::SetField(want.TargetPath, "Greeting");
  kq::SetField(want.SourcePath, "Menu");
  EXPECT_EQ(Bytes(kq::WorkRecord.AssignPath), Bytes(want));
  // Modify shows the stored type and names.
  AddLine("", 1);
  kq::RecordSet rec = kq::InitRecord;
  rec.AssignPath = want;
  PrepareModify(0, rec);
  Run<kq::frmAssignPa>(1, [&](kq::frmAssignPa& d) {
    EXPECT_EQ(d.cboPath.ListIndex(), 1);
    EXPECT_EQ(Shown(d.cboPathVar[0]), "Greeting");
    EXPECT_EQ(Shown(d.cboPathVar[1]), "Menu");
  });
}

// ---- Get Date, Get Time, Get Day Of Week, Get Channel No.

TEST_F(DataDialogTest, GetDateAndTimeShowTheFormatWithItsPadding) {
  const char* dates[] = {"YYYYMMDD", "YYYYMM", "YYYY", "YYMMDD", "YYMM", "YY", "MMDD", "MM", "DD"};
  for (int f = 0; f < 9; ++f) {
    Run<kq::frmGetDate>(6, [&](kq::frmGetDate& d) {
      EXPECT_EQ(d.lblGetDateLabel.Caption(), "Variable to store date:");
      EXPECT_EQ(Items(d.cboVariable), (std::vector<std::string>{"Count", "Name", "Total", "Word"}));
      EXPECT_EQ(d.cboDateFormat.ListIndex(), 0);
      d.cboVariable.UserSelect(1);
      d.cboDateFormat.UserSelect(f);
      d.cmdOk.UserClick();
    });
    const std::string padded = dates[f] + std::string(9 - std::string(dates[f]).size(), ' ');
    EXPECT_EQ(kq::FuncLine, Head("", "Get Date") + "Name=" + padded);
    EXPECT_EQ(kq::WorkRecord.GetDate.Format, f);
  }
  AddLine("T", 8);
  kq::RecordSet rec = kq::InitRecord;
  rec.GetTime.Format = 9;
  rec.GetTime.Target = Var(0, "Total");
  PrepareModify(0, rec);
  Run<kq::frmGetTime>(8, [&](kq::frmGetTime& d) {
    EXPECT_EQ(d.lblTimeFormat.Caption(), "Time format:");
    EXPECT_EQ(d.cboTimeFormat.ListCount(), 10);
    EXPECT_EQ(Shown(d.cboVariable), "Total");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, Head("T", "Get Time") + "Total=MMSS     ");
  EXPECT_EQ(Bytes(kq::WorkRecord.GetTime), std::string("\x09\0\0\0", 4) + Bytes(Var(0, "Total")));
}

TEST_F(DataDialogTest, GetDateWithAFormatNoRowHoldsMustChooseOne) {
  AddLine("", 6);
  kq::RecordSet rec = kq::InitRecord;
  rec.GetDate.Format = 9;
  rec.GetDate.Target = Var(0, "Count");
  PrepareModify(0, rec);
  Run<kq::frmGetDate>(6, [&](kq::frmGetDate& d) {
    ExpectRefused(d, "cboDateFormat");
    d.cboDateFormat.UserSelect(8);
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, Head("", "Get Date") + "Count=DD       ");
}

TEST_F(DataDialogTest, GetDayOfWeekNumberingAndChannelNumber) {
  Run<kq::frmGetDayOfWeek>(36, [&](kq::frmGetDayOfWeek& d) {
    EXPECT_EQ(d.fraNumbering.Caption(), "Day of week numbering");
    EXPECT_TRUE(d.optNumbering[0].Value());
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, Head("", "Get Day Of Week") + "Count   1=Monday, 2=Tuesday ... 7=Sunday");
  EXPECT_EQ(Bytes(kq::WorkRecord.GetDayOfWeek), std::string(4, '\0') + Bytes(Var(0, "Count")));
  Run<kq::frmGetDayOfWeek>(36, [&](kq::frmGetDayOfWeek& d) {
    d.optNumbering[1].UserClick();
    EXPECT_FALSE(d.optNumbering[0].Value());
    d.cboVariable.UserSelect(3);
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, Head("", "Get Day Of Week") + "Word   1=Sunday, 2=Monday ... 7=Saturday");
  EXPECT_EQ(kq::WorkRecord.GetDayOfWeek.Format, 1);

  Run<kq::frmGetChNo>(41, [&](kq::frmGetChNo& d) {
    EXPECT_EQ(d.lblGetChNoLabel.Caption(), "Channel number:");
    EXPECT_EQ(Items(d.cboVariable), (std::vector<std::string>{"Count", "Total"}));
    d.cboVariable.UserSelect(1);
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, Head("", "Get Channel No.") + "Total");
  EXPECT_EQ(Bytes(kq::WorkRecord.GetChannelNo), Bytes(Var(0, "Total")));
}

// ---- The string functions

TEST_F(DataDialogTest, TrimStringTakesATypedSourceButNotATarget) {
  Run<kq::frmTrimStr>(44, [&](kq::frmTrimStr& d) {
    EXPECT_EQ(d.lblEqual.Caption(), "= TRIM(");
    EXPECT_EQ(d.fraAction.Caption(), "Action");
    EXPECT_TRUE(d.optAction[2].Value());
    EXPECT_EQ(Items(d.cboVar[0]), (std::vector<std::string>{"Name", "Word"}));
    Type(d.cboVar[0], "X");
    EXPECT_EQ(Shown(d.cboVar[0]), "Name");
    d.cboVar[1].SetText("");
    Type(d.cboVar[1], "  a b  ");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine,
            Head("", "Trim String") + "Name = TRIM(   a b   )  A=Leading & trailing ");
  EXPECT_EQ(Bytes(kq::WorkRecord.TrimString),
            std::string("\x02\0\0\0", 4) + Bytes(Var(2, "Name")) + Bytes(Var(10, "  a b  ")));
  const std::string actions[] = {"Leading" + std::string(12, ' '),
                                 "Trailing" + std::string(11, ' ')};
  for (int a = 0; a < 2; ++a) {
    Run<kq::frmTrimStr>(44, [&](kq::frmTrimStr& d) {
      d.optAction[a].UserClick();
      d.cboVar[1].SetText("");  // an empty constant
      d.cmdOk.UserClick();
    });
    EXPECT_EQ(kq::FuncLine, Head("", "Trim String") + "Name = TRIM(  )  A=" + actions[a]);
    EXPECT_EQ(kq::WorkRecord.TrimString.TrimAction, a);
    EXPECT_EQ(Bytes(kq::WorkRecord.TrimString.Source), Bytes(Var(10, "")));
  }
}

TEST_F(DataDialogTest, TrimStringWithAnActionNoOptionShowsMustChooseOne) {
  AddLine("", 44);
  kq::RecordSet rec = kq::InitRecord;
  rec.TrimString.TrimAction = 3;
  PrepareModify(0, rec);
  Run<kq::frmTrimStr>(44, [&](kq::frmTrimStr& d) {
    ExpectRefused(d, "optAction(0)");
    d.optAction[1].UserClick();
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::WorkRecord.TrimString.TrimAction, 1);
}

TEST_F(DataDialogTest, LenStringCountsIntoALong) {
  Run<kq::frmLenStr>(45, [&](kq::frmLenStr& d) {
    EXPECT_EQ(d.lblEqual.Caption(), "= LEN(");
    EXPECT_EQ(Items(d.cboVar[0]), (std::vector<std::string>{"Count", "Total"}));
    EXPECT_EQ(Items(d.cboVar[1]), (std::vector<std::string>{"Name", "Word"}));
    const int beeps = p.CountOf("beep");
    Type(d.cboVar[1], "\"");
    EXPECT_EQ(p.CountOf("beep"), beeps + 1);
    d.cboVar[1].UserSelect(1);
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, Head("", "Len String") + "Count = LEN( Word )");
  EXPECT_EQ(Bytes(kq::WorkRecord.LenString), Bytes(Var(0, "Count")) + Bytes(Var(2, "Word")));
}

TEST_F(DataDialogTest, RightAndLeftStringTakeAWholeCount) {
  Run<kq::frmRightStr>(46, [&](kq::frmRightStr& d) {
    EXPECT_EQ(d.lblEqual.Caption(), "= RIGHT(");
    EXPECT_EQ(d.lblComma.Caption(), ",");
    EXPECT_EQ(Items(d.cboVar[2]), (std::vector<std::string>{"Count", "Total"}));
    d.cboVar[2].SetText("2.5");
    ExpectRefused(d, "cboVar(2)");
    d.cboVar[2].SetText("");
    Type(d.cboVar[2], "-1.2");  // digits only
    EXPECT_EQ(Shown(d.cboVar[2]), "12");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, Head("", "Right String") + "Name = RIGHT( Name , 12 )");
  EXPECT_EQ(Bytes(kq::WorkRecord.RightString),
            Bytes(Var(2, "Name")) + Bytes(Var(2, "Name")) + Bytes(Var(8, "12")));

  AddLine("Cut", 47);
  kq::RecordSet rec = kq::InitRecord;
  rec.LeftString.Target = Var(2, "Word");
  rec.LeftString.Source = Var(10, "abcdef");
  rec.LeftString.Operand = Var(0, "Total");
  PrepareModify(0, rec);
  Run<kq::frmLeftStr>(47, [&](kq::frmLeftStr& d) {
    EXPECT_EQ(d.Caption(), "Left String");
    EXPECT_EQ(d.lblEqual.Caption(), "= LEFT(");
    EXPECT_EQ(Shown(d.cboVar[1]), "abcdef");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, Head("Cut", "Left String") + "Word = LEFT( abcdef , Total )");
  EXPECT_EQ(Bytes(kq::WorkRecord.LeftString), Bytes(rec.LeftString));
}

TEST_F(DataDialogTest, InStringSearchesForAText) {
  Run<kq::frmInStr>(48, [&](kq::frmInStr& d) {
    EXPECT_EQ(d.lblEqual.Caption(), "= INSTR(");
    EXPECT_EQ(Items(d.cboVar[0]), (std::vector<std::string>{"Count", "Total"}));
    EXPECT_EQ(Items(d.cboVar[2]), (std::vector<std::string>{"Name", "Word"}));
    d.cboVar[2].SetText("");
    Type(d.cboVar[2], "ab");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, Head("", "In String") + "Count = INSTR( Name , ab )");
  EXPECT_EQ(Bytes(kq::WorkRecord.InString),
            Bytes(Var(0, "Count")) + Bytes(Var(2, "Name")) + Bytes(Var(10, "ab")));
}

}  // namespace
}  // namespace kqtest
