#include "dialogs/pick_list_form.h"

#include <gtest/gtest.h>

#include "ui/headless/headless_platform.h"

namespace kqtest {
namespace {

// A list dialog of the shape the pickers have, counting what its Ok did.
class frmPick : public kq::PickListForm {
 public:
  frmPick() : PickListForm("frmPick", "Pick") {
    WireList(lstItem, 3000);
    WireButtons(cmdOk, cmdCancel);
    PlaceList(lstItem, 2, cmdOk, cmdCancel, 0);
    txtField.OnKeyPress = [this](int& k) {
      if (!EnterActsAsOk(k)) ++otherKeys;
    };
  }
  ui::ListBox lstItem{*this, "lstItem"};
  ui::TextBox txtField{*this, "txtField"};
  ui::CommandButton cmdOk{*this, "cmdOk", "&Ok"};
  ui::CommandButton cmdCancel{*this, "cmdCancel", "&Cancel"};
  int oks = 0;
  int otherKeys = 0;

 protected:
  void cmdOk_Click() override {
    ++oks;
    Unload();
  }
};

class PickListFormTest : public ::testing::Test {
 protected:
  void SetUp() override { ui::SetPlatform(&p); }
  void TearDown() override { ui::SetPlatform(nullptr); }
  // Shows the dialog and lets act drive it; what is left open is cancelled.
  void Show(frmPick& d, const std::function<void()>& act) {
    p.QueueModal("frmPick", [&](ui::Form&) {
      act();
      if (d.Loaded()) d.cmdCancel.UserClick();
    });
    d.ShowModal();
  }
  ui::HeadlessPlatform p;
};

TEST_F(PickListFormTest, DoubleClickAndEnterOnTheListActAsOk) {
  frmPick byDouble;
  Show(byDouble, [&] { byDouble.lstItem.OnDblClick(); });
  EXPECT_EQ(byDouble.oks, 1);
  EXPECT_FALSE(byDouble.Loaded());

  frmPick byEnter;
  Show(byEnter, [&] {
    byEnter.UserKey(byEnter.lstItem, 'a');
    EXPECT_TRUE(byEnter.Loaded());
    byEnter.UserKey(byEnter.lstItem, 13);
  });
  EXPECT_EQ(byEnter.oks, 1);
}

TEST_F(PickListFormTest, EnterInAFieldActsAsOkOtherKeysPassOn) {
  frmPick d;
  Show(d, [&] {
    d.UserKey(d.txtField, '7');
    EXPECT_EQ(d.txtField.Text(), "7");
    EXPECT_EQ(d.otherKeys, 1);
    d.UserKey(d.txtField, 13);
  });
  EXPECT_EQ(d.oks, 1);
  EXPECT_EQ(d.otherKeys, 1);
  EXPECT_EQ(d.txtField.Text(), "7");
}

TEST_F(PickListFormTest, ButtonsClickAndAnswerEnterCancelOnlyUnloads) {
  frmPick ok;
  Show(ok, [&] { ok.UserKey(ok.cmdOk, 13); });
  EXPECT_EQ(ok.oks, 1);

  frmPick cancel;
  Show(cancel, [&] { cancel.UserKey(cancel.cmdCancel, 13); });
  EXPECT_EQ(cancel.oks, 0);
  EXPECT_FALSE(cancel.Loaded());
  EXPECT_EQ(cancel.cmdOk.Width(), 1200);
  EXPECT_EQ(cancel.cmdCancel.Width(), 1200);
  EXPECT_EQ(cancel.lstItem.Width(), 3000);
}

}  // namespace
}  // namespace kqtest
