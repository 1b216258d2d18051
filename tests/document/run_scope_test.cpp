// The run's installed state: a scope installs its platform, list and main window over a new
// document, and the end of the scope puts back what was there, nested scopes included.
#include <gtest/gtest.h>

#include "document/edit_host.h"
#include "document/run_scope.h"
#include "document/state.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/list_controls.h"
#include "ui/platform/platform.h"

namespace {

using namespace kq;

using Host = EditHost;

TEST(RunScope, InstallsANewRunAndPutsBackThePreviousOne) {
  const RunParts before = InstalledParts();
  ui::HeadlessPlatform outerPlatform, innerPlatform;
  Host outerHost, innerHost;
  {
    RunScope outer({&outerPlatform, &outerHost.lstEdit, &outerHost});
    Shell.caption = [] { return std::string("outer"); };
    ChangedFlag = true;
    FuncOk = true;
    PrgHdr.LineCount = 5;
    LineTable[3].LineFuncNo = 18;
    FuncBlock[3][7] = 0x5A;
    WorkRecord.Delay.DelayMs = 77;
    FuncName = "Voice";
    ApplFileTitle = "outer.kqx";
    EXPECT_EQ(&outerPlatform, &ui::platform());
    EXPECT_EQ(&outerHost.lstEdit, &EditList());
    EXPECT_EQ(&outerHost, MainWindow());
    {
      RunScope inner({&innerPlatform, &innerHost.lstEdit});
      EXPECT_EQ(&innerPlatform, &ui::platform());
      EXPECT_EQ(&innerHost.lstEdit, &EditList());
      EXPECT_EQ(nullptr, MainWindow());
      EXPECT_FALSE(Shell.caption);  // the hooks of the outer run are not the inner run's
      EXPECT_FALSE(ChangedFlag);    // a new document
      EXPECT_FALSE(FuncOk);
      EXPECT_EQ(0, PrgHdr.LineCount);
      EXPECT_EQ(84, RecordLength[0]);
      // The inner run works on the same stores; all of it goes back to the outer run.
      LineTable[3].LineFuncNo = 4;
      FuncBlock[3][7] = 0;
      WorkRecord.Delay.DelayMs = 1;
      FuncName = "Delay";
      ApplFileTitle = "inner.kqx";
      FuncOk = true;
    }
    EXPECT_TRUE(ChangedFlag);
    EXPECT_TRUE(FuncOk);
    EXPECT_EQ(5, PrgHdr.LineCount);
    EXPECT_EQ(18, LineTable[3].LineFuncNo);
    EXPECT_EQ(0x5A, FuncBlock[3][7]);
    EXPECT_EQ(77, WorkRecord.Delay.DelayMs);
    EXPECT_EQ("Voice", FuncName);
    EXPECT_EQ("outer.kqx", ApplFileTitle);
    EXPECT_EQ(&outerPlatform, &ui::platform());
    EXPECT_EQ(&outerHost.lstEdit, &EditList());
    EXPECT_EQ(&outerHost, MainWindow());
    ASSERT_TRUE(Shell.caption);
    EXPECT_EQ("outer", Shell.caption());
  }
  EXPECT_EQ(before.platform, ui::InstalledPlatform());
  EXPECT_EQ(before.editList, InstalledEditList());
  EXPECT_EQ(before.mainWindow, MainWindow());
  EXPECT_FALSE(Shell.caption);
}

}  // namespace
