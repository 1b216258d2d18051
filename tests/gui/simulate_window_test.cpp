// Run > Simulate on real widgets: a line of lstEdit clicked in the editor and marked as a
// breakpoint stops the run there, with the line selected; keypad buttons reach Get Keys.
#include <gtest/gtest.h>

#include <QListView>
#include <QPushButton>
#include <QTest>

#include "document/state.h"
#include "document/text.h"
#include "editor/frm_simulate.h"
#include "tests/gui/editor_fixture.h"
#include "tests/sim/app_text.h"
#include "ui/qt/form_windows.h"

namespace {

class SimulateWindowTest : public EditorWindowTest {
 protected:
  static ui::qt::DialogWindow* Window() {
    for (QWidget* w : QApplication::topLevelWidgets()) {
      if (w->isVisible() && w->objectName() == "frmSimulate") {
        return dynamic_cast<ui::qt::DialogWindow*>(w);
      }
    }
    return nullptr;
  }
  static void Click(ui::qt::FormBinding& b, ui::Control& c) {
    auto* button = qobject_cast<QPushButton*>(b.WidgetOf(c));
    ASSERT_NE(button, nullptr);
    QTest::mouseClick(button, Qt::LeftButton);
  }
  static QStringList Rows(ui::qt::FormBinding& b, ui::Control& c) {
    QStringList rows;
    auto* view = qobject_cast<QListView*>(b.WidgetOf(c));
    if (view == nullptr) return rows;
    for (int r = 0; r < view->model()->rowCount(); ++r) {
      rows << view->model()->index(r, 0).data().toString();
    }
    return rows;
  }
};

TEST_F(SimulateWindowTest, ABreakpointStopsTheRunOnItsLineAndKeysReachGetKeys) {
  std::string error;
  ASSERT_TRUE(kq::test::OpenAppText(KQ_SIM_WINDOW_DIR "/app.json", error, false)) << error;
  kq::ApplFileName = KQ_SIM_WINDOW_DIR "/app.kqx";  // the prompts are found beside it
  kq::SpeechAudioFormat = 6;
  ASSERT_EQ(list()->model()->rowCount(), 8);

  platform.QueueAnswer(ui::vbOK);  // compiled first, as the Compile menu does
  action(form->mnuRunSimulate)->trigger();
  ASSERT_FALSE(platform.Boxes().empty());
  EXPECT_EQ(platform.Boxes().back().title, "Compile Information");
  ui::qt::DialogWindow* window = Window();
  ASSERT_NE(window, nullptr);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
  ui::qt::FormBinding& b = window->binding();
  kq::frmSimulate* s = kq::SimulateWindow();
  ASSERT_NE(s, nullptr);

  // The Get Keys line, clicked in the editor while the window stays open beside it.
  const QModelIndex getKeys = list()->model()->index(2, 0);
  QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, list()->visualRect(getKeys).center());
  ASSERT_EQ(form->lstEdit.ListIndex(), 2);
  Click(b, s->cmdBreakpoint);
  EXPECT_EQ(s->Breakpoints(), (std::set<int>{2}));

  Click(b, s->cmdRing);
  Click(b, s->cmdContinue);
  EXPECT_EQ(s->Engine()->CurrentLine(), 2);
  EXPECT_EQ(s->lblLine.Caption(), "Line 2 (breakpoint)");
  EXPECT_EQ(form->lstEdit.SelectedIndexes(), (std::vector<int>{2}));
  EXPECT_TRUE(list()->selectionModel()->isSelected(getKeys));

  Click(b, s->cmdContinue);  // Get Keys waits for the keypad
  EXPECT_EQ(s->Engine()->CurrentLine(), 2);
  Click(b, s->cmdKey[4]);  // "5"
  Click(b, s->cmdStep);
  EXPECT_TRUE(Rows(b, s->lstWatch).contains("K = 5"));
  EXPECT_TRUE(Rows(b, s->lstTrace).contains(R"({"event":"keys","keys":"5"})"));
  Click(b, s->cmdContinue);
  EXPECT_TRUE(s->Engine()->Ended());
  EXPECT_EQ(Rows(b, s->lstTables), QStringList{"CUST: record 1: ID = 5, NAME = Ann"});
  Click(b, s->cmdClose);
  EXPECT_EQ(kq::SimulateWindow(), nullptr);
}

}  // namespace
