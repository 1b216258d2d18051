// QtPlatform: text conversion, message boxes, file filters, settings, printing, help, and
// modal forms driven inside their own loop.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>

#include "tests/gui/test_form.h"
#include "ui/qt/cp1252.h"
#include "ui/qt/form_binding.h"
#include "ui/qt/help_window.h"
#include "ui/qt/keys.h"
#include "ui/qt/qt_platform.h"

namespace {

using ui::qt::QtPlatform;

class PlatformTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ui::SetPlatform(&platform);
    platform.SetQuitOnMainUnload(false);
  }
  void TearDown() override { ui::SetPlatform(nullptr); }
  QtPlatform platform;
};

TEST(Cp1252, EveryByteRoundTripsWithOneCharacterEach) {
  std::string all;
  for (int b = 1; b < 256; ++b) all.push_back(static_cast<char>(b));
  const QString q = ui::qt::ToQt(all);
  ASSERT_EQ(q.size(), 255);
  EXPECT_EQ(ui::qt::FromQt(q), all);
  EXPECT_EQ(q.at(0x80 - 1), QChar(0x20AC));  // the euro sign
  EXPECT_EQ(ui::qt::CodeOf(QChar(0x0160)), 0x8A);
  EXPECT_EQ(ui::qt::CodeOf(QChar(0x4E2D)), -1);  // not in the code page
  EXPECT_EQ(ui::qt::FromQt(QString::fromUtf8("a中b")), "a?b");
}

TEST(Keys, KeyCodesOfTheOriginalToolkit) {
  QKeyEvent del(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
  QKeyEvent f2(QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier);
  QKeyEvent a(QEvent::KeyPress, Qt::Key_A, Qt::ShiftModifier, QStringLiteral("A"));
  QKeyEvent ctrlA(QEvent::KeyPress, Qt::Key_A, Qt::ControlModifier, QStringLiteral("\x01"));
  QKeyEvent ae(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString::fromUtf8("æ"));
  EXPECT_EQ(ui::qt::VirtualKeyOf(del), 46);
  EXPECT_EQ(ui::qt::KeyAsciiOf(del), -1);
  EXPECT_EQ(ui::qt::VirtualKeyOf(f2), 113);
  EXPECT_EQ(ui::qt::VirtualKeyOf(a), 65);
  EXPECT_EQ(ui::qt::KeyAsciiOf(a), 65);
  EXPECT_EQ(ui::qt::ShiftOf(a.modifiers()), 1);
  EXPECT_EQ(ui::qt::KeyAsciiOf(ctrlA), -1);
  EXPECT_EQ(ui::qt::KeyAsciiOf(ae), 230);
}

TEST(FileFilter, SystemFilterBecomesTheToolkits) {
  QString selected;
  EXPECT_EQ(ui::qt::QtFilter("V/R Files (*.kqx)|*.kqx", 1, &selected), "V/R Files (*.kqx)");
  EXPECT_EQ(selected, "V/R Files (*.kqx)");
  EXPECT_EQ(ui::qt::QtFilter("Wave|*.wav|All Files|*.*", 2, &selected),
            "Wave (*.wav);;All Files (*.*)");
  EXPECT_EQ(selected, "All Files (*.*)");
  EXPECT_EQ(ui::qt::QtFilter("Speech|*.vox;*.pcm", 1, nullptr), "Speech (*.vox *.pcm)");
}

TEST_F(PlatformTest, MessageBoxButtonsIconsAndAnswers) {
  // A real box, answered by a key inside its own loop.
  QTimer::singleShot(0, [] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->windowTitle(), "Confirm Exit");
    EXPECT_EQ(box->icon(), QMessageBox::Warning);
    EXPECT_EQ(box->text(), "Save changed file: \n/tmp/x.kqx ?");
    EXPECT_EQ(box->buttons().size(), 3);
    EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::No));
    box->button(QMessageBox::Cancel)->click();
  });
  EXPECT_EQ(
      platform.MsgBox("Save changed file: \r/tmp/x.kqx ?",
                      ui::vbYesNoCancel | ui::vbExclamation | ui::vbDefaultButton2, "Confirm Exit"),
      ui::vbCancel);
  QTimer::singleShot(0, [] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->icon(), QMessageBox::Critical);
    box->button(QMessageBox::Ok)->click();
  });
  EXPECT_EQ(platform.MsgBox("x", ui::vbCritical, "Program Error"), ui::vbOK);
  platform.QueueAnswer(ui::vbYes);
  EXPECT_EQ(platform.MsgBox("q", ui::vbYesNo, "t"), ui::vbYes);
  ASSERT_EQ(platform.Boxes().size(), 3u);
  EXPECT_EQ(platform.Boxes()[0].answer, ui::vbCancel);
  EXPECT_EQ(platform.Boxes()[2].title, "t");
}

TEST_F(PlatformTest, FileDialogShowsTheSystemsFilterAndFolder) {
  QTemporaryDir dir;
  const QString wanted = dir.path() + "/new.kqx";
  ui::FileDialogRequest request;
  request.kind = ui::FileDialogRequest::Kind::Save;
  request.initDir = dir.path().toStdString();
  request.filter = "V/R Files (*.kqx)|*.kqx";
  QTimer::singleShot(0, [&] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->nameFilters(), QStringList{"V/R Files (*.kqx)"});
    EXPECT_EQ(dialog->directory().absolutePath(), QDir(dir.path()).absolutePath());
    EXPECT_EQ(dialog->acceptMode(), QFileDialog::AcceptSave);
    dialog->selectFile(wanted);
    static_cast<QDialog*>(dialog)->accept();
  });
  const auto chosen = platform.FileDialog(request);
  ASSERT_TRUE(chosen.has_value());
  EXPECT_EQ(*chosen, wanted.toStdString());
  request.kind = ui::FileDialogRequest::Kind::Open;
  QTimer::singleShot(0, [] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->fileMode(), QFileDialog::ExistingFile);
    dialog->reject();
  });
  EXPECT_FALSE(platform.FileDialog(request).has_value());  // cancel gives nothing
}

TEST_F(PlatformTest, SettingsRoundTripUnderTheApplicationAndSection) {
  EXPECT_EQ(platform.GetSetting("KQEdit", "Settings", "RecentFileName1", "none"), "none");
  platform.SaveSetting("KQEdit", "Settings", "RecentFileName1",
                       "/home/u/\xC6"
                       "ble.kqx");
  EXPECT_EQ(platform.GetSetting("KQEdit", "Settings", "RecentFileName1", ""),
            "/home/u/\xC6"
            "ble.kqx");
  QSettings s(QStringLiteral("KQEdit"), QStringLiteral("KQEdit"));
  EXPECT_EQ(s.value(QStringLiteral("Settings/RecentFileName1")).toString(),
            QString::fromUtf8("/home/u/Æble.kqx"));
}

TEST_F(PlatformTest, PrintingRowsAndPagesIntoAFile) {
  QTemporaryDir dir;
  const std::string pdf = (dir.path() + "/out.pdf").toStdString();
  platform.SetPrintFile(pdf);
  platform.QueuePrint(ui::PrintDialogRequest{2, 3, 2, 0});
  ui::PrintDialogRequest r;
  ASSERT_TRUE(platform.PrintDialog(r));
  EXPECT_EQ(r.fromPage, 2);
  EXPECT_EQ(r.toPage, 3);
  EXPECT_EQ(r.copies, 2);
  for (int i = 0; i < 70; ++i) platform.PrintRow("    row " + std::to_string(i));
  platform.NewPage();
  platform.PrintRow("    last");
  platform.EndDoc();
  QFile f(QString::fromStdString(pdf));
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  const QByteArray bytes = f.readAll();
  EXPECT_TRUE(bytes.startsWith("%PDF"));
  EXPECT_GE(
      bytes.count("/Type /Page\n") + bytes.count("/Type /Page\r") + bytes.count("/Type /Page "), 2);
  platform.QueuePrint(std::nullopt);
  EXPECT_FALSE(platform.PrintDialog(r));
}

// Every copy ends its own document; each goes to the file the dialog chose, after the
// copies before it, and the next dialog starts a file of its own.
TEST_F(PlatformTest, EveryCopyGoesToTheChosenFile) {
  QTemporaryDir dir;
  auto pages = [](const QString& path) {
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) return -1;
    const QByteArray bytes = f.readAll();
    return static_cast<int>(bytes.count("/Type /Page\n") + bytes.count("/Type /Page\r") +
                            bytes.count("/Type /Page "));
  };
  const QString first = dir.path() + "/copies.pdf";
  platform.SetPrintFile(first.toStdString());
  platform.QueuePrint(ui::PrintDialogRequest{0, 0, 3, 0});
  ui::PrintDialogRequest r;
  ASSERT_TRUE(platform.PrintDialog(r));
  for (int copy = 0; copy < r.copies; ++copy) {
    platform.PrintRow("    page one");
    platform.NewPage();
    platform.PrintRow("    page two");
    platform.EndDoc();
    EXPECT_EQ(pages(first), 2 * (copy + 1));
  }
  const QString second = dir.path() + "/again.pdf";
  platform.SetPrintFile(second.toStdString());
  platform.QueuePrint(ui::PrintDialogRequest{0, 0, 1, 0});
  ASSERT_TRUE(platform.PrintDialog(r));
  platform.PrintRow("    alone");
  platform.EndDoc();
  EXPECT_EQ(pages(second), 1);
  EXPECT_EQ(pages(first), 6);
}

TEST_F(PlatformTest, PrintDialogOffersThePagesAndReturnsTheChoice) {
  QTimer::singleShot(0, [] {
    auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->minPage(), 1);
    EXPECT_EQ(dialog->maxPage(), 100);
    EXPECT_TRUE(dialog->testOption(QAbstractPrintDialog::PrintPageRange));
    EXPECT_FALSE(dialog->testOption(QAbstractPrintDialog::PrintSelection));
    static_cast<QDialog*>(dialog)->accept();
  });
  ui::PrintDialogRequest r;
  r.copies = 1;
  ASSERT_TRUE(platform.PrintDialog(r));
  EXPECT_EQ(r.fromPage, 0);  // all pages
  EXPECT_EQ(r.toPage, 0);
  EXPECT_EQ(r.copies, 1);
  platform.EndDoc();
  QTimer::singleShot(0, [] {
    auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    dialog->reject();
  });
  EXPECT_FALSE(platform.PrintDialog(r));
}

TEST_F(PlatformTest, ScreenInTwipsAndFolders) {
  const QScreen* screen = QGuiApplication::primaryScreen();
  EXPECT_EQ(platform.ScreenWidth(), screen->geometry().width() * 15);
  EXPECT_EQ(platform.ScreenHeight(), screen->geometry().height() * 15);
  EXPECT_TRUE(QDir(QString::fromStdString(platform.TempDirectory())).exists());
  EXPECT_TRUE(QDir(QString::fromStdString(platform.UserDirectory())).exists());
  EXPECT_NE(platform.DataDirectory().find("share/kqedit"), std::string::npos);
  platform.SetMousePointer(ui::vbHourglass);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  platform.SetMousePointer(ui::vbDefault);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(PlatformTest, HelpShowsContentsIndexAndSearch) {
  platform.SetDataDirectory(QFileInfo(QStringLiteral(KQ_MANUAL_DIR)).path().toStdString());
  platform.Help(ui::HelpCommand::Contents);
  ui::qt::HelpWindow* help = platform.HelpWindowShown();
  ASSERT_NE(help, nullptr);
  EXPECT_TRUE(help->isVisible());
  EXPECT_TRUE(help->browser()->source().toString().endsWith("index.html"));
  EXPECT_FALSE(help->browser()->toPlainText().isEmpty());
  platform.Help(ui::HelpCommand::Index);
  EXPECT_GT(help->index()->count(), 5);
  platform.Help(ui::HelpCommand::Search);
  const QStringList found = help->Search(QStringLiteral("compile label"));
  EXPECT_TRUE(found.contains("compiling.html"));
  EXPECT_FALSE(found.contains("saving.html") && found.size() == 1);
  EXPECT_TRUE(help->Search(QStringLiteral("zzzqqq")).isEmpty());
  help->query()->setText(QStringLiteral("variable"));
  QTest::keyClick(help->query(), Qt::Key_Return);
  ASSERT_GT(help->results()->count(), 0);
  // A found topic and an index entry open their pages.
  QListWidgetItem* topic = help->results()->item(help->results()->count() - 1);
  emit help->results()->itemActivated(topic);
  EXPECT_EQ(help->browser()->source().fileName(), topic->data(Qt::UserRole).toString());
  EXPECT_TRUE(help->browser()->toPlainText().contains("variable", Qt::CaseInsensitive));
  QListWidgetItem* keyword = help->index()->item(help->index()->count() / 2);
  emit help->index()->itemClicked(keyword);
  EXPECT_EQ(help->browser()->source().fileName(),
            keyword->data(Qt::UserRole).toString().section(u'#', 0, 0));
  platform.Help(ui::HelpCommand::CloseAll);
  EXPECT_FALSE(help->isVisible());
}

// A dialog whose QueryUnload may refuse.
class GuardedForm : public TestForm {
 public:
  bool refuse = true;
  int queries = 0;

 protected:
  void Form_Load() override { txtName.SetFocus(); }
  void Form_QueryUnload(bool& cancel, ui::UnloadMode) override {
    ++queries;
    cancel = refuse;
  }
};

TEST_F(PlatformTest, ModalFormIsDrivenThroughItsWidgetsAndClosesThroughTheModel) {
  GuardedForm form;
  form.cmdOk.OnClick = [&form] {
    form.refuse = false;
    form.Unload();
  };
  bool acted = false;
  platform.QueueModal([&](QDialog& dialog, ui::qt::FormBinding& b) {
    acted = true;
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    EXPECT_EQ(dialog.windowTitle(), "Binding Test");
    EXPECT_EQ(QApplication::focusWidget(), b.WidgetOf(form.txtName));
    QTest::keyClicks(b.WidgetOf(form.txtName), "Top");
    dialog.close();  // the close button asks the form, which refuses
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(form.queries, 1);
    QTest::keyClick(b.WidgetOf(form.txtName), Qt::Key_Return);  // the default button
  });
  form.ShowModal();
  EXPECT_TRUE(acted);
  EXPECT_FALSE(form.Loaded());
  EXPECT_EQ(form.txtName.Text(), "Top");
  EXPECT_EQ(platform.BindingOf(form), nullptr);
}

}  // namespace
