#include "dialogs/dialogs.h"
#include "dialogs/frm_func.h"
#include "tests/dialogs/dialog_fixture.h"

namespace kqtest {
namespace {

class FuncPickerTest : public DialogTest {
 protected:
  // Shows the picker and lets act drive it.
  void Pick(const std::function<void(kq::frmFunc&)>& act) {
    p.QueueModal("frmFunc", [&](ui::Form& f) {
      auto& d = static_cast<kq::frmFunc&>(f);
      act(d);
      if (d.Loaded()) d.cmdCancel.UserClick();
    });
    kq::ShowFunctionPicker();
  }
  static int IndexOf(const kq::frmFunc& d, const std::string& name) {
    for (int i = 0; i < d.lstFunc.ListCount(); ++i) {
      if (d.lstFunc.List(i) == name) return i;
    }
    return -1;
  }
};

TEST_F(FuncPickerTest, ListsTheLiveFunctionsSortedWithoutTheSpareOnes) {
  Pick([&](kq::frmFunc& d) {
    EXPECT_EQ(d.Caption(), "Function");
    EXPECT_EQ(d.cmdOk.Caption(), "&Ok");
    EXPECT_EQ(d.cmdCancel.Caption(), "&Cancel");
    EXPECT_EQ(d.lstFunc.Columns(), 3);
    EXPECT_EQ(d.lstFunc.ListCount(), 50);
    EXPECT_EQ(d.lstFunc.List(0), "Add Record");
    EXPECT_EQ(d.lstFunc.ListIndex(), 0);
    EXPECT_EQ(IndexOf(d, "Prototype"), -1);
    EXPECT_EQ(IndexOf(d, "CT Bus Connect"), -1);
    for (int i = 1; i < d.lstFunc.ListCount(); ++i) {
      EXPECT_LE(ui::CompareNoCase(d.lstFunc.List(i - 1), d.lstFunc.List(i)), 0);
    }
  });
  EXPECT_FALSE(kq::FuncPick);
}

TEST_F(FuncPickerTest, ShowAllFunctionsAddsTheSpareOnes) {
  kq::ShowAllFunctions = true;
  Pick([&](kq::frmFunc& d) {
    EXPECT_EQ(d.lstFunc.ListCount(), 52);
    EXPECT_NE(IndexOf(d, "Prototype"), -1);
  });
}

TEST_F(FuncPickerTest, OkHandsOverNumberNameAndLine) {
  Pick([&](kq::frmFunc& d) {
    d.lstFunc.UserSelect(IndexOf(d, "Goto"));
    d.cmdOk.UserClick();
  });
  EXPECT_TRUE(kq::FuncPick);
  EXPECT_EQ(kq::FuncNo, 10);
  EXPECT_EQ(kq::FuncName, std::string("Goto") + '\0' + std::string(12, ' '));
  EXPECT_EQ(kq::FuncLine, "Goto" + std::string(13, ' '));
}

TEST_F(FuncPickerTest, DoubleClickAndEnterChoose) {
  Pick([&](kq::frmFunc& d) {
    d.lstFunc.UserSelect(IndexOf(d, "Remark"));
    d.lstFunc.RaiseDblClick();
    EXPECT_FALSE(d.Loaded());
  });
  EXPECT_EQ(kq::FuncNo, 13);
  Pick([&](kq::frmFunc& d) {
    d.lstFunc.UserSelect(IndexOf(d, "Delay"));
    d.UserKey(d.lstFunc, 13);
    EXPECT_FALSE(d.Loaded());
  });
  EXPECT_EQ(kq::FuncNo, 4);
}

TEST_F(FuncPickerTest, CancelLeavesNothingPicked) {
  kq::FuncNo = 3;
  Pick([&](kq::frmFunc& d) {
    d.lstFunc.UserSelect(IndexOf(d, "Goto"));
    d.UserKey(d.cmdCancel, 13);
    EXPECT_FALSE(d.Loaded());
  });
  EXPECT_FALSE(kq::FuncPick);
  EXPECT_EQ(kq::FuncNo, 3);
}

TEST_F(FuncPickerTest, AChoiceNoFunctionBearsIsAProgramError) {
  p.QueueModal("frmFunc", [&](ui::Form& f) {
    auto& d = static_cast<kq::frmFunc&>(f);
    d.lstFunc.AddItem("Teleport");
    d.lstFunc.UserSelect(IndexOf(d, "Teleport"));
    d.cmdOk.UserClick();
  });
  EXPECT_THROW(kq::ShowFunctionPicker(), ui::ProgramEnded);
  EXPECT_EQ(ui::LastProgramError(), "Selected function Teleport not found cmdOk_Click in frmFunc.");
}

}  // namespace
}  // namespace kqtest
