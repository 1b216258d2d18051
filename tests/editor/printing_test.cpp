// Printing where the print_pages story does not reach: the listing file beside the
// application, a file ending on a full page, the printer calls of copies and ranges, a
// cancelled dialog and a fault in the listing.
#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <functional>

#include "document/state.h"
#include "editor/commands.h"
#include "editor/listing.h"
#include "editor/printing.h"
#include "tests/support/doc_builder.h"
#include "tests/support/test_text.h"
#include "ui/platform/durable_file.h"

namespace kq::test {
namespace {

namespace fs = std::filesystem;

class PrintingTest : public ::testing::Test, public DocFixture {
 protected:
  void SetUp() override {
    dir = fs::temp_directory_path() / ("kq_print_" + std::to_string(::getpid()));
    fs::create_directories(dir);
    ApplFileName = (dir / "app.kqx").string();
  }
  void TearDown() override { fs::remove_all(dir); }
  // n Remark lines: with an empty document's 7 rows of headings, 7 + 2n rows are printed.
  void Remarks(int n) {
    for (int i = 0; i < n; ++i) Add("", Rec(13).Text(0, 52, "r" + std::to_string(i)));
  }
  std::vector<std::vector<std::string>> Pages() {
    std::vector<std::vector<std::string>> pages;
    for (const auto& e : platform.EventsOf("page")) {
      std::vector<std::string> rows;
      for (const auto& r : e.fields["rows"].Arr()) rows.push_back(r.Str());
      pages.push_back(rows);
    }
    return pages;
  }
  std::vector<std::string> FileRows() {
    std::vector<std::string> rows;
    WriteListing([&](const std::string& r) { rows.push_back(r); }, "2026-11-22 10:00:00");
    return rows;
  }
  fs::path dir;
};

TEST_F(PrintingTest, FileEndingOnAFullPageStartsOneMoreHeader) {
  Remarks(59);
  std::vector<std::string> rows = FileRows();
  rows.resize(4 + 120);
  PrintListingRows(rows, "t", 0, 0, 1);
  const auto pages = Pages();
  ASSERT_EQ(pages.size(), 3u);
  EXPECT_EQ(pages[2].size(), 4u);  // the header of page 3 alone
}

// The printer calls as they are made: each copy is a document of its own, ended on the
// printer before the next copy starts; new pages only between the pages of one copy.
class CallLog : public ui::HeadlessPlatform {
 public:
  void PrintRow(const std::string& row) override {
    if (calls.empty() || calls.back() != "row") calls.push_back("row");
    ui::HeadlessPlatform::PrintRow(row);
  }
  void NewPage() override {
    calls.push_back("newpage");
    ui::HeadlessPlatform::NewPage();
  }
  void EndDoc() override {
    calls.push_back("enddoc");
    ui::HeadlessPlatform::EndDoc();
  }
  std::vector<std::string> calls;
};

TEST_F(PrintingTest, EveryCopyEndsItsOwnDocumentAndARangeOpensNoPageBeforeItsFirst) {
  struct Case {
    int remarks, first, last, copies;
  } cases[] = {{30, 0, 0, 3},   // 67 rows: two pages, three copies
               {90, 3, 4, 2}};  // 187 rows: four pages, the last two twice
  for (const Case& c : cases) {
    list().Clear();
    Remarks(c.remarks);
    CallLog log;
    ui::SetPlatform(&log);
    PrintListingRows(FileRows(), "t", c.first, c.last, c.copies);
    ui::SetPlatform(&platform);
    const std::vector<std::string> copy = {"row", "newpage", "row", "enddoc"};
    std::vector<std::string> expected;
    for (int i = 0; i < c.copies; ++i) expected.insert(expected.end(), copy.begin(), copy.end());
    EXPECT_EQ(log.calls, expected) << c.remarks;
  }
}

TEST_F(PrintingTest, PrintCommandWritesTheListingFileThenPrints) {
  Remarks(3);
  platform.QueuePrint(ui::PrintDialogRequest{0, 0, 1, 0});
  PrintCommand();
  const std::string file = ReadText((dir / "app.TXT").string());
  ASSERT_FALSE(file.empty());
  EXPECT_EQ(file.substr(0, 11), "Date/Time: ");
  EXPECT_EQ(file.substr(file.find("\r\n") + 2, 11 + ApplFileName.size() + 2),
            "File Name: " + ApplFileName + "\r\n");
  EXPECT_EQ(platform.CountOf("printdialog"), 1);
  ASSERT_EQ(Pages().size(), 1u);
  EXPECT_EQ(Pages()[0].size(), 4u + 7u + 6u);
}

TEST_F(PrintingTest, CancelWritesNothing) {
  Remarks(1);
  platform.QueuePrint(std::nullopt);
  PrintCommand();
  EXPECT_FALSE(fs::exists(dir / "app.TXT"));
  EXPECT_EQ(platform.CountOf("page"), 0);
}

TEST_F(PrintingTest, FaultInTheListingKeepsThePartialFileAndPrintsNothing) {
  Remarks(1);
  Add("", Rec(43).I32(0, 9));
  platform.QueuePrint(ui::PrintDialogRequest{0, 0, 1, 0});
  PrintCommand();
  EXPECT_NE(ReadText((dir / "app.TXT").string()).find("On/Off Hook"), std::string::npos);
  EXPECT_EQ(platform.CountOf("page"), 0);
  EXPECT_EQ(platform.CountOf("msgbox"), 0);
}

// A disk that fills up, a write that is refused and a folder that is gone: the printing
// ends without a word, as any failure of the listing does, and the last listing stays
// whole with no temporary file beside it.
TEST_F(PrintingTest, AFailingWriteKeepsTheLastListingAndPrintsNothing) {
  Remarks(40);
  const fs::path listing = dir / "app.TXT";
  const auto failures = {
      std::function<void()>([] { ui::InjectDurableWriteFault(ENOSPC, 100, 1); }),
      std::function<void()>([] { ui::InjectDurableStepFault(ui::DurableStep::Open, EACCES); }),
      std::function<void()>([] { ui::InjectDurableStepFault(ui::DurableStep::Rename, EIO); }),
  };
  for (const auto& fail : failures) {
    std::ofstream(listing, std::ios::binary) << "the last listing";
    fail();
    platform.QueuePrint(ui::PrintDialogRequest{0, 0, 1, 0});
    PrintCommand();
    EXPECT_EQ(ReadText(listing.string()), "the last listing");
    EXPECT_EQ(std::distance(fs::directory_iterator(dir), fs::directory_iterator()), 1);
  }
  fs::remove_all(dir);
  platform.QueuePrint(ui::PrintDialogRequest{0, 0, 1, 0});
  PrintCommand();
  EXPECT_FALSE(fs::exists(dir));
  EXPECT_EQ(platform.CountOf("page"), 0);
  EXPECT_EQ(platform.CountOf("msgbox"), 0);
}

}  // namespace
}  // namespace kq::test
