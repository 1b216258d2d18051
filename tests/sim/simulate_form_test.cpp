// The Simulate window on the headless platform, on the application of tests/sim/window: a
// breakpoint stops the run on its line, the current line is selected in lstEdit, a key of
// the keypad reaches Get Keys, the prompts go to the media control and the table's current
// record is watched.
#include <gtest/gtest.h>

#include "document/state.h"
#include "editor/frm_simulate.h"
#include "tests/sim/app_text.h"
#include "tests/support/doc_builder.h"

namespace kq::test {
namespace {

bool Holds(const std::vector<std::string>& items, const std::string& item) {
  return std::find(items.begin(), items.end(), item) != items.end();
}

TEST(SimulateWindow, ABreakpointStopsTheRunAKeyReachesGetKeysAndTheRecordIsWatched) {
  DocFixture fx;
  std::string error;
  ASSERT_TRUE(OpenAppText(KQ_SIM_WINDOW_DIR "/app.json", error, false)) << error;
  ApplFileName = KQ_SIM_WINDOW_DIR "/app.kqx";  // prompts are found beside it
  SpeechAudioFormat = 6;
  ShowSimulate();
  EXPECT_NE(PrgHdr.CompiledFlag, 0);  // compiled as the Compile menu does
  frmSimulate* s = SimulateWindow();
  ASSERT_NE(s, nullptr);

  fx.list().SetListIndex(2);
  s->cmdBreakpoint.UserClick();
  EXPECT_EQ(s->Breakpoints(), (std::set<int>{2}));
  s->cmdContinue.UserClick();  // nobody rings yet
  EXPECT_EQ(s->Engine()->CurrentLine(), 0);
  EXPECT_EQ(s->lstTables.Items(), (std::vector<std::string>{"CUST: not connected"}));
  fx.platform.ClearEvents();
  s->cmdRing.UserClick();
  s->cmdContinue.UserClick();
  EXPECT_EQ(s->Engine()->CurrentLine(), 2);
  EXPECT_EQ(s->lblLine.Caption(), "Line 2 (breakpoint)");
  EXPECT_EQ(fx.list().SelectedIndexes(), (std::vector<int>{2}));
  // Both prompts of the Voice line were played in turn, converted to wave files.
  std::vector<std::string> plays;
  for (const auto& e : fx.platform.EventsOf("media")) {
    const std::string j = e.ToJson();
    if (j.find("\"Play\"") != std::string::npos) plays.push_back(j);
  }
  ASSERT_EQ(plays.size(), 2u);
  EXPECT_NE(plays[0].find("hello.vox.wav"), std::string::npos) << plays[0];

  s->cmdContinue.UserClick();  // Get Keys waits for the keypad
  EXPECT_EQ(s->Engine()->CurrentLine(), 2);
  s->cmdKey[4].UserClick();  // "5"
  s->cmdStep.UserClick();
  EXPECT_TRUE(Holds(s->lstWatch.Items(), "K = 5"));
  EXPECT_EQ(fx.list().SelectedIndexes(), (std::vector<int>{3}));
  s->cmdContinue.UserClick();
  EXPECT_TRUE(s->Engine()->Ended());
  EXPECT_EQ(s->lblLine.Caption(), "Ended: end ");
  EXPECT_TRUE(Holds(s->lstWatch.Items(), "ID = 5"));
  EXPECT_EQ(s->lstTables.Items(), (std::vector<std::string>{"CUST: record 1: ID = 5, NAME = Ann"}));
  EXPECT_TRUE(Holds(s->lstTrace.Items(), R"({"event":"keys","keys":"5"})"));
  s->cmdClose.UserClick();
  EXPECT_EQ(SimulateWindow(), nullptr);
}

// Lines changed while the window is open: the run does not go on over them; Run > Simulate
// then starts a new run in the same window.
TEST(SimulateWindow, AChangedApplicationIsNotRun) {
  DocFixture fx;
  std::string error;
  ASSERT_TRUE(OpenAppText(KQ_SIM_WINDOW_DIR "/app.json", error)) << error;
  ShowSimulate();
  frmSimulate* s = SimulateWindow();
  ASSERT_NE(s, nullptr);
  PrgHdr.CompiledFlag = 0;  // as an edit leaves it
  s->cmdRing.UserClick();
  s->cmdStep.UserClick();
  EXPECT_EQ(s->Engine()->Steps(), 0);
  EXPECT_EQ(s->lblLine.Caption(), "The application has changed: open Simulate again.");
  // Opened again while open: the same window, a new run on the compiled lines.
  fx.list().SetListIndex(1);
  s->cmdBreakpoint.UserClick();
  ShowSimulate();
  ASSERT_EQ(SimulateWindow(), s);
  EXPECT_NE(PrgHdr.CompiledFlag, 0);
  s->cmdRing.UserClick();
  s->cmdContinue.UserClick();
  EXPECT_EQ(s->Engine()->CurrentLine(), 1);
  EXPECT_EQ(s->lblLine.Caption(), "Line 1 (breakpoint)");
  EXPECT_EQ(s->lstTrace.Items().front(), R"({"event":"line","line":0,"function":"Wait for Call"})");
  s->cmdClose.UserClick();
}

}  // namespace
}  // namespace kq::test
