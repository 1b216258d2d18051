// The editor's main window and its dialogs on real widgets: New, a declared variable, a
// Goto and a Condition added through their dialogs, a refused key, Compile, Save As
// through the file dialog, and the closing prompts.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <functional>
#include <memory>

#include <QTextBrowser>
#include "dialogs/dialogs.h"
#include "dialogs/frm_condition.h"
#include "dialogs/frm_def_var.h"
#include "dialogs/frm_func.h"
#include "dialogs/frm_goto.h"
#include "dialogs/frm_remark.h"
#include "document/header.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/frm_edit.h"
#include "editor/frm_prompts.h"
#include "tests/gui/editor_fixture.h"
#include "ui/qt/form_binding.h"
#include "ui/qt/form_windows.h"
#include "ui/qt/help_window.h"

namespace {

using ui::qt::FormBinding;

TEST_F(EditorWindowTest, StartsWithAnEmptyListAndTheSystemsTitle) {
  EXPECT_EQ(window()->windowTitle(), "Zelvox Voice Response Editor: Untitled");
  EXPECT_EQ(list()->model()->rowCount(), 0);
  EXPECT_FALSE(action(form->mnuFileItem[2])->isEnabled());
  EXPECT_TRUE(action(form->mnuFileItem[0])->isEnabled());
  EXPECT_FALSE(action(form->mnuEditItem[0])->isEnabled());
}

// Every separator of every menu, the recent files' one included, is a line with no text.
TEST_F(EditorWindowTest, SeparatorsAreLinesWithoutACaption) {
  int separators = 0;
  std::function<void(const QList<QAction*>&)> walk = [&](const QList<QAction*>& actions) {
    for (QAction* a : actions) {
      if (a->isSeparator()) {
        ++separators;
        EXPECT_TRUE(a->text().isEmpty()) << a->text().toStdString();
      } else {
        EXPECT_NE(a->text(), "-");
      }
      if (a->menu() != nullptr) walk(a->menu()->actions());
    }
  };
  walk(window()->menuBar()->actions());
  EXPECT_GE(separators, 3);
}

// A remark takes every character, the tab too: pasted, it is kept as typed.
TEST_F(EditorWindowTest, PastedTabsStayInARemark) {
  action(form->mnuFileItem[0])->trigger();  // New
  PickFunction("Remark");
  platform.QueueModal([&](QDialog& dialog, FormBinding& b) {
    auto& d = static_cast<kq::frmRemark&>(b.form());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    auto* remark = qobject_cast<QLineEdit*>(b.WidgetOf(d.txtRemark));
    ASSERT_NE(remark, nullptr);
    remark->setFocus();
    QApplication::clipboard()->setText(QStringLiteral("a\tb\nc"));
    QTest::keySequence(remark, QKeySequence::Paste);
    EXPECT_EQ(d.txtRemark.Text(), "a\tbc");
    EXPECT_EQ(remark->text(), QStringLiteral("a\tbc"));
    QTest::mouseClick(qobject_cast<QPushButton*>(b.WidgetOf(d.cmdOk)), Qt::LeftButton);
  });
  action(form->mnuEditItem[0])->trigger();
  ASSERT_EQ(form->lstEdit.ListCount(), 1);
  EXPECT_EQ(form->lstEdit.List(0), "0000\t\tRemark           \ta\tbc");
}

TEST_F(EditorWindowTest, BuildCompileSaveAndCloseAnApplication) {
  action(form->mnuFileItem[0])->trigger();  // New
  EXPECT_EQ(window()->windowTitle(), "Zelvox Voice Response Editor: temp.kqx");
  EXPECT_TRUE(action(form->mnuEditItem[0])->isEnabled());

  // Define, Variables: a refused key beeps and leaves the name as it was.
  platform.QueueModal([&](QDialog& dialog, FormBinding& b) {
    auto& d = static_cast<kq::frmDefVar&>(b.form());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    auto* name = qobject_cast<QLineEdit*>(b.WidgetOf(d.txtName));
    ASSERT_NE(name, nullptr);
    name->setFocus();
    QTest::keyClicks(name, "Count");
    const int beeps = platform.BeepCount();
    TypeChar(name, QChar(0x4E2D));  // not in the code page: nothing at all
    EXPECT_EQ(platform.BeepCount(), beeps);
    QTest::keyClick(name, Qt::Key_QuoteDbl);  // no character of a name
    EXPECT_EQ(d.txtName.Text(), "Count") << "refused keys leave the text";
    EXPECT_EQ(name->text(), "Count");
    EXPECT_EQ(name->cursorPosition(), 5);
    EXPECT_EQ(platform.BeepCount(), beeps + 1);
    QTest::keyClick(name, Qt::Key_Return);  // Add is the default button
    EXPECT_EQ(d.lstVariable.ListCount(), 1);
    QTest::mouseClick(qobject_cast<QPushButton*>(b.WidgetOf(d.cmdOk)), Qt::LeftButton);
  });
  QTest::keyClick(list(), Qt::Key_V, Qt::ControlModifier);  // Define, Variables by its shortcut
  EXPECT_EQ(kq::RTrimZ(std::string(kq::PrgHdr.Variable[0].VarRefName, 28)), "Count");

  // Edit, Add: the picker, then the Goto dialog.
  PickFunction("Goto");
  platform.QueueModal([&](QDialog& dialog, FormBinding& b) {
    auto& d = static_cast<kq::frmGoto&>(b.form());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClicks(b.WidgetOf(d.txtLabel), "Top");
    QTest::keyClicks(b.WidgetOf(d.cboLabel), "Top");
    QTest::mouseClick(qobject_cast<QPushButton*>(b.WidgetOf(d.cmdOk)), Qt::LeftButton);
  });
  action(form->mnuEditItem[0])->trigger();
  ASSERT_EQ(list()->model()->rowCount(), 1);
  EXPECT_TRUE(RowText(0).startsWith("0000\tTop\tGoto"));

  PickFunction("Condition");
  platform.QueueModal([&](QDialog& dialog, FormBinding& b) {
    auto& d = static_cast<kq::frmCondition&>(b.form());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    EXPECT_EQ(qobject_cast<QComboBox*>(b.WidgetOf(d.cboVar[0]))->currentText().trimmed(), "Count");
    QTest::keyClicks(b.WidgetOf(d.cboLabel[0]), "Top");
    QTest::mouseClick(qobject_cast<QPushButton*>(b.WidgetOf(d.cmdOk)), Qt::LeftButton);
  });
  ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
  QTest::keyClick(list(), Qt::Key_A, Qt::ControlModifier);  // Edit, Add by its shortcut
  ASSERT_EQ(list()->model()->rowCount(), 2);
  EXPECT_TRUE(RowText(1).startsWith("0001\t\tCondition"));
  EXPECT_TRUE(RowText(1).contains("THEN Top"));
  EXPECT_TRUE(list()->selectionModel()->isSelected(list()->model()->index(1, 0)));
  EXPECT_TRUE(kq::ChangedFlag);

  // Compile.
  platform.QueueAnswer(ui::vbOK);
  action(form->mnuCompile)->trigger();
  ASSERT_FALSE(platform.Boxes().empty());
  EXPECT_EQ(platform.Boxes().back().title, "Compile Information");
  EXPECT_NE(kq::PrgHdr.CompiledFlag, 0);

  // Save As through the file dialog.
  const std::string path = (home.path() + "/story.kqx").toStdString();
  platform.QueueFile(path);
  action(form->mnuFileItem[3])->trigger();
  EXPECT_EQ(platform.FileRequests().back().filter, "V/R Files (*.kqx)|*.kqx");
  EXPECT_TRUE(QFileInfo::exists(QString::fromStdString(path)));
  EXPECT_EQ(window()->windowTitle(), "Zelvox Voice Response Editor: story.kqx");
  EXPECT_FALSE(kq::ChangedFlag);

  // One more line, then the window's close button: compile prompt, then save prompt.
  PickFunction("Goto");
  platform.QueueModal([&](QDialog&, FormBinding& b) {
    auto& d = static_cast<kq::frmGoto&>(b.form());
    QTest::keyClicks(b.WidgetOf(d.cboLabel), "Top");
    // These dialogs have no cancel role: Escape does nothing, the button cancels.
    QTest::keyClick(b.WidgetOf(d.cboLabel), Qt::Key_Escape);
    EXPECT_TRUE(d.Loaded());
    QTest::mouseClick(qobject_cast<QPushButton*>(b.WidgetOf(d.cmdCancel)), Qt::LeftButton);
  });
  action(form->mnuEditItem[0])->trigger();
  EXPECT_EQ(list()->model()->rowCount(), 2) << "a cancelled dialog adds nothing";

  list()->setFocus();
  QTest::keyClick(list(), Qt::Key_Home);
  PickFunction("Goto");
  platform.QueueModal([&](QDialog&, FormBinding& b) {
    auto& d = static_cast<kq::frmGoto&>(b.form());
    QTest::keyClicks(b.WidgetOf(d.cboLabel), "Top");
    QTest::mouseClick(qobject_cast<QPushButton*>(b.WidgetOf(d.cmdOk)), Qt::LeftButton);
  });
  QTest::keyClick(list(), Qt::Key_Insert);  // the Insert key inserts before line 0
  ASSERT_EQ(list()->model()->rowCount(), 3);
  EXPECT_TRUE(RowText(0).startsWith("0000\t\tGoto"));
  EXPECT_TRUE(RowText(1).startsWith("0001\tTop\tGoto"));

  // The Delete key removes the selected line and numbers the rest again; a double click
  // opens the line's dialog with its values.
  QTest::mouseClick(list()->viewport(), Qt::LeftButton, {},
                    list()->visualRect(list()->model()->index(0, 0)).center());
  QTest::keyClick(list(), Qt::Key_Delete);
  ASSERT_EQ(list()->model()->rowCount(), 2);
  EXPECT_TRUE(RowText(0).startsWith("0000\tTop\tGoto"));
  bool modified = false;
  platform.QueueModal([&](QDialog&, FormBinding& b) {
    auto& d = static_cast<kq::frmGoto&>(b.form());
    modified = true;
    EXPECT_EQ(qobject_cast<QLineEdit*>(b.WidgetOf(d.txtLabel))->text().trimmed(), "Top");
    QTest::mouseClick(qobject_cast<QPushButton*>(b.WidgetOf(d.cmdCancel)), Qt::LeftButton);
  });
  QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {},
                     list()->visualRect(list()->model()->index(0, 0)).center());
  EXPECT_TRUE(modified);

  const size_t before = platform.Boxes().size();
  platform.QueueAnswer(ui::vbCancel);
  window()->close();
  EXPECT_TRUE(window()->isVisible());
  EXPECT_TRUE(form->Loaded());
  platform.QueueAnswer(ui::vbNo);
  platform.QueueAnswer(ui::vbNo);
  window()->close();
  ASSERT_EQ(platform.Boxes().size(), before + 3);
  EXPECT_EQ(platform.Boxes()[before].title, "Confirm Unload");
  EXPECT_EQ(platform.Boxes()[before + 2].title, "Confirm Exit");
  EXPECT_EQ(platform.Boxes()[before + 2].text,
            "Save changed, but uncompiled file: \r" + path + " ?");
  EXPECT_FALSE(form->Loaded());
  EXPECT_FALSE(window()->isVisible());
}

TEST_F(EditorWindowTest, GeometryFollowsTheModelInTwips) {
  const QRect frame = window()->frameGeometry();
  EXPECT_EQ(frame.left() * 15, form->Left());
  EXPECT_EQ(frame.width() * 15, form->Width());
  window()->resize(700, 500);
  QApplication::processEvents();
  EXPECT_EQ(form->Width(), window()->frameGeometry().width() * 15);
  EXPECT_EQ(form->Height(), window()->frameGeometry().height() * 15);
  // A person may make the window smaller than it started.
  window()->resize(400, 300);
  QApplication::processEvents();
  EXPECT_EQ(window()->width(), 400);
  EXPECT_EQ(form->Width(), window()->frameGeometry().width() * 15);
  // The model's own moves show at once.
  form->Move(1500, 1500, 9000, 6000);
  EXPECT_EQ(window()->frameGeometry().topLeft(), QPoint(100, 100));
  EXPECT_EQ(window()->frameGeometry().width(), 600);
  // A dialog stands where CenterForm puts it: centred over the main window.
  QRect dialogRect;
  platform.QueueModal([&](QDialog& dialog, FormBinding& b) {
    dialogRect = dialog.geometry();
    b.form().FindControl("cmdCancel")->UserClick();
  });
  kq::ShowFunctionPicker();
  const QPoint mainCentre(100 + 300, 100 + 200);
  EXPECT_NEAR(dialogRect.center().x(), mainCentre.x(), 2);
  EXPECT_NEAR(dialogRect.center().y(), mainCentre.y(), 2);
}

}  // namespace

namespace {

TEST_F(EditorWindowTest, HelpMenuShowsTheManualAndClosingTheWindowClosesIt) {
  platform.SetDataDirectory(QFileInfo(QStringLiteral(KQ_MANUAL_DIR)).path().toStdString());
  action(form->mnuHelpItem[0])->trigger();
  ui::qt::HelpWindow* help = platform.HelpWindowShown();
  ASSERT_NE(help, nullptr);
  EXPECT_TRUE(help->isVisible());
  EXPECT_TRUE(help->browser()->toPlainText().contains("Contents"));
  action(form->mnuHelpItem[2])->trigger();
  EXPECT_TRUE(help->isVisible());
  window()->close();  // nothing open: no prompts
  EXPECT_FALSE(form->Loaded());
  EXPECT_FALSE(help->isVisible());
}

TEST_F(EditorWindowTest, ToolsMenuShowsThePromptsWindowWithItsProgressBar) {
  const QList<QAction*> menus = window()->menuBar()->actions();
  ASSERT_FALSE(menus.isEmpty());
  EXPECT_EQ(menus.back()->text(), "&Tools");  // a menu of its own, after the described ones
  bool shown = false;
  platform.QueueModal([&](QDialog& dialog, ui::qt::FormBinding& b) {
    shown = true;
    auto& d = static_cast<kq::frmPrompts&>(b.form());
    EXPECT_EQ(dialog.windowTitle(), "Make Missing Prompts");
    auto* bar = qobject_cast<QProgressBar*>(b.WidgetOf(d.prgPrompts));
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(bar->maximum(), 0);  // nothing named: nothing to make
    EXPECT_FALSE(b.WidgetOf(d.cmdMake)->isEnabled());
    QTest::mouseClick(qobject_cast<QPushButton*>(b.WidgetOf(d.cmdCancel)), Qt::LeftButton);
  });
  action(form->mnuToolsPrompts)->trigger();
  EXPECT_TRUE(shown);
}

}  // namespace
