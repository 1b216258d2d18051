// Renders the main window with a document of 20 lines and every dialog there is to PNG
// files under the build folder, and checks that no control's text is cut off.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QStyle>
#include <string>
#include <vector>

#include "dialogs/dialogs.h"
#include "dialogs/func_dialog.h"
#include "document/catalogue.h"
#include "document/state.h"
#include "document/text.h"
#include "tests/gui/editor_fixture.h"
#include "ui/qt/button_bindings.h"

namespace {

// The texts of a window that do not fit their widget: "name: text".
std::vector<std::string> ClippedTexts(QWidget& window) {
  std::vector<std::string> out;
  for (QWidget* w : window.findChildren<QWidget*>()) {
    if (!w->isVisible()) continue;
    QString text;
    int room = w->width();
    if (auto* label = qobject_cast<QLabel*>(w)) {
      text = label->text();
      room = label->contentsRect().width();
    } else if (auto* button = qobject_cast<QAbstractButton*>(w)) {
      text = button->text();
      // A button needs its whole size hint: frame, indicator and text.
      if (button->sizeHint().width() > button->width()) {
        out.push_back(w->objectName().toStdString() + "(hint): " + text.toStdString());
      }
    } else if (auto* box = qobject_cast<QGroupBox*>(w)) {
      text = box->title();
    } else {
      continue;
    }
    text = ui::qt::StripMnemonic(text);
    if (w->fontMetrics().horizontalAdvance(text) > room) {
      out.push_back(w->metaObject()->className() + std::string(": ") + text.toStdString());
    }
  }
  return out;
}

void Shoot(QWidget& window, const std::string& name) {
  QDir().mkpath(QStringLiteral(KQ_SHOT_DIR));
  const QString file = QStringLiteral(KQ_SHOT_DIR) + u'/' + QString::fromStdString(name) + ".png";
  EXPECT_TRUE(window.grab().save(file)) << file.toStdString();
  const std::vector<std::string> clipped = ClippedTexts(window);
  EXPECT_TRUE(clipped.empty()) << name << ": " << ::testing::PrintToString(clipped);
}

class ScreenshotTest : public EditorWindowTest {
 protected:
  void Declare(int i, int type, const char* name) {
    kq::PrgHdr.Variable[i].VarRefType = type;
    kq::SetField(kq::PrgHdr.Variable[i].VarRefName, name);
  }
  // Shoots the next dialog and leaves it by its Cancel button.
  void ShootNextDialog(std::vector<std::string>& shot) {
    platform.QueueModal([&shot](QDialog& dialog, ui::qt::FormBinding& b) {
      Shoot(dialog, b.form().Name());
      shot.push_back(b.form().Name());
      ui::Control* cancel = b.form().FindControl("cmdCancel");
      ASSERT_NE(cancel, nullptr) << b.form().Name();
      cancel->UserClick();
    });
  }
};

TEST_F(ScreenshotTest, MainWindowAndEveryDialogShowTheirTextsWhole) {
  action(form->mnuFileItem[0])->trigger();  // New
  std::vector<std::string> lines;
  for (int i = 0; i < 20; ++i) {
    lines.push_back(kq::Format0000(i) + "\t" + (i % 5 == 0 ? "Label" + std::to_string(i) : "") +
                    "\tRemark           \tline " + std::to_string(i) + " of the application");
  }
  form->lstEdit.ReplaceAll(lines);
  form->lstEdit.SetSelected(3, true);
  window()->resize(900, 600);
  QApplication::processEvents();
  Shoot(*window(), "frmEdit");

  Declare(0, 0, "Count");
  Declare(1, 1, "Sum");
  Declare(2, 2, "Name");
  for (int type = 0; type < kq::kPathTypes; ++type) {
    kq::SetField(kq::PrgHdr.Path[0][type].PathName, "Path" + std::to_string(type));
    kq::SetField(kq::PrgHdr.Path[0][type].PathText, "/tmp/");
  }
  kq::SetField(kq::PrgHdr.Table[0].TableName, "Customers");
  std::vector<std::string> shot;
  ShootNextDialog(shot);
  kq::ShowFunctionPicker();
  ShootNextDialog(shot);
  kq::ShowDefineVariables();
  ShootNextDialog(shot);
  kq::ShowDefineTables();
  int dialogs = 3;
  for (int funcNo = 0; funcNo < kq::kFuncCount; ++funcNo) {
    if (!kq::IsLiveFunction(funcNo) || !kq::HasFuncDialog(funcNo)) continue;
    ShootNextDialog(shot);
    kq::FuncModify = false;
    kq::GetFuncParm(funcNo);
    ++dialogs;
  }
  EXPECT_EQ(static_cast<int>(shot.size()), dialogs) << ::testing::PrintToString(shot);
}

}  // namespace
