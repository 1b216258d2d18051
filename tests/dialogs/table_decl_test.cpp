#include "dialogs/dialogs.h"
#include "dialogs/frm_def_db_tbl.h"
#include "tests/dialogs/dialog_fixture.h"

namespace kqtest {
namespace {

class TableDeclTest : public DialogTest {
 protected:
  void Define(const std::function<void(kq::frmDefDBTbl&)>& act) {
    bool shown = false;
    p.QueueModal("frmDefDBTbl", [&](ui::Form& f) {
      shown = true;
      auto& d = static_cast<kq::frmDefDBTbl&>(f);
      act(d);
      if (d.Loaded()) d.cmdCancel.UserClick();
    });
    kq::ShowDefineTables();
    ASSERT_TRUE(shown);
  }
  // Binds field (1 to 24) of table t to a variable by name.
  static void Bind(int t, int field, const std::string& var) {
    kq::VarRef& c = kq::PrgHdr.Table[t].Column[field - 1];
    kq::SetField(c.VarRefName, var);
    c.VarRefType = 0;
  }
  // The combo positions of the 24 fields, as "p1,p2,..." with the unbound ones left out.
  static std::string Bound(const kq::frmDefDBTbl& d) {
    std::string s;
    for (int j = 0; j < 24; ++j) {
      if (d.cboVariable[j].ListIndex() != 0) {
        s += std::to_string(j + 1) + "=" + std::to_string(d.cboVariable[j].ListIndex()) + " ";
      }
    }
    return s;
  }
  // The header's tables as "name: field=variable/type ...".
  static std::vector<std::string> Tables() {
    std::vector<std::string> out;
    for (const auto& t : kq::PrgHdr.Table) {
      std::string s = kq::RTrimZ(kq::View(t.TableName)) + ":";
      for (int j = 0; j < 24; ++j) {
        const auto& c = t.Column[j];
        if (!kq::FieldEmpty(kq::View(c.VarRefName))) {
          s += " " + std::to_string(j + 1) + "=" + kq::RTrimZ(kq::View(c.VarRefName)) + "/" +
               std::to_string(c.VarRefType);
        } else {
          EXPECT_EQ(c.VarRefType, -1);
          EXPECT_EQ(Bytes(c), Bytes(kq::BlankVarRef));
        }
      }
      if (s != ":") out.push_back(s);
    }
    return out;
  }
  void Add(kq::frmDefDBTbl& d, const std::string& name, int field, int position) {
    Type(d.txtName, name);
    d.cboVariable[field - 1].UserSelect(position);
    d.cmdAdd.UserClick();
  }
  static bool Changed() { return kq::ChangedFlag && kq::PrgHdr.CompiledFlag == 0; }
};

TEST_F(TableDeclTest, OpensWithTheTablesAndTheFieldsOfTheFirst) {
  AddVariable("Count", kq::kVarLong);
  AddVariable("Name", kq::kVarString);
  DeclareTable(0, "Zoo");
  Bind(0, 1, "Count");
  DeclareTable(1, "Alpha");
  Bind(1, 2, "Name");
  Bind(1, 24, "Count");
  Bind(1, 5, "Gone");  // no longer declared: dropped without a word
  Define([&](kq::frmDefDBTbl& d) {
    EXPECT_EQ(d.Caption(), "Define Database Tables");
    EXPECT_EQ(d.txtName.MaxLength(), 15);
    EXPECT_FALSE(d.lstColumnVar.Visible());
    EXPECT_EQ(d.lblColumn[0].Caption(), "01:");
    EXPECT_EQ(d.lblColumn[23].Caption(), "24:");
    ASSERT_EQ(d.cboVariable[7].ListCount(), 3);
    EXPECT_EQ(d.cboVariable[7].List(0), "");
    EXPECT_EQ(d.cboVariable[7].List(2), "Name" + std::string(24, ' '));
    ASSERT_EQ(d.lstVariable.ListCount(), 2);
    EXPECT_EQ(kq::RTrim(d.lstVariable.List(0)), "Alpha");
    EXPECT_EQ(d.lstVariable.ListIndex(), 0);
    EXPECT_EQ(Bound(d), "2=2 24=1 ");
    EXPECT_EQ(d.lstColumnVar.List(0).size(), 96u);
    EXPECT_EQ(d.lstColumnVar.List(0).substr(0, 20), "000,002,000,000,000,");
    EXPECT_EQ(d.lstColumnVar.List(1).substr(0, 8), "001,000,");
    EXPECT_FALSE(d.cmdAdd.Enabled());
    EXPECT_TRUE(d.cmdModify.Enabled());
    EXPECT_TRUE(d.cmdDelete.Enabled());
    d.lstVariable.UserSelect(1);
    EXPECT_EQ(Bound(d), "1=1 ");
    d.cmdOk.UserClick();
  });
  // OK rewrites the list compact and sorted; the dead binding is gone.
  EXPECT_EQ(Tables(), (std::vector<std::string>{"Alpha: 2=Name/2 24=Count/0", "Zoo: 1=Count/0"}));
}

TEST_F(TableDeclTest, BlankVariableEntriesKeepTheLaterPositions) {
  // A variable table with gaps, as older files have it: entries 1 and 2 are blank.
  AddVariable("First", kq::kVarLong);
  kq::SetField(kq::PrgHdr.Variable[3].VarRefName, "Fourth");
  kq::PrgHdr.Variable[3].VarRefType = kq::kVarString;
  kq::SetField(kq::PrgHdr.Variable[5].VarRefName, "Sixth");
  kq::PrgHdr.Variable[5].VarRefType = kq::kVarDouble;
  DeclareTable(0, "T");
  Bind(0, 1, "Fourth");
  Bind(0, 2, "First");
  Bind(0, 3, "Sixth");
  Define([&](kq::frmDefDBTbl& d) {
    ASSERT_EQ(d.cboVariable[0].ListCount(), 7);
    EXPECT_EQ(kq::RTrim(d.cboVariable[0].List(4)), "Fourth");
    EXPECT_EQ(kq::RTrim(d.cboVariable[0].List(6)), "Sixth");
    EXPECT_EQ(kq::RTrim(d.cboVariable[0].List(2)), "");
    EXPECT_EQ(Bound(d), "1=4 2=1 3=6 ");
    EXPECT_EQ(d.lstColumnVar.List(0).substr(0, 12), "004,001,006,");
    // A blank item chosen for a field leaves it unbound.
    d.lstVariable.RaiseDblClick();
    d.cboVariable[1].UserSelect(3);
    d.cmdAdd.UserClick();
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(Tables(), (std::vector<std::string>{"T: 1=Fourth/2 3=Sixth/1"}));
}

TEST_F(TableDeclTest, TablesBehindABlankFirstEntryAreNotLoaded) {
  AddVariable("Count", kq::kVarLong);
  DeclareTable(1, "Later");
  Bind(1, 1, "Count");
  Define([&](kq::frmDefDBTbl& d) {
    EXPECT_EQ(d.lstVariable.ListCount(), 0);
    EXPECT_FALSE(d.cmdModify.Enabled());
    EXPECT_TRUE(d.cmdClear.Enabled());
  });
  EXPECT_EQ(kq::RTrimZ(kq::View(kq::PrgHdr.Table[1].TableName)), "Later");  // Cancel
}

TEST_F(TableDeclTest, AddRefusesInItsOrderAndAlwaysMarksTheDocument) {
  AddVariable("Count", kq::kVarLong);
  Define([&](kq::frmDefDBTbl& d) {
    Type(d.txtName, "T");
    EXPECT_TRUE(d.cmdAdd.Enabled());
    d.cmdAdd.UserClick();  // nothing bound
    EXPECT_TRUE(Changed());
    d.txtName.SetText("");
    Add(d, "T", 3, 1);
    EXPECT_EQ(d.lstColumnVar.List(0).substr(0, 12), "000,000,001,");
    EXPECT_EQ(d.txtName.Text(), "");
    EXPECT_FALSE(d.cmdAdd.Enabled());
    Add(d, "T", 1, 1);  // a second T
    d.txtName.SetText("");
    Add(d, "t", 1, 1);  // case counts
    EXPECT_EQ(LastFocus(), "txtName");
    for (int i = 2; i < 50; ++i) Add(d, "N" + std::to_string(i), 1, 1);
    EXPECT_EQ(d.lstVariable.ListCount(), 50);
    EXPECT_EQ(p.CountOf("msgbox"), 2);
    Add(d, "T", 1, 1);  // the count is tested before the name
    EXPECT_EQ(d.lstVariable.ListCount(), 50);
    for (const auto& e : p.EventsOf("msgbox")) {
      EXPECT_EQ(e.fields["title"].Str(), "Database table name add error");
      EXPECT_EQ(e.fields["icon"].Str(), "exclamation");
    }
  });
  EXPECT_EQ(BoxTexts(), (std::vector<std::string>{
                            "No variables are selected.", "Database table name T exist already.",
                            "Maximum number of database table names are  50"}));
  EXPECT_TRUE(kq::FieldEmpty(kq::View(kq::PrgHdr.Table[0].TableName)));  // cancelled
}

TEST_F(TableDeclTest, EveryKeyInTheNameUnbindsTheFieldsButNotTheStoredTable) {
  AddVariable("Count", kq::kVarLong);
  DeclareTable(0, "T");
  Bind(0, 4, "Count");
  Define([&](kq::frmDefDBTbl& d) {
    EXPECT_EQ(Bound(d), "4=1 ");
    d.UserKey(d.txtName, '"');  // refused by the filter, still unbinds
    EXPECT_EQ(d.txtName.Text(), "");
    EXPECT_EQ(Bound(d), "");
    EXPECT_EQ(d.lstColumnVar.List(0).substr(0, 16), "000,000,000,001,");
    d.lstVariable.UserSelect(0);
    EXPECT_EQ(Bound(d), "4=1 ");
  });
}

TEST_F(TableDeclTest, ModifyTakesTheTableOutWithItsFieldsForAnotherAdd) {
  AddVariable("A", kq::kVarLong);
  AddVariable("B", kq::kVarDouble);
  DeclareTable(0, "Orders");
  Bind(0, 1, "A");
  Define([&](kq::frmDefDBTbl& d) {
    d.lstVariable.UserSelect(0);
    d.lstVariable.RaiseDblClick();
    EXPECT_EQ(d.txtName.Text(), "Orders");
    EXPECT_EQ(d.lstVariable.ListCount(), 0);
    EXPECT_EQ(Bound(d), "1=1 ");
    EXPECT_FALSE(d.cmdModify.Enabled());
    EXPECT_FALSE(d.cmdDelete.Enabled());
    d.cboVariable[1].UserSelect(2);
    d.cmdOk.UserClick();  // the name in the box is added first
  });
  EXPECT_EQ(Tables(), (std::vector<std::string>{"Orders: 1=A/0 2=B/1"}));
  EXPECT_TRUE(Changed());
}

TEST_F(TableDeclTest, OkTakesEachFieldsTypeFromItsVariableNow) {
  AddVariable("V", kq::kVarLong);
  DeclareTable(0, "T");
  Bind(0, 2, "V");
  kq::PrgHdr.Table[0].Column[1].VarRefType = 2;  // stale
  Define([&](kq::frmDefDBTbl& d) {
    Type(d.txtName, "U");  // no field bound: refused, the dialog still closes
    d.cmdOk.UserClick();
    EXPECT_FALSE(d.Loaded());
  });
  EXPECT_EQ(BoxTexts(), (std::vector<std::string>{"No variables are selected."}));
  EXPECT_EQ(Tables(), (std::vector<std::string>{"T: 2=V/0"}));
  EXPECT_EQ(kq::PrgHdr.Table[0].TableName[1], '\0');
  EXPECT_EQ(kq::PrgHdr.Table[0].TableName[15], ' ');
}

TEST_F(TableDeclTest, DeleteAndClear) {
  AddVariable("V", kq::kVarLong);
  DeclareTable(0, "A");
  Bind(0, 1, "V");
  DeclareTable(1, "B");
  Bind(1, 1, "V");
  Define([&](kq::frmDefDBTbl& d) {
    d.cmdDelete.UserClick();
    EXPECT_EQ(d.lstVariable.ListCount(), 1);
    EXPECT_EQ(kq::RTrim(d.lstVariable.List(0)), "B");
    EXPECT_EQ(d.lstColumnVar.ListCount(), 1);
    EXPECT_EQ(p.CountOf("beep"), 0);
    d.cmdDelete.UserClick();  // nothing selected now
    EXPECT_EQ(p.CountOf("beep"), 1);
    Type(d.txtName, "x");
    p.QueueAnswer(ui::vbCancel);
    d.cmdClear.UserClick();
    const auto box = p.EventsOf("msgbox").back();
    EXPECT_EQ(box.fields["title"].Str(), "Confirm clear");
    EXPECT_EQ(box.fields["text"].Str(), "Clear all the database table names ?");
    EXPECT_EQ(box.fields["buttons"].Str(), "OKCancel");
    EXPECT_EQ(d.lstVariable.ListCount(), 1);
    EXPECT_EQ(d.txtName.Text(), "");
    d.lstVariable.UserSelect(0);
    p.QueueAnswer(ui::vbOK);
    d.cmdClear.UserClick();
    EXPECT_EQ(d.lstVariable.ListCount(), 0);
    EXPECT_EQ(d.lstColumnVar.ListCount(), 0);
    EXPECT_EQ(Bound(d), "");
    EXPECT_FALSE(d.cmdDelete.Enabled());
    EXPECT_TRUE(d.cmdModify.Enabled());  // left as it stood
    EXPECT_EQ(LastFocus(), "txtName");
    d.cmdOk.UserClick();
  });
  EXPECT_TRUE(Tables().empty());
  EXPECT_TRUE(Changed());
}

TEST_F(TableDeclTest, FiveHundredVariablesFitTheThreeDigits) {
  for (int i = 0; i < 500; ++i) AddVariable("v" + kq::Format000(i), kq::kVarDouble);
  DeclareTable(0, "T");
  Bind(0, 24, "v499");
  Define([&](kq::frmDefDBTbl& d) {
    EXPECT_EQ(d.cboVariable[0].ListCount(), 501);
    EXPECT_EQ(d.lstColumnVar.List(0).substr(92), "500,");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(Tables(), (std::vector<std::string>{"T: 24=v499/1"}));
}

}  // namespace
}  // namespace kqtest
