// The generic binding on real widgets: every control kind, keys through the model first,
// refused keys, option groups, combos, lists with tab stops, menus and focus.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "tests/gui/test_form.h"
#include "ui/qt/cp1252.h"
#include "ui/qt/form_binding.h"
#include "ui/qt/form_windows.h"
#include "ui/qt/list_binding.h"
#include "ui/qt/qt_platform.h"

namespace {

using ui::qt::FormBinding;
using ui::qt::QtPlatform;

class BindingTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ui::SetPlatform(&platform);
    platform.SetQuitOnMainUnload(false);
    platform.Show(form);
    QWidget* window = platform.Main();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    QApplication::processEvents();
  }
  void TearDown() override {
    platform.CloseMain();
    ui::SetPlatform(nullptr);
  }
  FormBinding& binding() const { return platform.Main()->binding(); }
  // Check boxes and option buttons take a click on their mark, not beside their text.
  void ClickMark(const ui::Control& c) const {
    QWidget* w = binding().WidgetOf(c);
    QTest::mouseClick(w, Qt::LeftButton, {}, QPoint(6, w->height() / 2));
  }
  template <class W>
  W* widget(const ui::Control& c) const {
    auto* w = qobject_cast<W*>(binding().WidgetOf(c));
    EXPECT_NE(w, nullptr) << c.Name();
    return w;
  }

  QtPlatform platform;
  TestForm form;
};

TEST_F(BindingTest, TypingGoesThroughKeyDownAndKeyPressBeforeTheWidget) {
  auto* edit = widget<QLineEdit>(form.txtName);
  edit->setFocus();
  form.events.clear();
  QTest::keyClicks(edit, "ab");
  EXPECT_EQ(form.txtName.Text(), "ab");
  EXPECT_EQ(edit->text(), "ab");
  const std::vector<std::string> expected = {"txtName_KeyDown 65",  "txtName_KeyPress 97",
                                             "txtName_Change",      "txtName_KeyDown 66",
                                             "txtName_KeyPress 98", "txtName_Change"};
  EXPECT_EQ(form.events, expected);
}

TEST_F(BindingTest, RefusedKeyBeepsAndLeavesTheWidgetUnchanged) {
  auto* edit = widget<QLineEdit>(form.txtName);
  edit->setFocus();
  QTest::keyClicks(edit, "a");
  const int beeps = platform.BeepCount();
  QTest::keyClick(edit, Qt::Key_7);
  EXPECT_EQ(platform.BeepCount(), beeps + 1);
  EXPECT_EQ(form.txtName.Text(), "a");
  EXPECT_EQ(edit->text(), "a");
  EXPECT_EQ(edit->cursorPosition(), 1);
  EXPECT_EQ(form.Count("txtName_Change"), 1);
}

TEST_F(BindingTest, MaximumLengthAndCharactersOfTheCodePage) {
  auto* edit = widget<QLineEdit>(form.txtName);
  edit->setFocus();
  for (QChar c : QString::fromUtf8("Æble€xyz")) {
    // Characters outside ASCII come as text with no key of their own.
    QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(c));
    QApplication::sendEvent(edit, &press);
  }
  // Six characters at most; Æ and € arrive as their Windows-1252 codes.
  EXPECT_EQ(form.txtName.Text(), std::string("\xC6"
                                             "ble\x80x"));
  EXPECT_EQ(edit->text(), QString::fromUtf8("Æble€x"));
  EXPECT_EQ(form.Count("txtName_KeyPress 198"), 1);
  EXPECT_EQ(form.Count("txtName_KeyPress 128"), 1);
}

TEST_F(BindingTest, PasteTypesOneCharacterAtATime) {
  auto* edit = widget<QLineEdit>(form.txtName);
  edit->setFocus();
  QApplication::clipboard()->setText(QStringLiteral("a1b\n2c"));
  const int beeps = platform.BeepCount();
  QTest::keySequence(edit, QKeySequence::Paste);
  EXPECT_EQ(form.txtName.Text(), "abc");
  EXPECT_EQ(edit->text(), "abc");
  EXPECT_EQ(platform.BeepCount(), beeps + 2);  // the two digits
  EXPECT_EQ(form.Count("txtName_Change"), 3);
}

TEST_F(BindingTest, EditingKeysKeepModelAndWidgetTogether) {
  auto* edit = widget<QLineEdit>(form.txtName);
  edit->setFocus();
  QTest::keyClicks(edit, "abcd");
  QTest::keyClick(edit, Qt::Key_Home);
  EXPECT_EQ(form.txtName.SelStart(), 0);
  QTest::keyClick(edit, Qt::Key_Delete);
  EXPECT_EQ(form.txtName.Text(), "bcd");
  QTest::keyClick(edit, Qt::Key_End);
  QTest::keyClick(edit, Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(form.txtName.SelStart(), 2);
  EXPECT_EQ(form.txtName.SelLength(), 1);
  QTest::keyClick(edit, Qt::Key_Backspace);
  EXPECT_EQ(form.txtName.Text(), "bc");
  EXPECT_EQ(edit->text(), "bc");
  // Undo would write the widget behind the model's back: it does nothing.
  QTest::keySequence(edit, QKeySequence::Undo);
  EXPECT_EQ(edit->text(), "bc");
}

TEST_F(BindingTest, ModelChangesShowAtOnce) {
  auto* edit = widget<QLineEdit>(form.txtName);
  form.txtName.SetText("Count");
  EXPECT_EQ(edit->text(), "Count");
  form.txtName.SetEnabled(false);
  EXPECT_FALSE(edit->isEnabled());
  form.chkMark.SetVisible(false);
  EXPECT_FALSE(widget<QCheckBox>(form.chkMark)->isVisible());
  form.cmdOk.SetCaption("&Done");
  EXPECT_EQ(widget<QPushButton>(form.cmdOk)->text(), "&Done");
  form.SetCaption("Other");
  EXPECT_EQ(platform.Main()->windowTitle(), "Other");
}

TEST_F(BindingTest, EnterAndEscapeReachTheDefaultAndCancelButtons) {
  auto* edit = widget<QLineEdit>(form.txtName);
  edit->setFocus();
  QTest::keyClick(edit, Qt::Key_Return);
  EXPECT_EQ(form.Count("cmdOk_Click"), 1);
  QTest::keyClick(edit, Qt::Key_Escape);
  EXPECT_EQ(form.Count("cmdCancel_Click"), 1);
  // A disabled default button takes no Enter.
  form.cmdOk.SetEnabled(false);
  QTest::keyClick(edit, Qt::Key_Return);
  EXPECT_EQ(form.Count("cmdOk_Click"), 1);
  QTest::mouseClick(widget<QPushButton>(form.cmdCancel), Qt::LeftButton);
  EXPECT_EQ(form.Count("cmdCancel_Click"), 2);
}

TEST_F(BindingTest, OptionButtonsGroupByTheirFrame) {
  auto* kind0 = widget<QRadioButton>(form.optKind[0]);
  auto* kind1 = widget<QRadioButton>(form.optKind[1]);
  auto* loose0 = widget<QRadioButton>(form.optLoose[0]);
  EXPECT_EQ(kind0->parentWidget(), binding().WidgetOf(form.fraKind));
  EXPECT_NE(qobject_cast<QGroupBox*>(binding().WidgetOf(form.fraKind)), nullptr);
  form.optLoose[0].SetValue(true);
  ClickMark(form.optKind[0]);
  EXPECT_TRUE(form.optKind[0].Value());
  ClickMark(form.optKind[1]);
  EXPECT_FALSE(form.optKind[0].Value());
  EXPECT_TRUE(form.optKind[1].Value());
  EXPECT_FALSE(kind0->isChecked());
  EXPECT_TRUE(kind1->isChecked());
  // The options outside the frame are a group of their own.
  EXPECT_TRUE(form.optLoose[0].Value());
  EXPECT_TRUE(loose0->isChecked());
  EXPECT_EQ(form.Count("optKind_Click 0"), 1);
  EXPECT_EQ(form.Count("optKind_Click 1"), 1);
}

TEST_F(BindingTest, CheckBoxFollowsTheModel) {
  auto* check = widget<QCheckBox>(form.chkMark);
  ClickMark(form.chkMark);
  EXPECT_EQ(form.chkMark.Value(), 1);
  EXPECT_TRUE(check->isChecked());
  form.chkMark.SetValue(0);
  EXPECT_FALSE(check->isChecked());
  EXPECT_EQ(form.Count("chkMark_Click"), 2);
  check->setFocus();
  QTest::keyClick(check, Qt::Key_Space);
  EXPECT_EQ(form.chkMark.Value(), 1);
  EXPECT_TRUE(check->isChecked());
}

TEST_F(BindingTest, EditableComboKeepsSortedItemsAndTypedText) {
  auto* combo = widget<QComboBox>(form.cboVar);
  ASSERT_TRUE(combo->isEditable());
  form.cboVar.AddItem("Total");
  form.cboVar.AddItem("count");
  form.cboVar.AddItem("Amount");
  ASSERT_EQ(combo->count(), 3);
  EXPECT_EQ(combo->itemText(0), "Amount");
  EXPECT_EQ(combo->itemText(1), "count");
  combo->setFocus();
  QTest::keyClicks(combo, "count");
  EXPECT_EQ(form.cboVar.Text(), "count");
  EXPECT_EQ(form.cboVar.ListIndex(), 1);  // the typed text names an item
  QTest::keyClick(combo, Qt::Key_Backspace);
  EXPECT_EQ(form.cboVar.ListIndex(), -1);  // now a typed constant
  EXPECT_EQ(combo->currentText(), "coun");
  form.cboVar.SetListIndex(2);
  EXPECT_EQ(combo->currentIndex(), 2);
  EXPECT_EQ(combo->lineEdit()->text(), "Total");
  form.cboVar.RemoveItem(0);
  EXPECT_EQ(combo->count(), 2);
  EXPECT_EQ(combo->itemText(0), "count");
}

TEST_F(BindingTest, DropDownListPicksByKeysAndByThePopup) {
  auto* combo = widget<QComboBox>(form.cboType);
  EXPECT_FALSE(combo->isEditable());
  for (const char* t : {"Long", "Double", "String"}) form.cboType.AddItem(t);
  form.cboType.SetListIndex(0);
  form.events.clear();
  combo->setFocus();
  QTest::keyClick(combo, Qt::Key_Down);
  EXPECT_EQ(form.cboType.ListIndex(), 1);
  EXPECT_EQ(combo->currentIndex(), 1);
  EXPECT_EQ(form.Count("cboType_Click"), 1);
  // Typing does not pick an item behind the model's back.
  QTest::keyClicks(combo, "S");
  EXPECT_EQ(form.cboType.ListIndex(), 1);
  EXPECT_EQ(combo->currentIndex(), 1);
  emit combo->activated(2);
  EXPECT_EQ(form.cboType.Text(), "String");
  EXPECT_EQ(combo->currentIndex(), 2);
}

TEST_F(BindingTest, ListWithTabStopsAndExtendedSelection) {
  auto* view = widget<QListView>(form.lstItems);
  for (int i = 0; i < 20; ++i) form.lstItems.AddItem("000" + std::to_string(i % 10) + "\tL\tGoto");
  ASSERT_EQ(view->model()->rowCount(), 20);
  auto* lb = static_cast<ui::qt::ListBinding*>(binding().BindingOf(form.lstItems));
  const QFontMetrics fm(view->font());
  const std::vector<int> px = ui::qt::TabStopPixels({25, 79}, fm);
  const std::vector<int> starts = lb->delegate()->PieceStarts("0001\tL\tGoto", fm);
  ASSERT_EQ(starts.size(), 3u);
  EXPECT_EQ(starts[1], px[0]);
  EXPECT_EQ(starts[2], px[1]);
  EXPECT_GT(px[1], px[0]);

  form.events.clear();
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                    view->visualRect(view->model()->index(2, 0)).center());
  EXPECT_EQ(form.lstItems.ListIndex(), 2);
  QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::ControlModifier,
                    view->visualRect(view->model()->index(4, 0)).center());
  EXPECT_EQ(form.lstItems.SelectedIndexes(), (std::vector<int>{2, 4}));
  QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::ShiftModifier,
                    view->visualRect(view->model()->index(6, 0)).center());
  EXPECT_EQ(form.lstItems.SelectedIndexes(), (std::vector<int>{4, 5, 6}));
  EXPECT_EQ(view->selectionModel()->selectedIndexes().size(), 3);
  EXPECT_EQ(form.Count("lstItems_Click"), 3);

  // Keys: KeyDown first; a refused Delete changes nothing; Down moves the choice.
  view->setFocus();
  QTest::keyClick(view, Qt::Key_Delete);
  EXPECT_EQ(form.Count("lstItems_KeyDown 46"), 1);
  EXPECT_EQ(form.lstItems.ListCount(), 20);
  QTest::keyClick(view, Qt::Key_Down);
  EXPECT_EQ(form.lstItems.ListIndex(), 7);
  EXPECT_EQ(form.lstItems.SelectedIndexes(), (std::vector<int>{7}));
  EXPECT_TRUE(view->selectionModel()->isSelected(view->model()->index(7, 0)));
  EXPECT_FALSE(view->selectionModel()->isSelected(view->model()->index(4, 0)));

  // Items removed, changed and replaced by the model show at once.
  form.lstItems.RemoveItem(0);
  EXPECT_EQ(view->model()->rowCount(), 19);
  form.lstItems.SetList(0, "first");
  EXPECT_EQ(view->model()->index(0, 0).data().toString(), "first");
  form.lstItems.ReplaceAll({"a", "b"});
  EXPECT_EQ(view->model()->rowCount(), 2);
  EXPECT_TRUE(view->selectionModel()->selectedIndexes().isEmpty());
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {},
                     view->visualRect(view->model()->index(1, 0)).center());
  EXPECT_EQ(form.Count("lstItems_DblClick"), 1);
}

TEST_F(BindingTest, MenusFollowEnablingAndCheckMarks) {
  QAction* item0 = binding().ActionOf(form.mnuFileItem[0]);
  QAction* item2 = binding().ActionOf(form.mnuFileItem[2]);
  QAction* run = binding().ActionOf(form.mnuRun);
  ASSERT_TRUE(item0 && item2 && run);
  EXPECT_EQ(item0->text(), "&New");
  EXPECT_EQ(item0->shortcut(), QKeySequence(QStringLiteral("Ctrl+T")));
  EXPECT_EQ(item2->shortcut(), QKeySequence(Qt::Key_F2));
  EXPECT_EQ(platform.Main()->menuBar()->actions().size(), 2);

  QWidget* focus = widget<QLineEdit>(form.txtName);
  focus->setFocus();
  QTest::keyClick(focus, Qt::Key_T, Qt::ControlModifier);
  EXPECT_EQ(form.Count("mnuFileItem_Click 0"), 1);
  EXPECT_EQ(form.txtName.Text(), "");  // the shortcut typed nothing
  QTest::keyClick(focus, Qt::Key_F2);
  EXPECT_EQ(form.Count("mnuFileItem_Click 2"), 1);

  form.mnuFileItem[0].SetEnabled(false);
  EXPECT_FALSE(item0->isEnabled());
  QTest::keyClick(focus, Qt::Key_T, Qt::ControlModifier);
  EXPECT_EQ(form.Count("mnuFileItem_Click 0"), 1);
  // A disabled menu disables its items for a person.
  form.mnuFile.SetEnabled(false);
  QTest::keyClick(focus, Qt::Key_F2);
  EXPECT_EQ(form.Count("mnuFileItem_Click 2"), 1);

  form.mnuFileItem[1].SetChecked(true);
  EXPECT_TRUE(binding().ActionOf(form.mnuFileItem[1])->isChecked());
  // Triggering does not toggle the mark: only the model's handler does.
  form.mnuFile.SetEnabled(true);
  binding().ActionOf(form.mnuFileItem[1])->trigger();
  EXPECT_TRUE(binding().ActionOf(form.mnuFileItem[1])->isChecked());
  EXPECT_EQ(form.Count("mnuFileItem_Click 1"), 1);
  run->trigger();
  EXPECT_EQ(form.Count("mnuRun_Click"), 1);

  form.mnuFileItem[2].SetVisible(false);
  EXPECT_FALSE(item2->isVisible());
}

TEST_F(BindingTest, MenuItemsAddedLaterAppearInTheirMenu) {
  ui::Menu recent(form, "mnuFileArray", "&1 /tmp/a.kqx", 1);
  recent.OnClick = [this] { form.Log("mnuFileArray_Click 1"); };
  form.mnuFile.Append(recent);
  QMenu* menu = binding().ActionOf(form.mnuFile)->menu();
  ASSERT_NE(menu, nullptr);
  ASSERT_EQ(menu->actions().size(), 4);
  EXPECT_EQ(menu->actions().back()->text(), "&1 /tmp/a.kqx");
  menu->actions().back()->trigger();
  EXPECT_EQ(form.Count("mnuFileArray_Click 1"), 1);
  form.mnuFile.Remove(recent);
  EXPECT_EQ(menu->actions().size(), 3);
}

TEST_F(BindingTest, FocusGoesBothWays) {
  form.cboVar.SetFocus();
  EXPECT_EQ(QApplication::focusWidget(), binding().WidgetOf(form.cboVar));
  form.events.clear();
  form.txtName.SetFocus();
  EXPECT_EQ(QApplication::focusWidget(), binding().WidgetOf(form.txtName));
  EXPECT_EQ(form.Count("txtName_GotFocus"), 1);  // once, not again for the widget's focus
  // Tab moves the focus in the widgets; the model follows.
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(form.ActiveControl(), &form.cboVar);
  EXPECT_EQ(form.Count("cboVar_GotFocus"), 1);
  // A label's access key leads to its control.
  EXPECT_EQ(widget<QLabel>(form.lblName)->buddy(), binding().WidgetOf(form.txtName));
}

}  // namespace

namespace {

TEST_F(BindingTest, ListWithColumnsRunsTopToBottomAndMovesByAColumn) {
  auto* view = widget<QListView>(form.lstItems);
  form.lstItems.SetColumns(2);
  for (int i = 0; i < 40; ++i) form.lstItems.AddItem("item " + std::to_string(i));
  view->resize(300, 100);
  QApplication::processEvents();
  const QRect first = view->visualRect(view->model()->index(0, 0));
  const QRect second = view->visualRect(view->model()->index(1, 0));
  EXPECT_EQ(first.left(), second.left());  // down the first column
  EXPECT_GT(second.top(), first.top());
  const int rows = view->viewport()->height() / view->gridSize().height();
  ASSERT_GT(rows, 0);
  EXPECT_GT(view->visualRect(view->model()->index(rows, 0)).left(), first.left());
  form.lstItems.UserSelect(0);
  view->setFocus();
  QTest::keyClick(view, Qt::Key_Right);
  EXPECT_EQ(form.lstItems.ListIndex(), rows);
  QTest::keyClick(view, Qt::Key_Left);
  EXPECT_EQ(form.lstItems.ListIndex(), 0);
}

}  // namespace
