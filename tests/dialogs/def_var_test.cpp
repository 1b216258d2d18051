#include "dialogs/dialogs.h"
#include "dialogs/frm_def_var.h"
#include "tests/dialogs/dialog_fixture.h"

namespace kqtest {
namespace {

class DefVarTest : public DialogTest {
 protected:
  void Define(const std::function<void(kq::frmDefVar&)>& act) {
    p.QueueModal("frmDefVar", [&](ui::Form& f) {
      auto& d = static_cast<kq::frmDefVar&>(f);
      act(d);
      if (d.Loaded()) d.cmdCancel.UserClick();
    });
    kq::ShowDefineVariables();
  }
  static std::vector<std::string> Names(const kq::frmDefVar& d) {
    std::vector<std::string> out;
    for (int i = 0; i < d.lstVariable.ListCount(); ++i) {
      out.push_back(kq::RTrim(d.lstVariable.List(i)) + ":" + d.lstDataType.List(i));
    }
    return out;
  }
  static std::vector<std::string> Table() {
    std::vector<std::string> out;
    for (const auto& v : kq::PrgHdr.Variable) {
      if (kq::FieldEmpty(kq::View(v.VarRefName))) break;
      out.push_back(kq::RTrimZ(kq::View(v.VarRefName)) + ":" + std::to_string(v.VarRefType));
    }
    return out;
  }
  static int Selected(const kq::frmDefVar& d) {
    for (int i = 0; i < 3; ++i) {
      if (d.optDataType[i].Value()) return i;
    }
    return -1;
  }
  void Add(kq::frmDefVar& d, const std::string& name, int type) {
    Type(d.txtName, name);
    d.optDataType[type].UserClick();
    d.cmdAdd.UserClick();
  }
  static bool Changed() { return kq::ChangedFlag && kq::PrgHdr.CompiledFlag == 0; }
};

TEST_F(DefVarTest, OpensWithTheTableSortedAndItsButtonsSet) {
  AddVariable("zeta", kq::kVarString);
  kq::PrgHdr.Variable[1].VarRefType = kq::kVarLong;  // a blank entry in the middle
  kq::SetField(kq::PrgHdr.Variable[2].VarRefName, "Alpha");
  kq::PrgHdr.Variable[2].VarRefType = kq::kVarDouble;
  Define([&](kq::frmDefVar& d) {
    EXPECT_EQ(d.Caption(), "Define Variable");
    EXPECT_EQ(Names(d), (std::vector<std::string>{"Alpha:1", "zeta:2"}));
    EXPECT_FALSE(d.lstDataType.Visible());
    EXPECT_EQ(Selected(d), 0);
    EXPECT_FALSE(d.cmdAdd.Enabled());
    EXPECT_FALSE(d.cmdModify.Enabled());
    EXPECT_FALSE(d.cmdDelete.Enabled());
    EXPECT_TRUE(d.cmdClear.Enabled());
    EXPECT_EQ(d.lstVariable.ListIndex(), -1);
    EXPECT_EQ(d.cmdClear.Caption(), "C&lear");
    EXPECT_EQ(d.fraDataType.Caption(), "Data type");
    d.cmdOk.UserClick();
  });
  // OK writes the table compact and in the list's order.
  EXPECT_EQ(Table(), (std::vector<std::string>{"Alpha:1", "zeta:2"}));
  EXPECT_EQ(kq::PrgHdr.Variable[2].VarRefType, -1);
  EXPECT_FALSE(kq::ChangedFlag);  // OK alone marks nothing
}

TEST_F(DefVarTest, EmptyTableDisablesClear) {
  Define([&](kq::frmDefVar& d) { EXPECT_FALSE(d.cmdClear.Enabled()); });
}

TEST_F(DefVarTest, AddKeepsTheHiddenTypesAlignedWithTheSortedNames) {
  Define([&](kq::frmDefVar& d) {
    Add(d, "Mid", 1);
    EXPECT_TRUE(Changed());
    Add(d, "alpha", 2);
    Add(d, "Zulu", 0);
    Add(d, "beta", 1);
    EXPECT_EQ(Names(d), (std::vector<std::string>{"alpha:2", "beta:1", "Mid:1", "Zulu:0"}));
    // The new item is selected, its type shown, the text box empty and focused.
    EXPECT_EQ(d.lstVariable.ListIndex(), 1);
    EXPECT_EQ(Selected(d), 1);
    EXPECT_EQ(d.txtName.Text(), "");
    EXPECT_FALSE(d.cmdAdd.Enabled());
    EXPECT_TRUE(d.cmdModify.Enabled());
    EXPECT_TRUE(d.cmdClear.Enabled());
    EXPECT_EQ(LastFocus(), "txtName");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(Table(), (std::vector<std::string>{"alpha:2", "beta:1", "Mid:1", "Zulu:0"}));
}

TEST_F(DefVarTest, EnterInTheNameAddsThroughTheDefaultButton) {
  Define([&](kq::frmDefVar& d) {
    Type(d.txtName, "Count\r");
    EXPECT_EQ(Names(d), (std::vector<std::string>{"Count:0"}));
    Type(d.txtName, "\r");  // Add is disabled: the key is swallowed
    EXPECT_EQ(d.lstVariable.ListCount(), 1);
    EXPECT_EQ(p.CountOf("beep"), 0);
  });
}

TEST_F(DefVarTest, DuplicateNamesAreRefusedCaseCounts) {
  AddVariable("Count", kq::kVarLong);
  kq::ChangedFlag = false;
  Define([&](kq::frmDefVar& d) {
    Add(d, "Count", 2);
    EXPECT_EQ(BoxTexts(), (std::vector<std::string>{"Variable Count exist already."}));
    EXPECT_EQ(p.EventsOf("msgbox")[0].fields["title"].Str(), "Variable add error");
    EXPECT_EQ(d.txtName.Text(), "Count");
    EXPECT_EQ(d.lstVariable.ListCount(), 1);
    EXPECT_TRUE(Changed());  // marked even though nothing was added
    EXPECT_EQ(LastFocus(), "txtName");
    d.txtName.SetText("");
    Add(d, "COUNT", 2);
    // Loaded names carry the blanks of their field, so the shorter new name sorts first.
    EXPECT_EQ(Names(d), (std::vector<std::string>{"COUNT:2", "Count:0"}));
  });
}

TEST_F(DefVarTest, TheFiveHundredthIsAcceptedTheNextRefused) {
  for (int i = 0; i < 499; ++i) AddVariable("V" + std::to_string(i), kq::kVarLong);
  Define([&](kq::frmDefVar& d) {
    Add(d, "Last", 0);
    EXPECT_EQ(d.lstVariable.ListCount(), 500);
    EXPECT_EQ(p.CountOf("msgbox"), 0);
    Add(d, "More", 0);
    EXPECT_EQ(BoxTexts(), (std::vector<std::string>{"Maximum number of variables are  500"}));
    EXPECT_EQ(d.lstVariable.ListCount(), 500);
    d.cmdOk.UserClick();  // the name still in the box is refused again, then OK closes
  });
  EXPECT_EQ(p.CountOf("msgbox"), 2);
  EXPECT_EQ(Table().size(), 500u);
}

TEST_F(DefVarTest, OkWithADuplicateInTheBoxShowsTheMessageAndCloses) {
  AddVariable("Count", kq::kVarLong);
  Define([&](kq::frmDefVar& d) {
    Type(d.txtName, "Count");
    d.cmdOk.UserClick();
    EXPECT_FALSE(d.Loaded());
  });
  EXPECT_EQ(BoxTexts(), (std::vector<std::string>{"Variable Count exist already."}));
  EXPECT_EQ(Table(), (std::vector<std::string>{"Count:0"}));
}

TEST_F(DefVarTest, ModifyTakesTheItemOutAndOkPutsItBackWithTheTypeShown) {
  AddVariable("Count", kq::kVarLong);
  AddVariable("Name", kq::kVarString);
  Define([&](kq::frmDefVar& d) {
    d.lstVariable.UserSelect(1);
    EXPECT_EQ(Selected(d), 2);
    EXPECT_TRUE(d.cmdDelete.Enabled());
    d.cmdModify.UserClick();
    EXPECT_EQ(d.txtName.Text(), "Name");
    EXPECT_EQ(Names(d), (std::vector<std::string>{"Count:0"}));
    EXPECT_FALSE(d.cmdModify.Enabled());
    EXPECT_FALSE(d.cmdDelete.Enabled());
    EXPECT_TRUE(d.cmdAdd.Enabled());
    Type(d.txtName, "2");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(Table(), (std::vector<std::string>{"Count:0", "Name2:2"}));
}

TEST_F(DefVarTest, DoubleClickModifiesAndCancelRestores) {
  AddVariable("Count", kq::kVarLong);
  Define([&](kq::frmDefVar& d) {
    d.lstVariable.UserSelect(0);
    d.lstVariable.RaiseDblClick();
    EXPECT_EQ(d.lstVariable.ListCount(), 0);
    EXPECT_EQ(d.txtName.Text(), "Count");
    d.cmdCancel.UserClick();
  });
  EXPECT_EQ(Table(), (std::vector<std::string>{"Count:0"}));
  EXPECT_TRUE(Changed());  // the marks of the visit stay
}

TEST_F(DefVarTest, DeleteWithNothingSelectedBeeps) {
  AddVariable("Count", kq::kVarLong);
  Define([&](kq::frmDefVar& d) {
    d.cmdDelete.UserClick();
    EXPECT_EQ(p.CountOf("beep"), 1);
    EXPECT_EQ(d.lstVariable.ListCount(), 1);
    d.lstVariable.UserSelect(0);
    d.cmdDelete.UserClick();
    EXPECT_EQ(d.lstVariable.ListCount(), 0);
    EXPECT_EQ(d.lstDataType.ListCount(), 0);
    EXPECT_FALSE(d.cmdClear.Enabled());
    d.cmdOk.UserClick();
  });
  EXPECT_TRUE(Table().empty());
}

TEST_F(DefVarTest, ClearAsksAndCancelStillEmptiesTheNameAndMarks) {
  AddVariable("Count", kq::kVarLong);
  Define([&](kq::frmDefVar& d) {
    Type(d.txtName, "abc");
    p.QueueAnswer(ui::vbCancel);
    d.cmdClear.UserClick();
    const auto box = p.EventsOf("msgbox").back();
    EXPECT_EQ(box.fields["title"].Str(), "Confirm clear");
    EXPECT_EQ(box.fields["text"].Str(), "Clear all the variables ?");
    EXPECT_EQ(box.fields["buttons"].Str(), "OKCancel");
    EXPECT_EQ(d.lstVariable.ListCount(), 1);
    EXPECT_EQ(d.txtName.Text(), "");
    EXPECT_TRUE(Changed());
    p.QueueAnswer(ui::vbOK);
    d.cmdClear.UserClick();
    EXPECT_EQ(d.lstVariable.ListCount(), 0);
    EXPECT_FALSE(d.cmdClear.Enabled());
    d.cmdOk.UserClick();
  });
  EXPECT_TRUE(Table().empty());
}

TEST_F(DefVarTest, EnterOnCancelClosesWithoutWriting) {
  AddVariable("Count", kq::kVarLong);
  Define([&](kq::frmDefVar& d) {
    d.lstVariable.UserSelect(0);
    d.cmdDelete.UserClick();
    d.UserKey(d.cmdCancel, 13);
    EXPECT_FALSE(d.Loaded());
  });
  EXPECT_EQ(Table(), (std::vector<std::string>{"Count:0"}));
}

TEST_F(DefVarTest, KeysOnTheTypeOptionsOnlyBeep) {
  Define([&](kq::frmDefVar& d) {
    d.UserKey(d.optDataType[2], ' ');
    EXPECT_EQ(Selected(d), 0);
    EXPECT_EQ(p.CountOf("beep"), 1);
    Type(d.txtName, "a\"b");
    EXPECT_EQ(d.txtName.Text(), "ab");
    Type(d.txtName, "cdefghijklmnopq");
    EXPECT_EQ(d.txtName.Text().size(), 14u);
  });
}

}  // namespace
}  // namespace kqtest
