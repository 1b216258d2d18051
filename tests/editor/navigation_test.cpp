// The Goto menu where the stories goto_dialogs, goto_paths and goto_and_compile do not reach:
// a search without selection, the reset of the search keys, the bounds of the line number,
// the spare functions left out of Goto Function, and the dialogs' layouts.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>

#include "document/state.h"
#include "editor/commands.h"
#include "editor/frm_goto_func.h"
#include "editor/frm_goto_label.h"
#include "editor/frm_goto_path.h"
#include "editor/frm_goto_var.h"
#include "editor/frm_label.h"
#include "editor/frm_line_no.h"
#include "editor/navigation.h"
#include "tests/support/doc_builder.h"
#include "tests/support/layout_check.h"
#include "ui/model/controls.h"

namespace kq::test {
namespace {

template <class F>
std::function<void(ui::Form&)> As(std::function<void(F&)> action) {
  return [action](ui::Form& f) { action(dynamic_cast<F&>(f)); };
}

class NavigationTest : public ::testing::Test, public DocFixture {
 protected:
  void SetUp() override {
    ResetSearchState();
    ShowAllFunctions = true;
    DeclareVariable(0, kVarLong, "Count");
    DeclareVariable(1, kVarString, "Name");
    DeclarePath(kPathMessage, 0, "Msg", "/m/");
    DeclarePath(kPathVoice, 0, "Vox", "/v/");
    Add("Top", Rec(41).Var(0, kVarLong, "Count"));                       // 0
    Add("", Rec(10).LabelRef(0, "End", 4));                              // 1
    Add("Mid", Rec(21).Text(0, 28, "Msg").Var(28, kVarString, "Name"));  // 2
    Add("", Rec(11).Var(0, kVarString, "Name"));                         // 3 Random
    Add("End", Rec(41).Var(0, kVarLong, "Count"));                       // 4
    Add("", Rec(9).LabelRef(0, "Mid", 2).LabelRef(20, "End", 4));        // 5
  }
  std::vector<int> Selected() { return list().SelectedIndexes(); }
};

TEST_F(NavigationTest, WithoutSelectionTheSearchStartsAtTheTop) {
  SetField(SearchLabel.LabelRefName, "End");
  GotoCommand(7);
  EXPECT_EQ(Selected(), std::vector<int>{1});
}

TEST_F(NavigationTest, KeysOutliveTheDocument) {
  SearchFuncNo = 41;
  ResetDocument();
  list().Clear();
  Add("", Rec(13));
  Add("", Rec(41).Var(0, kVarLong, "Count"));
  GotoCommand(3);
  EXPECT_EQ(Selected(), std::vector<int>{1});
  ResetSearchState();
  EXPECT_EQ(SearchFuncNo, -1);
  EXPECT_TRUE(FieldEmpty(View(SearchVar.VarRefName)));
  EXPECT_EQ(SearchVar.VarRefType, kVarNone);
  EXPECT_EQ(SearchLabel.LabelRefLine, -1);
  EXPECT_EQ(SearchPathType, -1);
  EXPECT_TRUE(FieldEmpty(View(SearchPathName)));
}

TEST_F(NavigationTest, LineNumberDialogChecksItsRange) {
  platform.QueueModal("frmLineNo", As<frmLineNo>([](frmLineNo& f) {
                        f.txtLineNo.UserKey('6');  // the count: refused
                        f.cmdOk.UserClick();
                        EXPECT_TRUE(f.Loaded());
                        f.txtLineNo.SetText("");
                        f.cmdOk.UserClick();  // empty: refused
                        EXPECT_TRUE(f.Loaded());
                        f.txtLineNo.UserKey('x');  // not a digit: refused by the key filter
                        EXPECT_EQ(f.txtLineNo.Text(), "");
                        f.txtLineNo.UserKey('0');
                        f.txtLineNo.UserKey(13);  // Enter acts as Ok
                      }));
  list().SetSelected(3, true);
  GotoCommand(0);
  EXPECT_EQ(platform.CountOf("beep"), 3);
  EXPECT_EQ(Selected(), std::vector<int>{0});
}

TEST_F(NavigationTest, LineNumberFiveIsTheLast) {
  platform.QueueModal("frmLineNo", As<frmLineNo>([](frmLineNo& f) {
                        f.txtLineNo.SetText("5");
                        f.cmdOk.UserClick();
                      }));
  GotoCommand(0);
  EXPECT_EQ(Selected(), std::vector<int>{5});
  EXPECT_EQ(platform.CountOf("beep"), 0);
}

TEST_F(NavigationTest, FunctionDialogOffersOnlyUsedFunctions) {
  Add("", Rec(54));
  platform.QueueModal("frmGotoFunc", As<frmGotoFunc>([](frmGotoFunc& f) {
                        EXPECT_EQ(f.lstFunc.Items(), (std::vector<std::string>{
                                                         "CT Bus Connect", "Get Channel No.",
                                                         "Gosub", "Goto", "Random", "Say File"}));
                        f.lstFunc.UserSelect(1);
                        f.cmdOk.UserClick();
                      }));
  GotoCommand(2);
  EXPECT_EQ(SearchFuncNo, 41);
  EXPECT_TRUE(FuncPick);
  EXPECT_EQ(Selected(), std::vector<int>{0});
  ShowAllFunctions = false;
  platform.QueueModal("frmGotoFunc", As<frmGotoFunc>([](frmGotoFunc& f) {
                        EXPECT_EQ(f.lstFunc.ListCount(), 5);  // 54 left out
                        f.cmdCancel.UserClick();
                      }));
  GotoCommand(2);
}

TEST_F(NavigationTest, LabelsThatFillTheirFieldAreListedWhole) {
  // A file made elsewhere: a label of 16 characters with no NUL, and a Goto naming it in
  // the same 16 bytes.
  const std::string full = "ABCDEFGHIJKLMNOP";
  Add("", Rec(13));
  std::memcpy(LineTable[6].LineLabel, full.data(), 16);
  Rec jump(10);
  std::memcpy(jump.bytes.data(), full.data(), 16);
  Add("", jump);  // 7
  platform.QueueModal(
      "frmLabel", As<frmLabel>([&](frmLabel& f) {
        EXPECT_EQ(f.lstLabel.Items(), (std::vector<std::string>{full, "End", "Mid", "Top"}));
        f.lstLabel.UserSelect(2);
        f.cmdOk.UserClick();
      }));
  GotoCommand(1);
  EXPECT_EQ(Selected(), std::vector<int>{2});
  platform.QueueModal("frmGotoLabel", As<frmGotoLabel>([&](frmGotoLabel& f) {
                        ASSERT_EQ(f.lstLabel.List(0), full);
                        f.lstLabel.UserSelect(0);
                        f.cmdOk.UserClick();
                      }));
  GotoCommand(6);
  EXPECT_EQ(Selected(), std::vector<int>{7});
  EXPECT_EQ(View(SearchLabel.LabelRefName), full);
}

TEST_F(NavigationTest, EveryDialogDeclaresItsLayout) {
  ExpectLaidOut(frmLineNo());
  ExpectLaidOut(frmLabel());
  ExpectLaidOut(frmGotoFunc());
  ExpectLaidOut(frmGotoVar());
  ExpectLaidOut(frmGotoLabel());
  ExpectLaidOut(frmGotoPath());
  EXPECT_EQ(frmGotoVar().fraDataType.Caption(), "Data type");
  EXPECT_EQ(frmLineNo().Caption(), "Goto Line Number");
  EXPECT_EQ(frmLabel().Caption(), "Goto Label");
  EXPECT_EQ(frmGotoFunc().Caption(), "Goto Function");
  EXPECT_EQ(frmGotoVar().Caption(), "Goto Variable Parameter");
  EXPECT_EQ(frmGotoLabel().Caption(), "Goto Label Parm.");
  EXPECT_EQ(frmGotoPath().Caption(), "Goto Path Parameter");
}

}  // namespace
}  // namespace kq::test
