#include <gtest/gtest.h>

#include "ui/headless/headless_platform.h"
#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"
#include "ui/model/menu.h"

namespace {

class TestForm : public ui::Form {
 public:
  TestForm() : Form("frmTest", "Test") {
    frame.Place(opt[0], 0, 0);
    frame.Place(opt[1], 1, 0);
    cmdOk.SetDefault(true);
    cmdOk.OnClick = [this] { ++okClicks; };
    cmdCancel.SetCancel(true);
    cmdCancel.OnClick = [this] { ++cancelClicks; };
    txt.OnKeyPress = [](int& k) {
      if (k == 'x') k = 0;
    };
  }
  ui::TextBox txt{*this, "txtName"};
  ui::ComboBox cbo{*this, "cboVar"};
  ui::ListBox lst{*this, "lstVariable"};
  ui::Frame frame{*this, "fraDataType", "Data type"};
  ui::OptionButton opt[2]{{*this, "optDataType", "Long", 0}, {*this, "optDataType", "Double", 1}};
  ui::CheckBox chk{*this, "chkFlag", "Flag"};
  ui::CommandButton cmdOk{*this, "cmdOk", "&Ok"};
  ui::CommandButton cmdCancel{*this, "cmdCancel", "&Cancel"};
  int okClicks = 0, cancelClicks = 0;
};

class ModelTest : public ::testing::Test {
 protected:
  void SetUp() override { ui::SetPlatform(&platform); }
  void TearDown() override { ui::SetPlatform(nullptr); }
  ui::HeadlessPlatform platform;
};

TEST_F(ModelTest, TypingGoesThroughKeyPressAndHonoursMaxLength) {
  TestForm f;
  f.txt.SetMaxLength(3);
  int changes = 0;
  f.txt.OnChange = [&] { ++changes; };
  for (char c : std::string("axbcd")) f.txt.UserKey(c);
  EXPECT_EQ(f.txt.Text(), "abc");  // x refused by the handler, d by the limit
  EXPECT_EQ(changes, 3);
  f.txt.SelectAll();
  f.txt.UserKey('z');  // typing over a whole selection is allowed at the limit
  EXPECT_EQ(f.txt.Text(), "z");
  f.txt.UserKey(8);
  EXPECT_EQ(f.txt.Text(), "");
}

TEST_F(ModelTest, SortedListReportsNewIndexIgnoringCase) {
  TestForm f;
  f.lst.SetSorted(true);
  f.lst.AddItem("beta");
  f.lst.AddItem("Alpha");
  f.lst.AddItem("gamma");
  f.lst.AddItem("BETB");
  EXPECT_EQ(f.lst.NewIndex(), 2);
  EXPECT_EQ(f.lst.Items(), (std::vector<std::string>{"Alpha", "beta", "BETB", "gamma"}));
  // Latin-1 capitals fold too: Æ sorts with æ.
  EXPECT_EQ(ui::CompareNoCase("\xC6", "\xE6"), 0);
}

TEST_F(ModelTest, ComboTextSelectsExactItemOrClearsListIndex) {
  TestForm f;
  f.cbo.AddItem("Count");
  f.cbo.AddItem("Total");
  int clicks = 0;
  f.cbo.OnClick = [&] { ++clicks; };
  f.cbo.SetText("Total");
  EXPECT_EQ(f.cbo.ListIndex(), 1);
  f.cbo.SetText("total");
  EXPECT_EQ(f.cbo.ListIndex(), -1);  // a typed constant
  f.cbo.SetListIndex(0);
  EXPECT_EQ(f.cbo.Text(), "Count");
  EXPECT_EQ(clicks, 1);  // only setting ListIndex clicks
}

TEST_F(ModelTest, OptionsInOneFrameExcludeEachOtherAndCheckBoxClicks) {
  TestForm f;
  int clicks = 0;
  f.chk.OnClick = [&] { ++clicks; };
  f.opt[0].SetValue(true);
  f.opt[1].UserClick();
  EXPECT_FALSE(f.opt[0].Value());
  EXPECT_TRUE(f.opt[1].Value());
  f.chk.SetValue(1);
  f.chk.SetValue(1);
  EXPECT_EQ(clicks, 1);
}

TEST_F(ModelTest, EnterReachesDefaultButtonAndEscapeTheCancelButton) {
  TestForm f;
  f.DoLoad();
  f.UserKey(f.txt, 13);
  f.UserKey(f.txt, 27);
  f.UserKey(f.cmdCancel, 13);  // a focused button takes Enter itself
  EXPECT_EQ(f.okClicks, 1);
  EXPECT_EQ(f.cancelClicks, 2);
  f.cmdOk.SetEnabled(false);
  f.UserKey(f.txt, 13);
  EXPECT_EQ(f.okClicks, 1);
}

TEST_F(ModelTest, MultiSelectListKeepsSelectionsAndListIndex) {
  TestForm f;
  f.lst.SetMultiSelect(ui::ListBox::MultiSelect::Extended);
  for (int i = 0; i < 5; ++i) f.lst.AddItem(std::to_string(i));
  f.lst.SetSelected(1, true);
  f.lst.SetSelected(3, true);
  EXPECT_EQ(f.lst.SelectedIndexes(), (std::vector<int>{1, 3}));
  EXPECT_EQ(f.lst.ListIndex(), 3);
  f.lst.RemoveItem(0);
  EXPECT_EQ(f.lst.SelectedIndexes(), (std::vector<int>{0, 2}));
  EXPECT_EQ(f.lst.ListIndex(), 2);
  f.lst.UserSelect(4);  // out of range now: nothing changes
  EXPECT_EQ(f.lst.SelectedIndexes(), (std::vector<int>{0, 2}));
  f.lst.UserSelect(3);
  EXPECT_EQ(f.lst.SelectedIndexes(), (std::vector<int>{3}));
}

TEST_F(ModelTest, MenuUsableOnlyUnderEnabledParents) {
  TestForm f;
  ui::Menu top(f, "mnuEdit", "&Edit");
  ui::Menu item(f, "mnuEditItem", "&Add", 0);
  top.Append(item);
  f.DoLoad();
  EXPECT_TRUE(item.Usable());
  top.SetEnabled(false);
  EXPECT_FALSE(item.Usable());
}

}  // namespace
