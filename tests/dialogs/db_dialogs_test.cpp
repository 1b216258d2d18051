#include <memory>

#include "dialogs/dialogs.h"
#include "dialogs/frm_connect_tbl.h"
#include "dialogs/frm_def_db_tbl.h"
#include "dialogs/frm_get_no_rec.h"
#include "dialogs/frm_get_rec_no.h"
#include "dialogs/frm_select_rec.h"
#include "dialogs/services.h"
#include "dialogs/table_dialog.h"
#include "dialogs/where_dialog.h"
#include "tests/dialogs/dialog_fixture.h"
#include "tests/dialogs/dialog_values.h"
#include "tests/support/layout_check.h"

namespace kqtest {
namespace {

class DbDialogTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    AddVariable("Count", kq::kVarLong);
    AddVariable("Price", kq::kVarDouble);
    AddVariable("Name", kq::kVarString);
    AddVariable("Total", kq::kVarLong);
    DeclareTable(0, "Orders");
    for (int j = 0; j < 3; ++j) kq::PrgHdr.Table[0].Column[j] = kq::PrgHdr.Variable[j];
    DeclareTable(1, "Stock");
    kq::PrgHdr.Table[1].Column[0] = kq::PrgHdr.Variable[2];
    AddLine("Busy", 13);
    AddLine("Err", 13);
  }
  static ui::ComboBox& Combo(ui::Form& f, const std::string& name, int index = -1) {
    return *dynamic_cast<ui::ComboBox*>(f.FindControl(name, index));
  }
};

// ---- Connect Table

TEST_F(DbDialogTest, ConnectTableNeedsBothLabels) {
  Run(24, [&](kq::FuncDialog& f) {
    auto& d = dynamic_cast<kq::frmConnectTbl&>(f);
    EXPECT_EQ(d.Caption(), "Connect Table");
    EXPECT_EQ(Items(d.cboName), (std::vector<std::string>{"Orders", "Stock"}));
    ASSERT_EQ(d.cboTimeout.ListCount(), 15);
    EXPECT_EQ(d.cboTimeout.List(14), " 15");
    EXPECT_EQ(d.cboTimeout.Text(), " 3");
    d.cboLabel[0].SetText("   ");
    ExpectRefused(d, "cboLabel(0)");
    EXPECT_EQ(d.cboLabel[0].Text(), "");
    d.cboLabel[0].UserSelect(0);
    ExpectRefused(d, "cboLabel(1)");
    d.cboLabel[1].UserSelect(1);
    d.cboTimeout.UserSelect(14);
    d.cboName.UserSelect(1);
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, "\t\t" + Name17("Connect Table") + "\tStock T=15sec. B=Busy E=Err");
  kq::ConnectTableRec want = kq::InitRecord.ConnectTable;
  kq::SetField(want.TableName, "Stock");
  want.TimeoutSec = 15;
  kq::SetField(want.BusyLabel.LabelRefName, "Busy");
  kq::SetField(want.ErrorLabel.LabelRefName, "Err");
  EXPECT_EQ(Bytes(kq::WorkRecord.ConnectTable), Bytes(want));
}

// ---- The forms of a table and labels

struct LabelForm {
  int funcNo;
  std::string caption;
  std::string second;  // the second label combo, "" for none
  std::string prefix;
};

TEST_F(DbDialogTest, TableAndLabelFormsLeaveOutEmptyLabels) {
  const std::vector<LabelForm> forms = {{25, "DisconnectTable", "", ""},
                                        {26, "Add Record", "", ""},
                                        {40, "Empty Table", "", ""},
                                        {28, "Get First Record", "cboNoData", " ET="},
                                        {31, "Get Last Record", "cboNoData", " ET="},
                                        {32, "Get Next Record", "cboNoData", " ND="},
                                        {33, "Get Previous Record", "cboNoData", " ND="},
                                        {30, "Insert Record", "cboRange", " R="}};
  for (const LabelForm& form : forms) {
    SCOPED_TRACE(form.funcNo);
    const std::string name = kq::RTrimZ(kq::View(kq::FuncNames[form.funcNo]));
    Run(form.funcNo, [&](kq::FuncDialog& d) {
      EXPECT_EQ(d.Caption(), form.caption);
      EXPECT_EQ(Combo(d, "cboLabel").Text(), "");
      d.cmdOk.UserClick();
    });
    EXPECT_EQ(kq::FuncLine, "\t\t" + Name17(name) + "\tOrders");
    Run(form.funcNo, [&](kq::FuncDialog& d) {
      Type(d.txtLabel, "L");
      Combo(d, "cboLabel").SetText(" Err ");
      if (!form.second.empty()) Combo(d, form.second).SetText("Busy");
      d.cmdOk.UserClick();
    });
    std::string want = "\tL\t" + Name17(name) + "\tOrders E=Err";
    if (!form.second.empty()) want += form.prefix + "Busy";
    EXPECT_EQ(kq::FuncLine, want);
    // The record: table name, then the error label as typed without its blanks.
    const uint8_t* rec = kq::WorkRecord.Image(form.funcNo);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(rec), 7), std::string("Orders\0", 7));
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(rec) + 16, 4), std::string("Err\0", 4));
  }
  // Only an error label when the second is empty, and the second alone.
  Run(32, [&](kq::FuncDialog& d) {
    Combo(d, "cboNoData").SetText("Busy");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, "\t\t" + Name17("Get Next Record") + "\tOrders ND=Busy");
}

// ---- Get Record No. and Get No. Of Rec.

TEST_F(DbDialogTest, RecordNumberFormsPutTheErrorLabelOnOppositeSides) {
  Run(38, [&](kq::FuncDialog& f) {
    auto& d = dynamic_cast<kq::frmGetRecNo&>(f);
    EXPECT_EQ(d.Caption(), "Get Record Number");
    EXPECT_EQ(Items(d.cboVariable), (std::vector<std::string>{"Count", "Total"}));
    d.cboVariable.UserSelect(1);
    d.cboLabel.SetText("Err");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, "\t\t" + Name17("Get Record No.") + "\tOrders E=Err Record number=Total");
  EXPECT_EQ(Bytes(kq::WorkRecord.GetRecordNo.Target), Bytes(kq::PrgHdr.Variable[3]));
  Run(38, [&](kq::FuncDialog& d) { d.cmdOk.UserClick(); });
  EXPECT_EQ(kq::FuncLine, "\t\t" + Name17("Get Record No.") + "\tOrders Record number=Count");

  Run(39, [&](kq::FuncDialog& f) {
    auto& d = dynamic_cast<kq::frmGetNoRec&>(f);
    EXPECT_EQ(d.Caption(), "Get No. Of Records");
    EXPECT_EQ(d.lblNoRec.Caption(), "= No. of records in database table");
    d.cboLabel.SetText("Err");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, "\t\t" + Name17("Get No. Of Rec.") +
                              "\tOrders Variable Count=No. of records in database table E=Err");
}

// ---- The condition dialogs

class WhereTest : public DbDialogTest {
 protected:
  void Select(const std::function<void(kq::WhereDialog&)>& act, int funcNo = 29) {
    Run(funcNo, [&](kq::FuncDialog& f) { act(dynamic_cast<kq::WhereDialog&>(f)); });
  }
};

TEST_F(WhereTest, NoConditionIsLegal) {
  Select([&](kq::WhereDialog& d) {
    EXPECT_EQ(d.Caption(), "");
    EXPECT_EQ(d.cboField[4].ListCount(), 25);
    EXPECT_EQ(d.cboField[4].Text(), " 0");
    EXPECT_EQ(Items(d.cboOperator[0]), (std::vector<std::string>{"=", "<>", "<", ">", "<=", ">="}));
    EXPECT_EQ(Items(d.cboVar[2]), (std::vector<std::string>{"Count", "Price", "Total"}));
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, "\t\t" + Name17("SELECT Records") + "\tOrders");
  kq::TableWhereRec want = kq::InitRecord.SelectRecords;
  kq::SetField(want.TableName, "Orders");
  EXPECT_EQ(Bytes(kq::WorkRecord.SelectRecords), Bytes(want));
}

TEST_F(WhereTest, RowsFollowTheTypeOfTheirField) {
  Select(
      [&](kq::WhereDialog& d) {
        EXPECT_EQ(d.Caption(), "Update Record");
        d.cboField[0].UserSelect(3);  // Name: String
        EXPECT_EQ(d.txtVar[0].Text(), "Name");
        EXPECT_EQ(Items(d.cboOperator[0]), (std::vector<std::string>{"=", "<>"}));
        EXPECT_EQ(Items(d.cboVar[0]), (std::vector<std::string>{"Name"}));
        d.cboVar[0].SetText("");  // an empty String constant
        Type(d.cboVar[0], "a.b");
        d.cboOperator[0].UserSelect(1);

        d.cboField[1].UserSelect(1);  // Count: Long
        d.cboOperator[1].UserSelect(4);
        d.cboVar[1].SetText("1.5");
        ExpectRefused(d, "cboVar(1)");
        d.cboVar[1].SetText("");
        Type(d.cboVar[1], "-07");
        EXPECT_EQ(d.cboVar[1].Text(), "-07");

        d.cboField[2].UserSelect(2);  // Price: Double, typed with the Long filter
        d.cboVar[2].SetText("");
        Type(d.cboVar[2], "2.5");
        EXPECT_EQ(d.cboVar[2].Text(), "25");

        d.cboField[3].UserSelect(4);  // unbound field: the row stays unused
        EXPECT_EQ(d.txtVar[3].Text(), "");
        d.cboField[4].UserSelect(1);
        d.cboField[4].UserSelect(0);  // field 0 resets the row
        EXPECT_EQ(d.txtVar[4].Text(), "");
        EXPECT_EQ(d.cboOperator[4].ListCount(), 6);
        d.cboLabel.SetText("Err");
        d.cmdOk.UserClick();
      },
      34);
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, "\t\t" + Name17("Update Record") +
                              "\tOrders E=Err F=3: Name<>a.b F=1: Count<=-7 F=2: Price=25");
  const kq::TableWhereRec& r = kq::WorkRecord.UpdateRecord;
  const kq::TableWhereRec& init = kq::InitRecord.UpdateRecord;
  EXPECT_EQ(std::vector<int32_t>(r.WhereField, r.WhereField + 5),
            (std::vector<int32_t>{3, 1, 2, 0, 0}));
  EXPECT_EQ(std::vector<int32_t>(r.WhereOperator, r.WhereOperator + 5),
            (std::vector<int32_t>{1, 4, 0, 0, 0}));
  EXPECT_EQ(Bytes(r.WhereValue[0]), Bytes(Var(10, "a.b")));
  EXPECT_EQ(Bytes(r.WhereValue[1]), Bytes(Var(8, "-7")));
  EXPECT_EQ(Bytes(r.WhereValue[2]), Bytes(Var(9, "25")));
  EXPECT_EQ(Bytes(r.WhereValue[3]), Bytes(init.WhereValue[3]));
}

TEST_F(WhereTest, AnotherTableClearsTheConditions) {
  Select(
      [&](kq::WhereDialog& d) {
        EXPECT_EQ(d.Caption(), "Delete Record");
        d.cboField[0].UserSelect(3);
        d.cboName.UserSelect(1);
        EXPECT_EQ(d.txtVar[0].Text(), "");
        EXPECT_EQ(d.cboField[0].Text(), " 0");
        d.cboField[0].UserSelect(1);  // Stock's field 1 is Name
        EXPECT_EQ(d.txtVar[0].Text(), "Name");
        d.cmdOk.UserClick();
      },
      27);
  EXPECT_EQ(kq::FuncLine, "\t\t" + Name17("Delete Record") + "\tStock F=1: Name=Name");
  EXPECT_EQ(Bytes(kq::WorkRecord.DeleteRecord.WhereValue[0]), Bytes(kq::PrgHdr.Variable[2]));
}

TEST_F(WhereTest, ModifyLoadsTheRowsOfTheLine) {
  AddLine("Sel", 29);
  kq::RecordSet rec = kq::InitRecord;
  kq::TableWhereRec& r = rec.SelectRecords;
  kq::SetField(r.TableName, "Orders");
  r.WhereField[1] = 3;
  r.WhereOperator[1] = 4;  // not a String operator any more
  r.WhereValue[1] = Var(10, "x y");
  r.WhereField[3] = 2;
  r.WhereOperator[3] = 5;
  r.WhereValue[3] = kq::PrgHdr.Variable[0];
  PrepareModify(2, rec);
  Select([&](kq::WhereDialog& d) {
    EXPECT_EQ(d.txtLabel.Text(), "Sel");
    EXPECT_EQ(d.txtVar[1].Text(), "Name");
    EXPECT_EQ(d.cboOperator[1].Text(), "=");
    EXPECT_EQ(d.cboVar[1].Text(), "x y");
    EXPECT_EQ(d.cboVar[1].ListIndex(), -1);
    EXPECT_EQ(d.txtVar[3].Text(), "Price");
    EXPECT_EQ(kq::RTrim(d.cboVar[3].Text()), "Count");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine,
            "\tSel\t" + Name17("SELECT Records") + "\tOrders F=3: Name=x y F=2: Price>=Count");
  r.WhereOperator[1] = 0;
  EXPECT_EQ(Bytes(kq::WorkRecord.SelectRecords), Bytes(r));
}

TEST_F(WhereTest, AFieldOfATableThatIsGoneEndsTheProgram) {
  AddLine("Sel", 29);
  kq::RecordSet rec = kq::InitRecord;
  kq::SetField(rec.SelectRecords.TableName, "Gone");
  rec.SelectRecords.WhereField[0] = 1;
  PrepareModify(2, rec);
  p.QueueModal("", [](ui::Form&) {});
  EXPECT_THROW(kq::GetFuncParm(29), ui::ProgramEnded);
}

TEST_F(WhereTest, AValueKeyOfNoRowEndsTheProgram) {
  kq::frmSelectRec d;
  int key = '1';
  EXPECT_THROW(d.cboVar_KeyPress(5, key), ui::ProgramEnded);
  EXPECT_EQ(ui::LastProgramError(), "Illegal variable index cboVar_KeyPress in frmSelect.");
}

// ---- Opening, and the layouts

TEST_F(DbDialogTest, EveryFunctionOpensItsDialogAndEveryFormIsLaidOut) {
  kq::test::ExpectLaidOut(kq::frmDefDBTbl());
  for (int funcNo : {24, 25, 26, 27, 28, 29, 30, 31, 32, 33, 34, 38, 39, 40}) {
    Run(funcNo, [&](kq::FuncDialog& d) {
      EXPECT_EQ(d.FunctionNumber(), funcNo);
      kq::test::ExpectLaidOut(d);
    });
  }
  EXPECT_EQ(p.CountOf("msgbox"), 0);
  for (auto& t : kq::PrgHdr.Table) kq::SetField(t.TableName, "");
  PrepareNew(26);
  kq::GetFuncParm(26);
  EXPECT_EQ(BoxTexts(),
            (std::vector<std::string>{"Define a Database table name before using this function."}));
}

}  // namespace
}  // namespace kqtest
