// The drive, directory and file lists on real widgets, over a real folder.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QApplication>
#include <QComboBox>
#include <QListView>
#include <QListWidget>
#include <QTest>
#include <filesystem>
#include <fstream>

#include "dialogs/frm_def_path.h"
#include "document/state.h"
#include "document/text.h"
#include "tests/gui/editor_fixture.h"
#include "ui/model/file_controls.h"
#include "ui/model/form.h"
#include "ui/qt/cp1252.h"
#include "ui/qt/form_binding.h"
#include "ui/qt/form_windows.h"
#include "ui/qt/qt_platform.h"

namespace {

namespace fs = std::filesystem;

class DiskForm : public ui::Form {
 public:
  DiskForm() : Form("frmDisk", "Disk lists") {
    Place(drvPath, 0, 0);
    Place(dirPath, 1, 0);
    Place(filPath, 2, 0);
    dirPath.OnChange = [this] { filPath.SetPath(dirPath.Path()); };
    drvPath.OnChange = [this] { ++driveChanges; };
  }
  ui::DriveListBox drvPath{*this, "drvPath"};
  ui::DirListBox dirPath{*this, "dirPath"};
  ui::FileListBox filPath{*this, "filPath"};
  int driveChanges = 0;
};

class DiskListsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    root = fs::temp_directory_path() / ("kq_disk_lists_" + std::to_string(getpid()));
    fs::remove_all(root);
    fs::create_directories(root / "inner");
    std::ofstream(root / "inner" / "b.vox") << "x";
    std::ofstream(root / "inner" / "a.vox") << "x";
    ASSERT_EQ(form.dirPath.SetPath(root.string()), 0);
    ui::SetPlatform(&platform);
    platform.SetQuitOnMainUnload(false);
    platform.Show(form);
    QApplication::processEvents();
  }
  void TearDown() override {
    platform.CloseMain();
    ui::SetPlatform(nullptr);
    fs::remove_all(root);
  }
  QWidget* WidgetOf(const ui::Control& c) const { return platform.Main()->binding().WidgetOf(c); }

  fs::path root;
  ui::qt::QtPlatform platform;
  DiskForm form;
};

TEST_F(DiskListsTest, DirectoryListOpensFoldersAndTheFileListFollows) {
  auto* drive = qobject_cast<QComboBox*>(WidgetOf(form.drvPath));
  auto* dirs = qobject_cast<QListWidget*>(WidgetOf(form.dirPath));
  auto* files = qobject_cast<QListView*>(WidgetOf(form.filPath));
  ASSERT_TRUE(drive && dirs && files);
  EXPECT_EQ(drive->count(), 1);
  EXPECT_EQ(drive->currentText(), "/");

  // The ancestors down to the open folder, then the folder inside it.
  const int depth = form.dirPath.Depth();
  ASSERT_EQ(dirs->count(), depth + 1);
  EXPECT_EQ(dirs->item(0)->text(), "/");
  EXPECT_EQ(dirs->item(depth - 1)->text().trimmed(), ui::qt::ToQt(root.filename().string()));
  EXPECT_EQ(dirs->item(depth)->text().trimmed(), "inner");
  EXPECT_EQ(dirs->currentRow(), depth - 1);

  // A click highlights; a double click opens the folder and the file list follows.
  QTest::mouseClick(dirs->viewport(), Qt::LeftButton, {},
                    dirs->visualItemRect(dirs->item(depth)).center());
  EXPECT_EQ(form.dirPath.ListIndex(), 0);
  EXPECT_EQ(form.dirPath.Path(), root.string());
  QTest::mouseDClick(dirs->viewport(), Qt::LeftButton, {},
                     dirs->visualItemRect(dirs->item(depth)).center());
  EXPECT_EQ(form.dirPath.Path(), (root / "inner").string());
  EXPECT_EQ(dirs->count(), depth + 1);  // one level deeper, no folders inside
  EXPECT_EQ(files->model()->rowCount(), 2);
  EXPECT_EQ(files->model()->index(0, 0).data().toString(), "a.vox");

  // Files are picked as in a list box; the model holds the choice.
  QTest::mouseClick(files->viewport(), Qt::LeftButton, {},
                    files->visualRect(files->model()->index(1, 0)).center());
  EXPECT_EQ(form.filPath.FileName(), "b.vox");

  // A folder removed behind the list's back stays closed when chosen.
  fs::create_directories(root / "inner" / "gone");
  ASSERT_EQ(form.dirPath.Refresh(), 0);
  QApplication::processEvents();
  fs::remove_all(root / "inner" / "gone");
  QTest::mouseDClick(dirs->viewport(), Qt::LeftButton, {},
                     dirs->visualItemRect(dirs->item(dirs->count() - 1)).center());
  EXPECT_EQ(form.dirPath.Path(), (root / "inner").string());

  drive->activated(0);
  EXPECT_EQ(form.driveChanges, 1);
}

// The declaration dialog built by the generic binding: a folder opened with a double click
// in the directory list is the folder the new name takes.
TEST_F(EditorWindowTest, DefinePathsTakesTheFolderOpenedInTheDirectoryList) {
  const fs::path cwd = fs::current_path();
  action(form->mnuFileItem[0])->trigger();  // New
  platform.QueueModal([&](QDialog& dialog, ui::qt::FormBinding& b) {
    auto& d = static_cast<kq::frmDefPath&>(b.form());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    EXPECT_EQ(dialog.windowTitle(), "Define Voice Paths");
    auto* dirs = qobject_cast<QListWidget*>(b.WidgetOf(d.dirPath));
    ASSERT_NE(dirs, nullptr);
    ASSERT_GT(dirs->count(), 0);
    EXPECT_NE(qobject_cast<QComboBox*>(b.WidgetOf(d.drvPath)), nullptr);
    EXPECT_NE(qobject_cast<QListView*>(b.WidgetOf(d.filPath)), nullptr);
    const QPoint top = dirs->visualItemRect(dirs->item(0)).center();
    QTest::mouseClick(dirs->viewport(), Qt::LeftButton, {}, top);
    EXPECT_EQ(d.dirPath.ListIndex(), -d.dirPath.Depth());
    QTest::mouseDClick(dirs->viewport(), Qt::LeftButton, {}, top);
    EXPECT_EQ(d.dirPath.Path(), "/");
    auto* name = b.WidgetOf(d.txtName);
    name->setFocus();
    QTest::keyClicks(name, "Root");
    QTest::keyClick(name, Qt::Key_Return);  // Add is the default button
    EXPECT_EQ(d.lstVariable.ListCount(), 1);
    QTest::mouseClick(qobject_cast<QPushButton*>(b.WidgetOf(d.cmdOk)), Qt::LeftButton);
  });
  action(form->mnuDefineItem[4])->trigger();
  EXPECT_EQ(kq::RTrimZ(kq::View(kq::PrgHdr.Path[0][3].PathName)), "Root");
  EXPECT_EQ(kq::RTrimZ(kq::View(kq::PrgHdr.Path[0][3].PathText)), "/");
  fs::current_path(cwd);
}

}  // namespace
