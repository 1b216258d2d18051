// The listing: header, declarations and the rows of every live function, compared byte for
// byte with the listings kept under tests/editor/listings. Three documents: every flag on and
// every label filled, flags off and labels empty, and every function with its defaults.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "document/catalogue.h"
#include "document/state.h"
#include "editor/listing.h"
#include "tests/support/doc_builder.h"
#include "tests/support/test_text.h"

namespace kq::test {
namespace {

constexpr char kNow[] = "2026-11-22 10:00:00";

// Notation of the expected rows: a line's prefix row and its indented parameter rows.
std::string Pre(int line, const std::string& label, const std::string& func) {
  auto pad = [](std::string s, size_t w) { return s + std::string(w - s.size(), ' '); };
  char no[8];
  std::snprintf(no, sizeof no, "%04d", line);
  return std::string(no) + "  " + pad(label, 16) + "  " + pad(func, 17) + "  ";
}
std::string In(const std::string& row) {
  return std::string(26, ' ') + row;
}

class ListingTest : public ::testing::Test, public DocFixture {
 protected:
  void SetUp() override {
    ApplFileName = "/tmp/app.kqx";
    DeclareVariable(0, kVarLong, "Count");
    DeclareVariable(1, kVarString, "Name");
    DeclareVariable(2, kVarDouble, "Rate");
    DeclareTable(0, "Cust");
    DeclareColumn(0, 0, kVarLong, "Count");
    DeclareColumn(0, 2, kVarString, "Name");
    DeclarePath(kPathExport, 0, "Out", "/out/");
    DeclarePath(kPathMessage, 0, "Msg", "/msg/");
    DeclarePath(kPathMessage, 1, "Msg2", "/msg2/");
    DeclarePath(kPathNumber, 0, "Digits", "/num/");
    DeclarePath(kPathVoice, 0, "Vox", "/vox/");
    DeclarePath(kPathGeneral, 0, "Bin", "/bin/");
  }
  std::vector<std::string> Rows() {
    std::vector<std::string> rows;
    WriteListing([&](const std::string& r) { rows.push_back(r); }, kNow);
    return rows;
  }
  // The whole text file, compared byte for byte with the listing kept under
  // tests/editor/listings (rows closed by carriage return and line feed).
  void ExpectFile(const std::string& name) {
    const std::string path = std::string(KQ_LISTINGS_DIR) + "/" + name;
    const std::string actual = ListingText(kNow);
    if (std::getenv("KQ_UPDATE_GOLDEN") != nullptr) {
      std::ofstream(path, std::ios::binary) << actual;
    }
    ASSERT_TRUE(std::filesystem::exists(path)) << path;
    EXPECT_EQ(actual, ReadText(path)) << path;
  }
  void ExpectRows(const std::vector<std::string>& expected) {
    const std::vector<std::string> rows = Rows();
    for (size_t i = 0; i < std::min(rows.size(), expected.size()); ++i) {
      ASSERT_EQ(rows[i], expected[i]) << "row " << i;
    }
    ASSERT_EQ(rows.size(), expected.size());
  }
};

TEST_F(ListingTest, EveryFunctionWithFlagsOnAndLabelsFilled) {
  PrgHdr.CompiledFlag = -1;
  Add("Top", Rec(0).Var(0, kVarLong, "Count").Var(32, kConstLong, "5").LabelRef(64, "Err", 12));
  Add("", Rec(1).I32(0, kPathMessage).Text(4, 28, "Msg").Text(32, 28, "Msg2"));
  Add("", Rec(2)
              .Var(0, kVarDouble, "Rate")
              .Var(32, kVarDouble, "Rate")
              .Var(64, kConstDouble, "1.5")
              .I32(96, 2)
              .LabelRef(100, "Err", 12));
  Add("", Rec(3)
              .Var(0, kVarLong, "Count")
              .Var(32, kConstLong, "3")
              .I32(64, 4)
              .Label(68, "Top")
              .Label(84, "End")
              .I32(100, 0)
              .I32(104, 51));
  Add("", Rec(4).I32(0, 250));
  {
    Rec r(5);
    for (int i = 0; i < 7; ++i) r.Label(16 * i, "C" + std::to_string(i)).I32(112 + 4 * i, i);
    r.I32(140, 5).I32(144, 1).Var(148, kVarString, "Name");
    Add("", r);
  }
  Add("", Rec(6).I32(0, 3).Var(4, kVarString, "Name"));
  Add("", Rec(7)
              .Var(0, kVarString, "Name")
              .I32(32, 5)
              .I32(36, 12)
              .I32(40, 1)
              .LabelRef(44, "Err", 12)
              .LabelRef(64, "Err", 12)
              .LabelRef(84, "Err", 12)
              .I32(104, 10)
              .I32(108, 1));
  Add("", Rec(8).I32(0, 1).Var(4, kVarString, "Name"));
  Add("", Rec(9).LabelRef(0, "Top", 0).LabelRef(20, "Err", 12));
  Add("", Rec(10).LabelRef(0, "End", 51));
  Add("", Rec(11).Var(0, kVarLong, "Count").I32(32, 1).I32(36, 6));
  Add("", Rec(12)
              .Text(0, 28, "Msg")
              .Var(28, kConstString, "rec.vox")
              .I32(60, 30)
              .I32(64, 1)
              .I32(68, 1)
              .I32(72, 1)
              .I32(76, 1)
              .I32(80, 1)
              .I32(84, 1)
              .LabelRef(88, "Err", 12)
              .LabelRef(108, "Err", 12)
              .LabelRef(128, "Err", 12)
              .I32(148, 3));
  Add("", Rec(13).Text(0, 52, "Hello world"));
  Add("", Rec(14).I32(0, -1).LabelRef(4, "Err", 12));
  Add("", Rec(15).I32(0, 150));
  Add("", Rec(16)
              .Var(0, kVarLong, "Count")
              .I32(32, 1)
              .I32(36, 1)
              .LabelRef(40, "Err", 12)
              .I32(60, 1)
              .I32(64, 1)
              .Text(68, 28, "Vox")
              .Text(96, 28, "Vox")
              .Text(124, 28, "Digits")
              .Text(152, 16, "a.vox")
              .Text(168, 16, "b.vox"));
  Add("", Rec(17)
              .Var(0, kVarLong, "Count")
              .Var(32, kVarString, "Name")
              .Var(64, kVarDouble, "Rate")
              .Var(96, kVarLong, "Count")
              .I32(800, 2)
              .I32(804, 0)
              .Text(808, 28, "Out")
              .Var(836, kConstString, "x.csv")
              .LabelRef(868, "Err", 12));
  Add("", Rec(18)
              .Text(0, 28, "Vox")
              .Text(28, 16, "f1")
              .Text(44, 16, "f2")
              .Text(60, 16, "f3")
              .I32(108, 1)
              .LabelRef(112, "Err", 12)
              .LabelRef(132, "Err", 12));
  Add("", Rec(19)
              .I32(0, 2)
              .I32(4, 1)
              .I32(8, 24)
              .I32(12, 5)
              .LabelRef(16, "Top", 0)
              .I32(36, 1)
              .I32(40, 1)
              .Var(44, kVarString, "Name")
              .I32(76, 1)
              .I32(80, 1)
              .I32(84, 0)
              .Var(88, kVarString, "Name"));
  Add("", Rec(20)
              .I32(380, 1)
              .Label(0, "K0")
              .I32(304, 0)
              .Label(160, "K10")
              .I32(344, 10)
              .Label(288, "K18")
              .I32(376, 18)
              .I32(384, 7)
              .I32(388, 0));
  Add("", Rec(21)
              .Text(0, 28, "Msg")
              .Var(28, kVarString, "Name")
              .I32(60, 1)
              .I32(64, 1)
              .I32(68, 1)
              .LabelRef(72, "Err", 12)
              .LabelRef(92, "Err", 12));
  Add("", Rec(24).Text(0, 16, "Cust").I32(16, 3).LabelRef(20, "Err", 12).LabelRef(40, "Err", 12));
  Add("", Rec(25).Text(0, 16, "Cust").LabelRef(16, "Err", 12));
  Add("", Rec(26).Text(0, 16, "Cust").LabelRef(16, "Err", 12));
  Add("", Rec(27)
              .Text(0, 16, "Cust")
              .LabelRef(16, "Err", 12)
              .I32(36, 1)
              .I32(56, 0)
              .Var(76, kVarLong, "Count")
              .I32(44, 3)
              .I32(64, 1)
              .Var(140, kConstString, "x"));
  Add("", Rec(28).Text(0, 16, "Cust").LabelRef(16, "Err", 12).LabelRef(36, "Err", 12));
  Add("", Rec(29)
              .Text(0, 16, "Cust")
              .LabelRef(16, "Err", 12)
              .I32(36, 1)
              .I32(56, 3)
              .Var(76, kConstLong, "9"));
  Add("", Rec(30).Text(0, 16, "Cust").LabelRef(16, "Err", 12).LabelRef(36, "Err", 12));
  Add("", Rec(31).Text(0, 16, "Cust").LabelRef(16, "Err", 12).LabelRef(36, "Err", 12));
  Add("", Rec(32).Text(0, 16, "Cust").LabelRef(16, "Err", 12).LabelRef(36, "Err", 12));
  Add("", Rec(33).Text(0, 16, "Cust").LabelRef(16, "Err", 12).LabelRef(36, "Err", 12));
  Add("", Rec(34)
              .Text(0, 16, "Cust")
              .LabelRef(16, "Err", 12)
              .I32(40, 2)
              .I32(60, 5)
              .Var(108, kVarLong, "Count"));
  Add("", Rec(36).I32(0, 1).Var(4, kVarLong, "Count"));
  Add("", Rec(37)
              .Var(0, kVarString, "Name")
              .I32(32, 1)
              .LabelRef(36, "Err", 12)
              .LabelRef(56, "Err", 12));
  Add("", Rec(38).Text(0, 16, "Cust").LabelRef(16, "Err", 12).Var(36, kVarLong, "Count"));
  Add("", Rec(39).Text(0, 16, "Cust").LabelRef(16, "Err", 12).Var(36, kVarLong, "Count"));
  Add("", Rec(40).Text(0, 16, "Cust").LabelRef(16, "Err", 12));
  Add("", Rec(41).Var(0, kVarLong, "Count"));
  Add("", Rec(43).I32(0, 2));
  Add("", Rec(44).I32(0, 2).Var(4, kVarString, "Name").Var(36, kConstString, "abc"));
  Add("", Rec(45).Var(0, kVarLong, "Count").Var(32, kVarString, "Name"));
  Add("", Rec(46).Var(0, kVarString, "Name").Var(32, kVarString, "Name").Var(64, kConstLong, "3"));
  Add("", Rec(47).Var(0, kVarString, "Name").Var(32, kVarString, "Name").Var(64, kConstLong, "3"));
  Add("",
      Rec(48).Var(0, kVarLong, "Count").Var(32, kVarString, "Name").Var(64, kConstString, "ab"));
  Add("", Rec(49)
              .I32(0, kPathVoice)
              .Text(4, 28, "Vox")
              .Label(32, "Top")
              .I32(64, 0)
              .Label(48, "End")
              .I32(68, 51));
  Add("", Rec(50)
              .I32(0, kPathMessage)
              .Text(4, 28, "Msg")
              .Var(32, kVarString, "Name")
              .Label(64, "Top")
              .I32(96, 0));
  Add("", Rec(51).I32(0, kPathGeneral).Text(4, 28, "Bin").Var(32, kConstString, "old.txt"));
  Add("", Rec(52).I32(0, 1).Var(4, kVarLong, "Count"));
  Add("End", Rec(53)
                 .Text(0, 28, "Bin")
                 .Var(28, kConstString, "tool")
                 .Var(60, kConstString, "-x")
                 .I32(92, 1)
                 .LabelRef(96, "Err", 12));
  {
    Rec r(54);
    for (int i = 0; i < 5; ++i) r.Var(32 * i, kVarLong, "Count");
    r.I32(160, 1).LabelRef(164, "Err", 12);
    Add("", r);
  }
  {
    Rec r(55);
    r.Var(0, kVarLong, "Count").I32(32, 1).I32(40, 1).I32(60, 1);
    for (int i = 0; i < 8; ++i) {
      r.Var(64 + 32 * i, kConstString, "v" + std::to_string(i));
      r.Label(320 + 16 * i, "P" + std::to_string(i));
    }
    r.I32(480, kPathGeneral);
    for (int i = 0; i < 4; ++i) r.Text(484 + 28 * i, 28, "Bin");
    r.Text(596, 16, "Cust");
    Add("", r);
  }
  ASSERT_EQ(list().ListCount(), 52);  // every live function once
  ExpectFile("every_function_flags_on.txt");
}

TEST_F(ListingTest, FlagsOffAndLabelsEmptyWriteNoRows) {
  Add("", Rec(0).Var(0, kVarLong, "Count").Var(32, kVarLong, "Count").LabelRef(64, "", 7));
  Add("", Rec(3).Var(0, kVarLong, "Count").Var(32, kConstLong, "1").Label(68, "Top").I32(100, -1));
  // Empty targets write no row, as every empty label outside Check Path, Check File and
  // Delete File.
  Add("", Rec(3).Var(0, kVarLong, "Count").Var(32, kConstLong, "2").I32(100, 4).I32(104, 5));
  Add("", Rec(9).LabelRef(0, "", 3).LabelRef(20, "", 4));
  Add("", Rec(10).LabelRef(0, "", 3));
  Add("", Rec(5).Var(148, kConstLong, "123").I32(140, 0).I32(144, 0));
  Add("", Rec(7).Var(0, kVarLong, "Count").I32(104, 5));
  Add("", Rec(12).Text(0, 28, "Msg").Var(28, kVarString, "Name").I32(60, 10).I32(148, 2));
  Add("", Rec(16).Var(0, kVarLong, "Count").Text(124, 28, "Digits"));
  // Three names end exactly at a full row: no row is left over.
  Add("", Rec(17)
              .Var(0, kVarLong, "A")
              .Var(32, kVarLong, "B")
              .Var(64, kVarLong, "C")
              .Text(808, 28, "Out")
              .Var(836, kConstString, "f"));
  Add("", Rec(17).Text(808, 28, "Out").Var(836, kConstString, "f").I32(800, 4).I32(804, 2));
  Add("", Rec(18).Text(0, 28, "Vox").Text(28, 16, "f1").Text(44, 16, "f2"));
  // A gap in the list: the name before it gets no " & ".
  Add("", Rec(18).Text(0, 28, "Vox").Text(28, 16, "f1").Text(60, 16, "f3"));
  Add("", Rec(19).I32(0, 2));
  Add("", Rec(20).I32(384, 10).I32(388, 1));
  Add("", Rec(21).Text(0, 28, "Msg").Var(28, kConstString, "x"));
  Add("", Rec(36).I32(0, 0).Var(4, kVarLong, "Count"));
  Add("", Rec(49).I32(0, kPathExport).Text(4, 28, "Out"));
  Add("", Rec(53).Text(0, 28, "Bin").Var(28, kConstString, "tool"));
  {
    Rec r(54);
    for (int i = 0; i < 5; ++i) r.Var(32 * i, kConstLong, std::to_string(i));
    Add("", r);
  }
  ExpectFile("flags_off_labels_empty.txt");
}

// Every live function with every number, flag and selection 0 and every label and name
// empty (a path type is chosen where the function has one).
TEST_F(ListingTest, EveryFunctionWithFlagsOffAndLabelsEmpty) {
  int count = 0;
  for (int f = 0; f < kFuncCount; ++f) {
    if (!IsLiveFunction(f)) continue;
    Rec r(f);
    if (f == 1 || f == 49 || f == 50 || f == 51) r.I32(0, kPathMessage);
    if (f == 55) r.I32(480, kPathGeneral);
    Add("", r);
    ++count;
  }
  ASSERT_EQ(count, 52);
  ExpectFile("every_function_flags_off.txt");
}

TEST_F(ListingTest, EmptyDeclarationsKeepTheirHeadings) {
  ResetDocument();
  ApplFileName = "x.kqx";
  Add("", Rec(4).I32(0, 10));
  ExpectRows({"Date/Time: 2026-11-22 10:00:00", "File Name: x.kqx",
              "Compiled : No            KQEdit V3.10.00           KQX File Format V3.10", "",
              "Declared Variables:", "", "", "Declared Database Tables:", "",
              "Voice/Response Application Code:", "", Pre(0, "", "Delay"), In("10ms")});
}

TEST_F(ListingTest, TextFileClosesEveryRowWithCarriageReturnAndLineFeed) {
  ResetDocument();
  ApplFileName = "x.kqx";
  const std::string text = ListingText(kNow);
  EXPECT_EQ(text.substr(0, 32), "Date/Time: 2026-11-22 10:00:00\r\n");
  EXPECT_EQ(text.substr(text.size() - 4), "\r\n\r\n");
}

TEST_F(ListingTest, CallOutsUnfilledCaptionsComeOutAsBlanks) {
  Rec r(5);
  r.Label(0, "Busy").I32(112, 0).Label(16 * 5, "Five").I32(112 + 4 * 5, 7);
  r.Label(16 * 6, "Six").I32(112 + 4 * 6, 0);
  Add("", r.Var(148, kConstLong, "1"));
  const std::string text = ListingText(kNow);
  EXPECT_EQ(text.find('\0'), std::string::npos);
  EXPECT_NE(text.find(In("BusyTone=   Busy -> 0000\r\n")), std::string::npos);
  EXPECT_NE(text.find(In(std::string(9, ' ') + "   Five -> 0007\r\n")), std::string::npos);
  EXPECT_NE(text.find(In(std::string(9, ' ') + "   Six -> 0000\r\n")), std::string::npos);
}

TEST_F(ListingTest, ListingFileNameLosesTheLastThreeCharacters) {
  EXPECT_EQ(ListingFileName("/a/app.kqx"), "/a/app.TXT");
  EXPECT_EQ(ListingFileName("/a/app"), "/a/TXT");
  EXPECT_EQ(ListingFileName("ab"), "TXT");
}

TEST_F(ListingTest, ValueOutsideItsNameTableStopsTheListing) {
  Add("", Rec(4).I32(0, 1));
  Add("", Rec(43).I32(0, 7));
  Add("", Rec(4).I32(0, 2));
  std::vector<std::string> rows;
  EXPECT_THROW(WriteListing([&](const std::string& r) { rows.push_back(r); }, kNow), ListingFault);
  EXPECT_EQ(rows.back(), Pre(1, "", "On/Off Hook"));
}

TEST_F(ListingTest, IllegalFunctionNumberEndsTheProgram) {
  Add("", Rec(4));
  LineTable[0].LineFuncNo = 42;
  try {
    Rows();
    FAIL();
  } catch (const ui::ProgramEnded& e) {
    EXPECT_STREQ(e.what(), "Illegal Function Number in frmEdit - mnuPrint.");
  }
}

}  // namespace
}  // namespace kq::test
