#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "ui/headless/headless_platform.h"
#include "ui/model/file_controls.h"
#include "ui/model/form.h"
#include "ui/platform/disk.h"

namespace {

namespace fs = std::filesystem;

class DiskForm : public ui::Form {
 public:
  DiskForm() : Form("frmDisk", "Disk") {}
  ui::DriveListBox drv{*this, "drvPath"};
  ui::DirListBox dir{*this, "dirPath"};
  ui::FileListBox fil{*this, "filPath"};
};

class FileControlsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ui::SetPlatform(&platform);
    root = fs::temp_directory_path() / ("kq_file_controls_" + std::to_string(getpid()));
    fs::remove_all(root);
    for (const char* d : {"beta", "Alpha", "gamma/inner", ".hidden"}) {
      fs::create_directories(root / d);
    }
    for (const char* name : {"b.WAV", "a.wav", "c.vox", "README", ".secret"}) {
      std::ofstream(root / name) << "x";
    }
    base = root.string();
    f.dir.OnChange = [this] { ++dirChanges; };
    f.drv.OnChange = [this] { ++driveChanges; };
    f.fil.OnPathChange = [this] { ++pathChanges; };
    f.fil.OnPatternChange = [this] { ++patternChanges; };
  }
  void TearDown() override {
    fs::permissions(root / "beta", fs::perms::owner_all, fs::perm_options::add);
    fs::remove_all(root);
    ui::SetPlatform(nullptr);
  }
  static std::vector<std::string> Items(const ui::FileListBox& l) { return l.Items(); }

  ui::HeadlessPlatform platform;
  fs::path root;
  std::string base;
  DiskForm f;
  int dirChanges = 0, driveChanges = 0, pathChanges = 0, patternChanges = 0;
};

// Every folder that gets a file name behind it takes one trailing separator, never two.
TEST(TrailingSeparator, AddedOnceAndOnlyWhenMissing) {
  EXPECT_EQ("/home/a/", ui::WithTrailingSeparator("/home/a"));
  EXPECT_EQ("/home/a/", ui::WithTrailingSeparator("/home/a/"));
  EXPECT_EQ("/", ui::WithTrailingSeparator("/"));
  EXPECT_EQ("/", ui::WithTrailingSeparator(""));
  EXPECT_EQ("rel/", ui::WithTrailingSeparator("rel"));
}

TEST_F(FileControlsTest, DirectoryListShowsSubFoldersAndAncestors) {
  ASSERT_EQ(f.dir.SetPath(base + "/"), 0);  // the trailing separator is not kept
  EXPECT_EQ(f.dir.Path(), base);
  EXPECT_EQ(dirChanges, 1);
  ASSERT_EQ(f.dir.ListCount(), 3);  // hidden folders are not shown, order ignores case
  EXPECT_EQ(f.dir.List(0), base + "/Alpha");
  EXPECT_EQ(f.dir.List(1), base + "/beta");
  EXPECT_EQ(f.dir.List(2), base + "/gamma");
  EXPECT_EQ(f.dir.List(3), "");
  EXPECT_EQ(f.dir.List(-1), base);
  EXPECT_EQ(f.dir.List(-2), root.parent_path().string());
  EXPECT_EQ(f.dir.List(-f.dir.Depth()), "/");
  EXPECT_EQ(f.dir.List(-f.dir.Depth() - 1), "");
  EXPECT_EQ(f.dir.ListIndex(), -1);

  // Highlighting an entry keeps the open folder; opening it changes the folder.
  f.dir.SetListIndex(2);
  EXPECT_EQ(f.dir.Path(), base);
  ASSERT_EQ(f.dir.UserOpen(f.dir.ListIndex()), 0);
  EXPECT_EQ(f.dir.Path(), base + "/gamma");
  EXPECT_EQ(f.dir.List(0), base + "/gamma/inner");
  EXPECT_EQ(f.dir.ListIndex(), -1);
  EXPECT_EQ(dirChanges, 2);
  ASSERT_EQ(f.dir.SetPath(base + "/gamma/inner/../.."), 0);
  EXPECT_EQ(f.dir.Path(), base);
  ASSERT_EQ(f.dir.SetPath(base), 0);  // the same folder again: no Change
  EXPECT_EQ(dirChanges, 3);

  ASSERT_EQ(f.dir.SetPath("/"), 0);
  EXPECT_EQ(f.dir.Depth(), 1);
  EXPECT_EQ(f.dir.List(-1), "/");
  EXPECT_EQ(f.dir.List(-2), "");
}

TEST_F(FileControlsTest, FoldersThatCannotBeReadGiveTheSystemsErrorsAndChangeNothing) {
  ASSERT_EQ(f.dir.SetPath(base), 0);
  ASSERT_EQ(f.fil.SetPath(base), 0);
  const int changesBefore = dirChanges;
  EXPECT_EQ(f.dir.SetPath(base + "/missing"), ui::kErrorPathNotFound);
  EXPECT_EQ(f.dir.SetPath(base + "/a.wav"), ui::kErrorPathNotFound);  // a file is no folder
  EXPECT_EQ(f.fil.SetPath(base + "/missing/"), ui::kErrorPathNotFound);
  EXPECT_EQ(f.dir.SetPath("C:\\VOICE\\"), ui::kErrorDeviceUnavailable);  // from elsewhere
  EXPECT_EQ(f.fil.SetPath("D:"), ui::kErrorDeviceUnavailable);
  EXPECT_EQ(f.drv.SetDrive("C:\\VOICE\\"), ui::kErrorDeviceUnavailable);
  if (geteuid() != 0) {  // permissions do not stop the superuser
    fs::permissions(root / "beta", fs::perms::none);
    EXPECT_EQ(f.dir.SetPath(base + "/beta"), ui::kErrorPermissionDenied);
    EXPECT_EQ(f.fil.SetPath(base + "/beta"), ui::kErrorPermissionDenied);
  }
  EXPECT_EQ(f.dir.Path(), base);
  EXPECT_EQ(f.dir.ListCount(), 3);
  EXPECT_EQ(f.fil.Path(), base);
  EXPECT_EQ(f.fil.ListCount(), 4);
  EXPECT_EQ(dirChanges, changesBefore);
  EXPECT_EQ(f.drv.Drive(), "/");
  EXPECT_EQ(driveChanges, 0);
}

TEST_F(FileControlsTest, FileListFollowsPathAndPattern) {
  EXPECT_EQ(f.fil.Pattern(), "*.*");
  ASSERT_EQ(f.fil.SetPath(base), 0);
  EXPECT_EQ(pathChanges, 1);
  // "*.*" takes names without a dot too; hidden files and folders are not shown.
  EXPECT_EQ(Items(f.fil), (std::vector<std::string>{"a.wav", "b.WAV", "c.vox", "README"}));
  EXPECT_EQ(f.fil.ListIndex(), -1);
  EXPECT_EQ(f.fil.FileName(), "");

  f.fil.SetPattern("*.wav;*.VOX");  // case is ignored, as the original file system did
  EXPECT_EQ(patternChanges, 1);
  EXPECT_EQ(Items(f.fil), (std::vector<std::string>{"a.wav", "b.WAV", "c.vox"}));
  f.fil.SetPattern("?.wav");
  EXPECT_EQ(Items(f.fil), (std::vector<std::string>{"a.wav", "b.WAV"}));
  f.fil.SetPattern("12345678.123");  // matches nothing
  EXPECT_EQ(f.fil.ListCount(), 0);
  f.fil.SetPattern("12345678.123");
  EXPECT_EQ(patternChanges, 3);
  f.fil.SetPattern("READ*");
  f.fil.SetListIndex(0);
  EXPECT_EQ(f.fil.FileName(), "README");

  // A new file shows after Refresh; an unchanged path raises no PathChange.
  std::ofstream(root / "READ.ME") << "x";
  ASSERT_EQ(f.fil.SetPath(base), 0);
  EXPECT_EQ(pathChanges, 1);
  EXPECT_EQ(Items(f.fil), (std::vector<std::string>{"READ.ME", "README"}));
  f.fil.SetNormal(false);
  EXPECT_EQ(f.fil.ListCount(), 0);
}

TEST_F(FileControlsTest, FileListSelectsSeveralFilesWhenAllowed) {
  f.fil.SetMultiSelect(ui::ListBox::MultiSelect::Simple);
  ASSERT_EQ(f.fil.SetPath(base), 0);
  f.fil.SetSelected(0, true);
  f.fil.SetSelected(2, true);
  EXPECT_EQ(f.fil.SelectedIndexes(), (std::vector<int>{0, 2}));
  ASSERT_EQ(f.fil.Refresh(), 0);  // a new reading drops the selection
  EXPECT_EQ(f.fil.SelCount(), 0);
}

TEST_F(FileControlsTest, ChoosingTheDriveRaisesChangeAndRelativeFoldersFollowTheCurrentOne) {
  ASSERT_EQ(f.drv.UserPath(base), 0);
  EXPECT_EQ(driveChanges, 1);
  EXPECT_EQ(f.drv.ListCount(), 1);
  EXPECT_EQ(f.drv.List(0), "/");
  const std::string before = ui::disk().CurrentDirectory();
  ASSERT_EQ(ui::disk().ChangeDirectory(base), 0);
  EXPECT_EQ(f.dir.SetPath("gamma"), 0);
  EXPECT_EQ(f.dir.Path(), base + "/gamma");
  EXPECT_EQ(ui::disk().ChangeDirectory(base + "/missing"), ui::kErrorPathNotFound);
  EXPECT_EQ(ui::disk().CurrentDirectory(), base);
  ASSERT_EQ(ui::disk().ChangeDirectory(before), 0);
}

TEST(PatternTest, WildcardsMatchAsTheFileSystemDid) {
  EXPECT_TRUE(ui::MatchesPattern("GREETING.VOX", "*.vox"));
  EXPECT_TRUE(ui::MatchesPattern("a", "*.*"));
  EXPECT_TRUE(ui::MatchesPattern("abc.wav", "a*c.w?v"));
  EXPECT_FALSE(ui::MatchesPattern("abc.wave", "*.wav"));
  EXPECT_FALSE(ui::MatchesPattern("ab", "a?b"));
  EXPECT_TRUE(ui::MatchesPattern("", "*"));
}

}  // namespace
