// The Simulate window on the headless platform: a breakpoint stops the run on its line,
// the current line is selected in lstEdit, and a key of the keypad reaches Get Keys.
#include <gtest/gtest.h>

#include "document/state.h"
#include "editor/frm_simulate.h"
#include "tests/sim/sim_app.h"

namespace kq::test {
namespace {

TEST(SimulateWindow, ABreakpointStopsTheRunAndAKeyReachesGetKeys) {
  DocFixture fx;
  App app(fx);
  app.String("K");
  app.Line<WaitForCallRec>("", Fn::WaitForCall, [](WaitForCallRec& r) { r.Rings = 1; });
  app.Line<RemarkRec>("", Fn::Remark, [](RemarkRec& r) { App::T(r.RemarkText, "answered"); });
  app.Line<GetKeysRec>("", Fn::GetKeys, [&](GetKeysRec& r) {
    app.V(r.Target, "K");
    r.KeyCount = 2;  // one key
  });
  app.Line<RemarkRec>("", Fn::Remark, [](RemarkRec& r) { App::T(r.RemarkText, "done"); });
  bool driven = false;
  fx.platform.QueueModal("frmSimulate", [&](ui::Form& f) {
    driven = true;
    auto& s = static_cast<frmSimulate&>(f);
    fx.list().SetListIndex(1);
    s.cmdBreakpoint.UserClick();
    EXPECT_EQ(s.Breakpoints(), (std::set<int>{1}));
    s.cmdContinue.UserClick();  // nobody rings yet
    EXPECT_EQ(s.Engine()->CurrentLine(), 0);
    s.cmdRing.UserClick();
    s.cmdContinue.UserClick();
    EXPECT_EQ(s.Engine()->CurrentLine(), 1);
    EXPECT_EQ(s.lblLine.Caption(), "Line 1 (breakpoint)");
    EXPECT_EQ(fx.list().SelectedIndexes(), (std::vector<int>{1}));
    s.cmdContinue.UserClick();  // Get Keys waits for the keypad
    EXPECT_EQ(s.Engine()->CurrentLine(), 2);
    EXPECT_EQ(fx.list().SelectedIndexes(), (std::vector<int>{2}));
    s.cmdKey[4].UserClick();  // "5"
    s.cmdStep.UserClick();
    EXPECT_EQ(s.lstWatch.Items(), (std::vector<std::string>{"K = 5"}));
    s.cmdContinue.UserClick();
    EXPECT_TRUE(s.Engine()->Ended());
    EXPECT_EQ(s.lblLine.Caption(), "Ended: end ");
    bool keys = false;
    for (const auto& t : s.lstTrace.Items()) keys |= t == R"({"event":"keys","keys":"5"})";
    EXPECT_TRUE(keys);
    s.cmdClose.UserClick();
  });
  ShowSimulate();
  EXPECT_TRUE(driven);
  EXPECT_NE(PrgHdr.CompiledFlag, 0);  // compiled as the Compile menu does
}

}  // namespace
}  // namespace kq::test
