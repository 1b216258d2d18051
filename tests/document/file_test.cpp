#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

#include <unistd.h>

#include "document/catalogue.h"
#include "document/document.h"
#include "document/file.h"
#include "document/file_io.h"
#include "document/kqx_format.h"
#include "document/state.h"
#include "document/text.h"
#include "tests/support/doc_fixture.h"

namespace {

using namespace kq;
using kqtest::DocTest;
using kqtest::ReadBytes;
using kqtest::Snapshot;
using kqtest::WriteBytes;

constexpr size_t kHeader = 84009;

class FileTest : public DocTest {
 protected:
  // Saves, opens into a fresh document, saves again; both files must be equal.
  void RoundTrip(int lines) {
    kqtest::FillDeclarations();
    PrgHdr.CompiledFlag = -1;
    kqtest::AddMixedLines(lines);
    const std::string a = TempPath("a.kqx"), b = TempPath("b.kqx");
    kqtest::SaveAll(a);
    const auto first = ReadBytes(a);
    InitDocument();
    list().Clear();
    EXPECT_EQ(kqtest::Open(a), "test.kqx");
    ASSERT_EQ(list().ListCount(), lines);
    EXPECT_EQ(PrgHdr.LineCount, lines);
    EXPECT_EQ(PrgHdr.CompiledFlag, -1);
    kqtest::SaveAll(b);
    const auto second = ReadBytes(b);
    ASSERT_EQ(first.size(), second.size());
    EXPECT_TRUE(first == second);
  }
};

TEST_F(FileTest, EmptyDocumentIs84009Bytes) {
  RoundTrip(0);
  EXPECT_EQ(ReadBytes(TempPath("a.kqx")).size(), kHeader);
}

TEST_F(FileTest, OneLineSurvivesSaveAndOpen) {
  RoundTrip(1);
}

TEST_F(FileTest, FullDocumentOfEveryFunctionSurvivesByteForByte) {
  RoundTrip(kMaxLines);
  const auto bytes = ReadBytes(TempPath("a.kqx"));
  size_t expected = kHeader + 180u * kMaxLines;
  for (int i = 0; i < kMaxLines; ++i) expected += 35 + kCatalogueLength[LineTable[i].LineFuncNo];
  EXPECT_EQ(bytes.size(), expected);
  // The lines are where the layout puts them.
  EXPECT_EQ(std::memcmp(bytes.data(), "3.10", 5), 0);
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(&bytes[kHeader]), 4), "0000");
  EXPECT_EQ(list().List(kMaxLines - 1).substr(0, 5), "10000");
}

TEST_F(FileTest, SaveWritesTheHeaderFieldsInOrderAndClearsChanged) {
  SetField(PrgHdr.Variable[0].VarRefName, "First");
  PrgHdr.Variable[0].VarRefType = kVarString;
  SetField(PrgHdr.Path[1][2].PathName, "Numbers");
  SetField(PrgHdr.Table[49].TableName, "Last");
  PrgHdr.CompiledFlag = -1;
  kqtest::AddLine(4, "Start", 1);
  ChangedFlag = true;
  std::string recent;
  int pointerDuringSave = -1;
  Shell.addRecentFile = [&](const std::string& p) {
    recent = p;
    pointerDuringSave = platform_.MousePointer();
  };
  kqtest::SaveAll(TempPath("h.kqx"));
  EXPECT_EQ(pointerDuringSave, 11);
  const auto b = ReadBytes(TempPath("h.kqx"));
  ASSERT_EQ(b.size(), kHeader + 180 + 35 + 4);
  EXPECT_EQ(b[5], 0xFF);
  EXPECT_EQ(b[6], 0xFF);
  EXPECT_EQ(b[7], 2);
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(&b[11]), 6), std::string("First\0", 6));
  // Path row 1, type C: (1 * 5 + 2) entries of 288 bytes, then the 260-byte text.
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(&b[16007 + 7 * 288 + 260]), 8),
            std::string("Numbers\0", 8));
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(&b[44807 + 49 * 784]), 5),
            std::string("Last\0", 5));
  EXPECT_EQ(b[84007], 1);
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(&b[kHeader + 180]), 6),
            std::string("Start\0", 6));
  EXPECT_EQ(b[kHeader + 180 + 16], 4);  // LineFuncNo
  EXPECT_FALSE(ChangedFlag);
  EXPECT_EQ(recent, TempPath("h.kqx"));
  EXPECT_EQ(platform_.MousePointer(), 0);
}

TEST_F(FileTest, OpenSelectsTheFirstLineAndTellsTheShell) {
  kqtest::AddMixedLines(3);
  kqtest::SaveAll(TempPath("x.kqx"));
  list().Clear();
  int opened = 0;
  Shell.fileOpened = [&] {
    ++opened;
    EXPECT_EQ(platform_.MousePointer(), 11);
    EXPECT_EQ(list().ListIndex(), -1);  // the first line is selected after the shell's turn
  };
  ChangedFlag = true;
  kqtest::Open(TempPath("x.kqx"));
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(list().ListIndex(), 0);
  EXPECT_FALSE(ChangedFlag);
  EXPECT_EQ(list().List(2).size(), 180u);  // blanks included
  EXPECT_EQ(platform_.MousePointer(), 0);
}

TEST_F(FileTest, OpeningTheOpenFileIsRefused) {
  Shell.caption = [] { return std::string("Zelvox Voice Response Editor: app.kqx"); };
  std::string title = "app.kqx", name = TempPath("app.kqx");
  OpenFile(title, name);
  EXPECT_EQ(LastBox(), "File app.kqx is already open.");
  EXPECT_EQ(title, "Untitled");
  EXPECT_EQ(name, "");
  EXPECT_FALSE(std::filesystem::exists(TempPath("app.kqx")));
}

TEST_F(FileTest, AbsentFileIsCreatedEmptyAndRefused) {
  kqtest::AddMixedLines(2);
  const Snapshot before = Snapshot::Take();
  std::string title = "new.kqx", name = TempPath("new.kqx");
  OpenFile(title, name);
  EXPECT_EQ(LastBox(), "File new.kqx doesn't exist.");
  auto box = platform_.EventsOf("msgbox").back().fields;
  EXPECT_EQ(box["title"].Str(), "File Error");
  EXPECT_EQ(box["icon"].Str(), "exclamation");
  EXPECT_TRUE(std::filesystem::exists(TempPath("new.kqx")));
  EXPECT_EQ(std::filesystem::file_size(TempPath("new.kqx")), 0u);
  EXPECT_EQ(title, "Untitled");
  EXPECT_TRUE(Snapshot::Take() == before);
}

TEST_F(FileTest, AbsentFolderGivesThePathBox) {
  std::string title = "x.kqx", name = TempPath("missing/x.kqx");
  OpenFile(title, name);
  EXPECT_EQ(LastBox(), "Path do not exist.");
  EXPECT_EQ(platform_.EventsOf("msgbox").back().fields["title"].Str(), "Open");
  EXPECT_EQ(title, "Untitled");
}

TEST_F(FileTest, VersionsAreRefusedWithOrWithoutThePortingSentence) {
  kqtest::AddMixedLines(2);
  const Snapshot before = Snapshot::Take();
  const struct {
    const char* version;
    const char* text;
  } cases[] = {
      {"3.07",
       "File v.kqx has KQX file format version: 3.07\rThe Voice/Response Application must "
       "be manually ported to version: 3.08.xx or newer"},
      {"1.00",
       "File v.kqx has KQX file format version: 1.00\rThe Voice/Response Application must "
       "be manually ported to version: 3.08.xx or newer"},
      {"3.11", "File v.kqx has KQX file format version: 3.11"},
      {"3.1a", "File v.kqx has KQX file format version: 3.1a"},
  };
  for (const auto& c : cases) {
    std::vector<uint8_t> bytes(kHeader, 0);
    std::memcpy(bytes.data(), c.version, std::strlen(c.version) + 1);
    WriteBytes(TempPath("v.kqx"), bytes);
    EXPECT_EQ(kqtest::Open(TempPath("v.kqx"), "v.kqx"), "Untitled");
    EXPECT_EQ(LastBox(), c.text);
    EXPECT_TRUE(Snapshot::Take() == before) << c.version;
  }
}

TEST_F(FileTest, VersionWithoutItsNulEndsTheProgram) {
  WriteBytes(TempPath("t.kqx"), {'H', 'e', 'l', 'l', 'o', ' ', 'w'});
  EXPECT_THROW(kqtest::Open(TempPath("t.kqx")), ui::ProgramEnded);
  EXPECT_EQ(LastBox(), "String 'Hello' not terminated with null character in Global RTrimZ.");
}

TEST_F(FileTest, DamagedFilesLeaveTheDocumentAsItWas) {
  kqtest::AddMixedLines(60);
  const std::string good = TempPath("good.kqx");
  kqtest::SaveAll(good);
  const auto bytes = ReadBytes(good);
  InitDocument();
  list().Clear();
  kqtest::AddMixedLines(3);
  SetField(PrgHdr.Variable[7].VarRefName, "Kept");
  ChangedFlag = true;
  const Snapshot before = Snapshot::Take();

  auto check = [&](std::vector<uint8_t> damaged, const char* what) {
    WriteBytes(TempPath("bad.kqx"), damaged);
    platform_.ClearEvents();
    EXPECT_EQ(kqtest::Open(TempPath("bad.kqx"), "bad.kqx"), "Untitled") << what;
    EXPECT_EQ(LastBox(), "File bad.kqx is damaged.") << what;
    EXPECT_TRUE(Snapshot::Take() == before) << what;
  };
  check({bytes.begin(), bytes.begin() + 3}, "shorter than its version");
  check({bytes.begin(), bytes.begin() + 50000}, "header cut");
  check({bytes.begin(), bytes.begin() + kHeader + 180 * 30}, "DisplayLines cut");
  check({bytes.begin(), bytes.end() - 1}, "last record cut");
  auto count = [&](int16_t n) {
    auto b = bytes;
    std::memcpy(&b[84007], &n, 2);
    return b;
  };
  check(count(-1), "negative line count");
  check(count(10002), "line count above the stores");
  auto headerOnly = count(5);
  headerOnly.resize(kHeader);
  check(headerOnly, "lines announced, none there");
}

TEST_F(FileTest, IllegalFunctionNumberInAFileEndsTheProgram) {
  kqtest::AddMixedLines(4);
  LineTable[2].LineFuncNo = 4;  // Delay: 4 bytes, then patch the number in the file
  kqtest::SaveAll(TempPath("f.kqx"));
  auto b = ReadBytes(TempPath("f.kqx"));
  size_t at = kHeader + 4 * 180;
  for (int i = 0; i < 2; ++i) at += 35 + kCatalogueLength[LineTable[i].LineFuncNo];
  const int16_t bad = 35;  // no longer a function of the current version
  std::memcpy(&b[at + 16], &bad, 2);
  WriteBytes(TempPath("f.kqx"), b);
  EXPECT_THROW(kqtest::Open(TempPath("f.kqx")), ui::ProgramEnded);
  EXPECT_EQ(LastBox(), "Illegal Function Number  35 in line  2 Global OpenFile.");
}

TEST_F(FileTest, SavingALineOfAnIllegalNumberEndsTheProgramAndKeepsTheOldFile) {
  kqtest::AddMixedLines(2);
  kqtest::SaveAll(TempPath("s.kqx"));
  const auto old = ReadBytes(TempPath("s.kqx"));
  LineTable[1].LineFuncNo = 35;
  EXPECT_THROW(kqtest::SaveAll(TempPath("s.kqx")), ui::ProgramEnded);
  EXPECT_EQ(LastBox(), "Illegal Function Number  35 in Global SaveFile.");
  EXPECT_TRUE(ReadBytes(TempPath("s.kqx")) == old);
}

TEST_F(FileTest, FullDiskOnSaveRetriesOrLeavesTheOldFile) {
  kqtest::AddMixedLines(5);
  const std::string path = TempPath("d.kqx");
  kqtest::SaveAll(path);
  const auto old = ReadBytes(path);
  kqtest::AddLine(13, "", 9);
  ChangedFlag = true;

  // Cancel: the command ends, the old file and the changed state stay.
  InjectWriteFault(ENOSPC, 1000, 1);
  platform_.QueueAnswer(ui::vbCancel);
  kqtest::SaveAll(path);
  EXPECT_EQ(LastBox(), "Disk is full.\r\rInsert a new disk and try again.");
  EXPECT_TRUE(ReadBytes(path) == old);
  EXPECT_TRUE(ChangedFlag);
  EXPECT_EQ(platform_.MousePointer(), 0);
  EXPECT_FALSE(std::filesystem::exists(path + ".kqx-save"));

  // Retry twice: the third write succeeds.
  platform_.ClearEvents();
  InjectWriteFault(ENOSPC, 0, 2);
  platform_.QueueAnswer(ui::vbRetry);
  platform_.QueueAnswer(ui::vbRetry);
  kqtest::SaveAll(path);
  EXPECT_EQ(platform_.CountOf("msgbox"), 2);
  EXPECT_FALSE(ChangedFlag);
  EXPECT_EQ(ReadBytes(path).size(), old.size() + 180 + 35 + 52);
}

TEST_F(FileTest, WriteProtectionLeavesTheCommand) {
  kqtest::AddMixedLines(1);
  ChangedFlag = true;
  int recent = 0;
  Shell.addRecentFile = [&](const std::string&) { ++recent; };
  InjectWriteFault(EACCES, 0, 1);
  kqtest::SaveAll(TempPath("p.kqx"));
  EXPECT_EQ(LastBox(),
            "This disk is write-protected.\r\rRemove the write-protection or use another disk.");
  EXPECT_EQ(platform_.EventsOf("msgbox").back().fields["title"].Str(), "Save");
  EXPECT_TRUE(ChangedFlag);
  EXPECT_EQ(recent, 0);
  EXPECT_FALSE(std::filesystem::exists(TempPath("p.kqx")));
}

TEST_F(FileTest, ReadOnlyFolderGivesTheWriteProtectedBox) {
  if (::geteuid() == 0) GTEST_SKIP() << "permissions do not bind the superuser";
  const std::string folder = TempPath("ro");
  std::filesystem::create_directories(folder);
  std::filesystem::permissions(
      folder, std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
  kqtest::SaveAll(folder + "/x.kqx");
  std::filesystem::permissions(folder, std::filesystem::perms::owner_all);
  EXPECT_EQ(LastBox(),
            "This disk is write-protected.\r\rRemove the write-protection or use another disk.");
}

TEST_F(FileTest, SaveIntoAMissingFolderGivesThePathBox) {
  kqtest::SaveAll(TempPath("none/x.kqx"));
  EXPECT_EQ(LastBox(), "Path do not exist.");
}

using FileErrorTest = DocTest;

TEST_F(FileErrorTest, ReadErrorOnOpenRetriesUnderTheOpenTitle) {
  kqtest::AddMixedLines(3);
  const std::string path = TempPath("r.kqx");
  kqtest::SaveAll(path);
  InitDocument();
  list().Clear();

  // Retry: the second read succeeds and the file opens.
  InjectReadFault(EIO, 1);
  platform_.QueueAnswer(ui::vbRetry);
  EXPECT_EQ(kqtest::Open(path, "r.kqx"), "r.kqx");
  ASSERT_EQ(platform_.CountOf("msgbox"), 1);
  EXPECT_EQ(LastBox(),
            "Cannot read selected drive.\rMake sure that the drive door is closed and that the "
            "disk is formatted and free of errors.");
  EXPECT_EQ(LastBox("title"), "Open");
  EXPECT_EQ(list().ListCount(), 3);

  // Cancel: the command ends with the document as it was, title Untitled, name empty.
  platform_.ClearEvents();
  const Snapshot before = Snapshot::Take();
  InjectReadFault(EIO, 1);
  platform_.QueueAnswer(ui::vbCancel);
  std::string title = "r.kqx", name = path;
  OpenFile(title, name);
  EXPECT_EQ(platform_.CountOf("msgbox"), 1);
  EXPECT_EQ(title, "Untitled");
  EXPECT_EQ(name, "");
  EXPECT_TRUE(Snapshot::Take() == before);
  EXPECT_EQ(platform_.MousePointer(), 0);
}

TEST_F(FileErrorTest, ReadErrorOnInsertLeavesTheDocument) {
  kqtest::AddMixedLines(2);
  const std::string path = TempPath("i.kqx");
  kqtest::SaveAll(path);
  const Snapshot before = Snapshot::Take();
  InjectReadFault(ENXIO, 1);
  platform_.QueueAnswer(ui::vbCancel);
  std::string title = "i.kqx", name = path;
  InsertFile(title, name, 0);
  EXPECT_EQ(LastBox(), "There is no disk in the selected drive.Insert a disk and try again.");
  EXPECT_EQ(LastBox("title"), "Insert");
  EXPECT_TRUE(Snapshot::Take() == before);
}

// Save Part As with no line selected hands over first -1, last 0 and count 2: there is
// no such line, so the command ends without a word, writing nothing and keeping the
// document's state.
TEST_F(FileErrorTest, SavePartWithoutASelectionWritesNothing) {
  kqtest::FillDeclarations();
  kqtest::AddMixedLines(3);
  ChangedFlag = true;
  int recent = 0;
  Shell.addRecentFile = [&](const std::string&) { ++recent; };
  const Snapshot before = Snapshot::Take();
  std::string title = "part.kqx", name = TempPath("part.kqx");
  int16_t count = 2;
  SaveFile(title, name, false, -1, 0, count);
  EXPECT_EQ(platform_.CountOf("msgbox"), 0);
  EXPECT_FALSE(std::filesystem::exists(name));
  EXPECT_TRUE(Snapshot::Take() == before);
  EXPECT_TRUE(ChangedFlag);
  EXPECT_EQ(recent, 0);
  EXPECT_EQ(platform_.MousePointer(), 0);
}

// Bytes behind the largest possible application are never read: a huge file chosen by
// mistake cannot exhaust the memory.
TEST_F(FileErrorTest, ReadsStopAtTheLargestApplication) {
  kqtest::AddMixedLines(2);
  const std::string path = TempPath("tail.kqx");
  kqtest::SaveAll(path);
  auto bytes = ReadBytes(path);
  const size_t size = bytes.size();
  bytes.resize(size + 1000, 0x55);
  kqtest::WriteBytes(path, bytes);
  std::vector<uint8_t> read;
  EXPECT_EQ(ReadWholeFile(path, read, size + 10), 0);
  EXPECT_EQ(read.size(), size + 10);
  EXPECT_EQ(ReadWholeFile(path, read), 0);
  EXPECT_EQ(read.size(), size + 1000);
  // Trailing bytes do not matter to the reader.
  InitDocument();
  list().Clear();
  EXPECT_EQ(kqtest::Open(path, "tail.kqx"), "tail.kqx");
  EXPECT_EQ(list().ListCount(), 2);
}

// Saving over a file marked read-only is refused as write-protected, as writing into
// the file would be, and the file stays as it was.
TEST_F(FileErrorTest, ReadOnlyFileIsNotReplaced) {
  kqtest::AddMixedLines(2);
  const std::string path = TempPath("ro.kqx");
  kqtest::SaveAll(path);
  const auto old = ReadBytes(path);
  std::filesystem::permissions(path, std::filesystem::perms::owner_read |
                                         std::filesystem::perms::group_read |
                                         std::filesystem::perms::others_read);
  kqtest::AddLine(13, "", 5);
  ChangedFlag = true;
  platform_.ClearEvents();
  kqtest::SaveAll(path);
  EXPECT_EQ(LastBox(),
            "This disk is write-protected.\r\rRemove the write-protection or use another disk.");
  EXPECT_EQ(LastBox("title"), "Save");
  EXPECT_TRUE(ReadBytes(path) == old);
  EXPECT_TRUE(ChangedFlag);
  std::filesystem::permissions(path, std::filesystem::perms::owner_write,
                               std::filesystem::perm_options::add);
  kqtest::SaveAll(path);
  EXPECT_FALSE(ChangedFlag);
  EXPECT_EQ(ReadBytes(path).size(), old.size() + 180 + 35 + 52);
}

}  // namespace
