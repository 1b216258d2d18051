// The Check All and Call Flow windows on real widgets: the diagram is drawn (screenshot),
// a click on a line's box selects the line, selecting a line marks its box, and a double
// click on a finding selects its line.
#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QScrollArea>
#include <cstring>
#include <functional>

#include "check/forms/frm_call_flow.h"
#include "check/forms/frm_check_all.h"
#include "check/forms/install.h"
#include "document/functions.h"
#include "document/state.h"
#include "document/text.h"
#include "tests/gui/editor_fixture.h"

namespace {

class CheckWindowsTest : public EditorWindowTest {
 protected:
  void Line(const std::string& label, kq::Fn f, const std::function<void(kq::RecordSet&)>& fill) {
    const int n = kq::ToInt(f);
    const int line = form->lstEdit.ListCount();
    std::memcpy(kq::WorkRecord.Image(n), kq::InitRecord.Image(n),
                static_cast<size_t>(kq::RecordLength[n]));
    fill(kq::WorkRecord);
    std::memcpy(kq::FuncBlock[line], kq::WorkRecord.Image(n),
                static_cast<size_t>(kq::RecordLength[n]));
    kq::SetField(kq::LineTable[line].LineLabel, label);
    kq::LineTable[line].LineFuncNo = static_cast<int16_t>(n);
    form->lstEdit.AddItem(kq::Format0000(line) + "\t" + label + "\t" +
                          kq::RTrim(kq::Row(kq::FuncNames[n])) + "\t");
    kq::PrgHdr.LineCount = static_cast<int16_t>(line + 1);
  }
  void Program() {
    action(form->mnuFileItem[0])->trigger();  // New
    kq::InstallCheckWindows();
    auto label = [](kq::LabelRef& r, const char* name) { kq::SetField(r.LabelRefName, name); };
    Line("Top", kq::Fn::Remark, [](kq::RecordSet&) {});
    Line("", kq::Fn::Gosub, [&](kq::RecordSet& w) { label(w.Gosub.Target, "Sub"); });
    Line("", kq::Fn::Goto, [&](kq::RecordSet& w) { label(w.Goto.Target, "Top"); });
    Line("Sub", kq::Fn::Delay, [](kq::RecordSet&) {});
    Line("", kq::Fn::Goto, [&](kq::RecordSet& w) { label(w.Goto.Target, "Missing"); });
    Line("", kq::Fn::Return, [](kq::RecordSet&) {});
  }
  static QWidget* WindowOf(const char* name) {
    for (QWidget* w : QApplication::topLevelWidgets()) {
      if (w->isVisible() && w->objectName() == name) return w;
    }
    return nullptr;
  }
};

TEST_F(CheckWindowsTest, CallFlowDrawsTheDiagramAndFollowsTheSelection) {
  Program();
  form->mnuGoto.SetEnabled(true);  // as adding lines through the Edit menu leaves it
  action(form->mnuGotoCallFlow)->trigger();
  kq::frmCallFlow* flow = kq::CallFlowWindow();
  ASSERT_NE(flow, nullptr);
  QWidget* window = WindowOf("frmCallFlow");
  ASSERT_NE(window, nullptr);
  auto* area = window->findChild<QScrollArea*>();
  ASSERT_NE(area, nullptr);
  QWidget* picture = area->widget();
  ASSERT_GT(picture->width(), 50);
  ASSERT_GT(picture->height(), 100);
  QDir().mkpath(QStringLiteral(KQ_SHOT_DIR));
  const QImage shot = window->grab().toImage();
  EXPECT_TRUE(shot.save(QStringLiteral(KQ_SHOT_DIR "/frmCallFlow.png")));
  // The diagram is drawn: the picture holds dark pixels of boxes and text.
  const QImage drawn = picture->grab().toImage();
  int dark = 0;
  for (int y = 0; y < drawn.height(); y += 2) {
    for (int x = 0; x < drawn.width(); x += 2) dark += qGray(drawn.pixel(x, y)) < 100;
  }
  EXPECT_GT(dark, 50);

  // A click on the box of line 3 selects line 3.
  bool clicked = false;
  for (int y = 0; y < picture->height() && !clicked; y += 4) {
    for (int x = 0; x < picture->width() && !clicked; x += 4) {
      QTest::mouseClick(picture, Qt::LeftButton, {}, QPoint(x, y));
      clicked = flow->svgFlow.ClickedId() == "L3";
    }
  }
  ASSERT_TRUE(clicked);
  EXPECT_EQ(form->lstEdit.SelectedIndexes(), std::vector<int>{3});
  EXPECT_EQ(flow->svgFlow.Marked(), "L3");

  // Selecting a line in the edit list marks its box.
  form->lstEdit.UserClick();  // the click a person makes lands on the current row
  form->lstEdit.SetListIndex(5);
  form->lstEdit.UserClick();
  EXPECT_EQ(flow->svgFlow.Marked(), "L5");
  flow->cmdClose.UserClick();
  EXPECT_EQ(kq::CallFlowWindow(), nullptr);
  form->lstEdit.SetListIndex(1);
  form->lstEdit.UserClick();  // the list's own handler is back; nothing else listens
}

TEST_F(CheckWindowsTest, CheckAllListsFindingsAndGoesToTheirLines) {
  Program();
  action(form->mnuCheckAll)->trigger();
  kq::frmCheckAll* check = kq::CheckAllWindow();
  ASSERT_NE(check, nullptr);
  ASSERT_NE(WindowOf("frmCheckAll"), nullptr);
  ASSERT_FALSE(check->Findings().empty());
  EXPECT_EQ(check->Findings().front().message, "Label 'Missing' not found in line 4");
  EXPECT_EQ(check->lstFindings.ListCount(), static_cast<int>(check->Findings().size()));
  check->lstFindings.SetListIndex(0);
  check->lstFindings.RaiseDblClick();
  EXPECT_EQ(form->lstEdit.SelectedIndexes(), std::vector<int>{4});
  QDir().mkpath(QStringLiteral(KQ_SHOT_DIR));
  EXPECT_TRUE(WindowOf("frmCheckAll")->grab().save(QStringLiteral(KQ_SHOT_DIR "/frmCheckAll.png")));
  check->cmdClose.UserClick();
  EXPECT_EQ(kq::CheckAllWindow(), nullptr);
}

}  // namespace
