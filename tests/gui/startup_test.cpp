// The desktop program's start with a file named on its command line, files dropped on the
// window, and the window system's clipboard.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QSettings>
#include <QTemporaryDir>
#include <QUrl>
#include <memory>
#include <string>

#include "app/startup.h"
#include "document/state.h"
#include "editor/frm_edit.h"
#include "editor/line_clipboard.h"
#include "ui/qt/form_windows.h"
#include "ui/qt/qt_clipboard.h"
#include "ui/qt/qt_platform.h"

namespace {

const QString kTitle = QStringLiteral("Zelvox Voice Response Editor: ");

class StartupTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ui::SetPlatform(&platform);
    platform.SetQuitOnMainUnload(false);
    platform.SetDataDirectory(home.path().toStdString());
    QSettings(QStringLiteral("KQEdit"), QStringLiteral("KQEdit")).clear();
    form = std::make_unique<kq::FrmEdit>();
  }
  void TearDown() override {
    platform.CloseMain();
    form.reset();
    ui::SetPlatform(nullptr);
  }

  // A real application file of the scripted stories, copied into the test's folder.
  QString Application(const QString& name) {
    const QString path = home.filePath(name);
    QFile::remove(path);
    EXPECT_TRUE(QFile::copy(QStringLiteral(KQ_SCRIPTS_DIR "/goto_paths.kqx"), path));
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    return path;
  }

  // Drags the files over the window and drops them; whether the window took the drag.
  bool Drop(const QStringList& paths) {
    QMimeData mime;
    QList<QUrl> urls;
    for (const QString& p : paths) urls.push_back(QUrl::fromLocalFile(p));
    mime.setUrls(urls);
    const QPoint at = window()->rect().center();
    QDragEnterEvent enter(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window(), &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(QPointF(at), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window(), &drop);
    return true;
  }

  ui::qt::MainWindow* window() const { return platform.Main(); }

  QTemporaryDir home;
  ui::qt::QtPlatform platform;
  std::unique_ptr<kq::FrmEdit> form;
};

TEST_F(StartupTest, AFileNamedOnTheCommandLineOpensWithItsTitle) {
  const QString path = Application(QStringLiteral("paths.kqx"));
  // A relative name is taken from the current folder.
  const QString before = QDir::currentPath();
  QDir::setCurrent(home.path());
  kq::desktop::StartEditor(platform, *form,
                           {QStringLiteral("KQEdit"), QStringLiteral("paths.kqx")});
  QDir::setCurrent(before);
  ASSERT_NE(window(), nullptr);
  EXPECT_EQ(window()->windowTitle(), kTitle + "paths.kqx");
  EXPECT_TRUE(platform.Boxes().empty());
  EXPECT_EQ(QString::fromStdString(kq::ApplFileName), path);
  EXPECT_GT(form->lstEdit.ListCount(), 0);
  EXPECT_TRUE(form->mnuEditItem[2].Enabled());
}

TEST_F(StartupTest, AFileThatCannotBeOpenedGivesTheBoxAndTheEditorStays) {
  const QString broken = home.filePath(QStringLiteral("broken.kqx"));
  QFile file(broken);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(QByteArray("3.10\0\0\0", 7));  // the header ends at once
  file.close();
  platform.QueueAnswer(ui::vbOK);
  kq::desktop::StartEditor(platform, *form, {QStringLiteral("KQEdit"), broken});
  ASSERT_EQ(platform.Boxes().size(), 1u);
  EXPECT_EQ(platform.Boxes()[0].title, "File Error");
  EXPECT_EQ(platform.Boxes()[0].text, "File broken.kqx is damaged.");
  ASSERT_NE(window(), nullptr);
  EXPECT_TRUE(window()->isVisible());
  EXPECT_TRUE(form->Loaded());
  EXPECT_EQ(window()->windowTitle(), kTitle + "Untitled");
  EXPECT_EQ(form->lstEdit.ListCount(), 0);
  EXPECT_TRUE(form->mnuFileItem[1].Enabled());  // File > Open still works
}

TEST_F(StartupTest, ADroppedApplicationFileOpensAfterTheClosePrompts) {
  kq::desktop::StartEditor(platform, *form, {QStringLiteral("KQEdit")});
  const QString first = Application(QStringLiteral("first.kqx"));
  const QString second = Application(QStringLiteral("second.KQX"));
  EXPECT_FALSE(Drop({home.filePath(QStringLiteral("notes.txt"))}));
  EXPECT_EQ(window()->windowTitle(), kTitle + "Untitled");

  ASSERT_TRUE(Drop({home.filePath(QStringLiteral("notes.txt")), first}));
  EXPECT_EQ(window()->windowTitle(), kTitle + "first.kqx");
  EXPECT_TRUE(platform.Boxes().empty());

  // An open, uncompiled document: the close prompts come first, and Cancel keeps it.
  platform.QueueAnswer(ui::vbCancel);
  ASSERT_TRUE(Drop({second}));
  ASSERT_EQ(platform.Boxes().size(), 1u);
  EXPECT_EQ(platform.Boxes()[0].title, "Confirm Close");
  EXPECT_EQ(window()->windowTitle(), kTitle + "first.kqx");

  platform.QueueAnswer(ui::vbNo);  // no compile
  ASSERT_TRUE(Drop({second}));
  EXPECT_EQ(window()->windowTitle(), kTitle + "second.KQX");
}

TEST(QtClipboardTest, EveryFormatGoesThroughTheSystemClipboard) {
  ui::qt::QtClipboard clipboard;
  const std::string bytes("KQ\0\xff\x80 lines", 10);
  clipboard.Set({{kq::kLinesMime, bytes}, {ui::kPlainTextMime, "0000\t\tRemark \xc6" "ble\n"}});
  const ui::ClipboardData got = clipboard.Get();
  ASSERT_TRUE(got.count(kq::kLinesMime));
  EXPECT_EQ(got.at(kq::kLinesMime), bytes);
  EXPECT_EQ(got.at(ui::kPlainTextMime), "0000\t\tRemark \xc6" "ble\n");
  EXPECT_EQ(QApplication::clipboard()->text(), QString::fromUtf8("0000\t\tRemark Æble\n"));
}

}  // namespace
