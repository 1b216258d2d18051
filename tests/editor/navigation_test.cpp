// The Goto menu: the Next searches with their wrap-around, the six dialogs driven as a
// person drives them, the "Not Found" boxes, and search keys that outlive documents.
#include <gtest/gtest.h>

#include <functional>
#include <set>

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
  std::vector<std::string> Boxes() {
    std::vector<std::string> out;
    for (const auto& e : platform.EventsOf("msgbox")) {
      out.push_back(e.fields["title"].Str() + "|" + e.fields["text"].Str() + "|" +
                    e.fields["icon"].Str());
    }
    return out;
  }
};

TEST_F(NavigationTest, NextFunctionGoesOnBehindTheSelectionAndWraps) {
  SearchFuncNo = 41;
  list().SetSelected(0, true);
  GotoCommand(3);
  EXPECT_EQ(Selected(), std::vector<int>{4});
  GotoCommand(3);
  EXPECT_EQ(Selected(), std::vector<int>{0});  // wrapped to the top
  EXPECT_TRUE(Boxes().empty());
}

TEST_F(NavigationTest, OnlyHitAtTheSelectedLineIsFoundAgain) {
  SearchFuncNo = 11;
  list().SetSelected(3, true);
  GotoCommand(3);
  EXPECT_EQ(Selected(), std::vector<int>{3});
  EXPECT_TRUE(Boxes().empty());
}

TEST_F(NavigationTest, SeveralSelectedLinesCollapseToTheHitBehindTheFirst) {
  SearchFuncNo = 41;
  list().SetSelected(1, true);
  list().SetSelected(4, true);
  list().SetSelected(5, true);
  GotoCommand(3);
  EXPECT_EQ(Selected(), std::vector<int>{4});
}

TEST_F(NavigationTest, WithoutSelectionTheSearchStartsAtTheTop) {
  SetField(SearchLabel.LabelRefName, "End");
  GotoCommand(7);
  EXPECT_EQ(Selected(), std::vector<int>{1});
}

TEST_F(NavigationTest, NotFoundBoxesByKind) {
  SearchFuncNo = 13;
  GotoCommand(3);
  SearchVar.VarRefType = kVarDouble;
  SetField(SearchVar.VarRefName, "Rate");
  GotoCommand(5);
  SetField(SearchLabel.LabelRefName, "Nope");
  GotoCommand(7);
  SearchPathType = kPathVoice;
  SetField(SearchPathName, "Vox");
  list().SetSelected(2, true);
  GotoCommand(9);
  EXPECT_EQ(Boxes(), (std::vector<std::string>{"Not Found|Selected function Remark not found.|none",
                                               "Not Found|Selected variable Rate not found.|none",
                                               "Not Found|Selected label Nope not found.|none",
                                               "Not Found|Selected path Vox not found.|none"}));
  EXPECT_EQ(Selected(), std::vector<int>{2});  // the selection stays
  EXPECT_EQ(SearchPathType, kPathVoice);       // a key that finds nothing stays in force
}

TEST_F(NavigationTest, NextWithoutKeyShowsTheDialog) {
  platform.QueueModal("frmGotoFunc", [](ui::Form& f) { f.Unload(); });
  platform.QueueModal("frmGotoVar", [](ui::Form& f) { f.Unload(); });
  platform.QueueModal("frmGotoLabel", [](ui::Form& f) { f.Unload(); });
  platform.QueueModal("frmGotoPath", [](ui::Form& f) { f.Unload(); });
  GotoCommand(3);
  GotoCommand(5);
  GotoCommand(7);
  GotoCommand(9);
  EXPECT_EQ(platform.CountOf("show"), 4);
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

TEST_F(NavigationTest, LabelDialogSelectsTheLineOfTheLabel) {
  platform.QueueModal(
      "frmLabel", As<frmLabel>([](frmLabel& f) {
        EXPECT_EQ(f.lstLabel.Items(), (std::vector<std::string>{"End", "Mid", "Top"}));
        EXPECT_EQ(f.lstLabel.ListIndex(), 0);
        f.lstLabel.UserSelect(1);
        f.lstLabel.RaiseDblClick();
      }));
  GotoCommand(1);
  EXPECT_EQ(Selected(), std::vector<int>{2});
}

TEST_F(NavigationTest, LabelDialogsWithoutLabelsShowTheBoxAndUnload) {
  ResetDocument();
  list().Clear();
  Add("", Rec(13));
  GotoCommand(1);
  GotoCommand(6);
  EXPECT_EQ(Boxes(),
            (std::vector<std::string>{"Goto Label Error|Can't find any labels.|exclamation",
                                      "Goto Label Error|Can't find any labels.|exclamation"}));
  EXPECT_EQ(platform.CountOf("unload"), 2);
}

TEST_F(NavigationTest, LabelParameterFindsTheReferringLines) {
  platform.QueueModal("frmGotoLabel", As<frmGotoLabel>([](frmGotoLabel& f) {
                        f.lstLabel.UserSelect(0);  // "End"
                        f.cmdOk.UserClick();
                      }));
  GotoCommand(6);
  EXPECT_EQ(Selected(), std::vector<int>{1});
  EXPECT_EQ(View(SearchLabel.LabelRefName), std::string_view("End\0            ", 16));
  EXPECT_EQ(SearchLabel.LabelRefLine, -1);
  GotoCommand(7);
  EXPECT_EQ(Selected(), std::vector<int>{5});
  GotoCommand(7);
  EXPECT_EQ(Selected(), std::vector<int>{1});
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

TEST_F(NavigationTest, VariableDialogShowsTheTypeAndSkipsRandom) {
  platform.QueueModal(
      "frmGotoVar", As<frmGotoVar>([](frmGotoVar& f) {
        EXPECT_EQ(f.lstVariable.Items(), (std::vector<std::string>{"Count ", "Name "}));
        EXPECT_TRUE(f.optDataType[2].Value());  // Long
        f.lstVariable.UserSelect(1);
        EXPECT_TRUE(f.optDataType[0].Value());  // String
        f.cmdOk.UserClick();
      }));
  GotoCommand(4);
  EXPECT_EQ(SearchVar.VarRefType, kVarString);
  EXPECT_EQ(Selected(), std::vector<int>{2});
  GotoCommand(5);  // line 3 uses Name only in a Random line: not scanned
  EXPECT_EQ(Selected(), std::vector<int>{2});
  EXPECT_TRUE(Boxes().empty());
}

TEST_F(NavigationTest, PathDialogListsTheNamesOfTheChosenType) {
  platform.QueueModal("frmGotoPath", As<frmGotoPath>([](frmGotoPath& f) {
                        EXPECT_EQ(f.cboPath.ListCount(), 2);
                        EXPECT_EQ(f.lstVariable.Items(), std::vector<std::string>{"Msg "});
                        f.cboPath.UserSelect(1);
                        EXPECT_EQ(f.lstVariable.Items(), std::vector<std::string>{"Vox "});
                        f.cboPath.UserSelect(0);
                        f.cmdOk.UserClick();
                      }));
  GotoCommand(8);
  EXPECT_EQ(SearchPathType, kPathMessage);
  EXPECT_EQ(Selected(), std::vector<int>{2});
  platform.QueueModal("frmGotoPath", As<frmGotoPath>([](frmGotoPath& f) {
                        f.cboPath.UserSelect(1);
                        f.cmdOk.UserClick();
                      }));
  GotoCommand(8);
  EXPECT_EQ(Boxes(),
            std::vector<std::string>{"Not Found|Selected path variable Vox not found.|none"});
}

}  // namespace
}  // namespace kq::test

namespace kq::test {
namespace {

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
