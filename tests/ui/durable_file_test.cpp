// Durable whole-file writes: a writer killed between any two steps leaves the old or the
// new file whole; a failure it sees leaves the old file and no temporary file; permission
// bits, links and devices are respected; and a real full file system where one can be made.
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "ui/headless/headless_platform.h"
#include "ui/platform/durable_file.h"

namespace {

namespace fs = std::filesystem;
using ui::DurableStep;

class DurableFileTest : public ::testing::Test {
 protected:
  void SetUp() override {
    dir_ = fs::temp_directory_path() / ("kqdurable-" + std::to_string(getpid()));
    fs::remove_all(dir_);
    fs::create_directories(dir_);
  }
  void TearDown() override { fs::remove_all(dir_); }

  std::string Path(const std::string& name) const { return (dir_ / name).string(); }
  static std::string Read(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  }
  static int Write(const std::string& path, const std::string& text) {
    return ui::WriteFileDurably(path, text.data(), text.size());
  }
  // Only the named files are in the folder: no temporary file is left.
  bool OnlyFiles(std::initializer_list<std::string> names) const {
    size_t count = 0;
    for (const auto& e : fs::directory_iterator(dir_)) {
      (void)e;
      ++count;
    }
    for (const std::string& n : names) {
      if (!fs::exists(dir_ / n)) return false;
    }
    return count == names.size();
  }

  fs::path dir_;
};

constexpr DurableStep kSteps[] = {DurableStep::Open, DurableStep::Write, DurableStep::Sync,
                                  DurableStep::Rename, DurableStep::SyncFolder};

TEST_F(DurableFileTest, AWriterKilledAtAnyStepLeavesTheOldOrTheNewFileWhole) {
  const std::string path = Path("app.kqx");
  const std::string old(5000, 'o'), now(7000, 'n');
  for (const DurableStep step : kSteps) {
    ASSERT_EQ(Write(path, old), 0);
    ui::InjectDurableKill(step);
    bool killed = false;
    try {
      Write(path, now);
    } catch (const ui::DurableWriterKilled& k) {
      killed = k.step == step;
    }
    EXPECT_TRUE(killed);
    const std::string found = Read(path);
    // Up to the rename the old file stands; after it the new one.
    EXPECT_EQ(found, step == DurableStep::SyncFolder ? now : old) << static_cast<int>(step);
    // The next write goes through and leaves nothing behind.
    ASSERT_EQ(Write(path, now), 0);
    EXPECT_EQ(Read(path), now);
    EXPECT_TRUE(OnlyFiles({"app.kqx"}));
  }
}

TEST_F(DurableFileTest, AFailureAtAnyStepLeavesTheOldFileAndNoTemporary) {
  const std::string path = Path("settings.ini");
  for (const DurableStep step : kSteps) {
    ASSERT_EQ(Write(path, "old"), 0);
    ui::InjectDurableStepFault(step, EIO);
    EXPECT_EQ(Write(path, "new contents"), EIO) << static_cast<int>(step);
    // A folder that cannot be flushed comes after the rename: the new file is in place.
    EXPECT_EQ(Read(path), step == DurableStep::SyncFolder ? "new contents" : "old");
    EXPECT_TRUE(OnlyFiles({"settings.ini"}));
  }
  // A disk that fills up part way, and permission denied as the system gives it.
  ui::InjectDurableWriteFault(ENOSPC, 3, 1);
  EXPECT_EQ(Write(path, "longer than three"), ENOSPC);
  ui::InjectDurableStepFault(DurableStep::Open, EACCES);
  EXPECT_EQ(Write(path, "x"), EACCES);
  EXPECT_EQ(Read(path), "new contents");
  EXPECT_TRUE(OnlyFiles({"settings.ini"}));
  // A folder that vanished.
  EXPECT_EQ(Write(Path("gone/file.lst"), "x"), ENOENT);
  EXPECT_TRUE(OnlyFiles({"settings.ini"}));
}

TEST_F(DurableFileTest, KeepsPermissionBitsFollowsLinksAndWritesDevicesInPlace) {
  const std::string path = Path("part.kqx");
  ASSERT_EQ(Write(path, "one"), 0);
  fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
  ASSERT_EQ(Write(path, "two"), 0);
  EXPECT_EQ(fs::status(path).permissions() & fs::perms::all,
            fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
  // A file marked read-only is refused, not replaced.
  fs::permissions(path, fs::perms::owner_read);
  EXPECT_EQ(Write(path, "three"), EACCES);
  EXPECT_EQ(Read(path), "two");
  fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
  // Through a link: the file behind it changes, the link stays a link.
  fs::create_symlink(path, Path("link.kqx"));
  ASSERT_EQ(Write(Path("link.kqx"), "four"), 0);
  EXPECT_TRUE(fs::is_symlink(Path("link.kqx")));
  EXPECT_EQ(Read(path), "four");
  EXPECT_TRUE(OnlyFiles({"part.kqx", "link.kqx"}));
  // A device is written in place and stays a device; a folder is no file to replace.
  EXPECT_EQ(Write("/dev/null", "gone"), 0);
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
  EXPECT_EQ(Write(dir_.string(), "x"), EISDIR);
  // A copy goes the same way.
  EXPECT_EQ(ui::CopyFileDurably(path, Path("copy.kqx")), 0);
  EXPECT_EQ(Read(Path("copy.kqx")), "four");
  EXPECT_EQ(ui::CopyFileDurably(Path("missing"), Path("copy.kqx")), ENOENT);
  EXPECT_EQ(Read(Path("copy.kqx")), "four");
}

TEST_F(DurableFileTest, SettingsFileSavesThroughTheWriter) {
  ui::HeadlessPlatform platform;
  const std::string path = Path("kqedit.settings");
  ui::SetPlatform(&platform);
  platform.SaveSetting("KQEdit", "Settings", "SpeechAudioFormat", "7");
  ASSERT_TRUE(platform.SaveSettingsFile(path));
  platform.SaveSetting("KQEdit", "Settings", "SpeechAudioFormat", "2");
  ui::InjectDurableWriteFault(ENOSPC, 4, 1);
  EXPECT_FALSE(platform.SaveSettingsFile(path));
  EXPECT_EQ(Read(path), "SpeechAudioFormat=7\n");
  EXPECT_TRUE(OnlyFiles({"kqedit.settings"}));
  ui::SetPlatform(nullptr);
}

// A real full file system: a small tmpfs, where this process may mount one.
TEST_F(DurableFileTest, ARealFullFileSystemLeavesTheLastGoodFile) {
  const fs::path mountPoint = dir_ / "small";
  fs::create_directories(mountPoint);
  if (::mount("tmpfs", mountPoint.c_str(), "tmpfs", 0, "size=64k") != 0) {
    GTEST_SKIP() << "no tmpfs can be mounted here (" << std::strerror(errno)
                 << "): the fault seam stands in for a full disk";
  }
  const std::string path = (mountPoint / "big.kqx").string();
  const std::string small(20 * 1024, 's');
  EXPECT_EQ(Write(path, small), 0);
  EXPECT_EQ(Write(path, std::string(80 * 1024, 'b')), ENOSPC);
  EXPECT_EQ(Read(path), small);
  size_t entries = 0;
  for (const auto& e : fs::directory_iterator(mountPoint)) {
    (void)e;
    ++entries;
  }
  EXPECT_EQ(entries, 1u);
  ::umount(mountPoint.c_str());
}

}  // namespace
