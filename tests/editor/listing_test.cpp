// The listing: header, declarations and the rows of every live function, compared byte for
// byte with text written out from the row tables. Two documents: one with every flag on
// and every label filled, one with flags off and labels empty.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "document/state.h"
#include "editor/listing.h"
#include "tests/editor/doc_builder.h"

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
  std::vector<std::string> Head(bool compiled) {
    return {
        "Date/Time: 2026-11-22 10:00:00",
        "File Name: /tmp/app.kqx",
        std::string("Compiled : ") + (compiled ? "Yes" : "No ") +
            "           KQEdit V3.10.00           KQX File Format V3.10",
        "",
        "Declared Variables:",
        "",
        "Count As Long      ",
        "Name  As String    ",
        "Rate  As Double    ",
        "",
        "Declared Database Tables:",
        "",
        "Database table name = Cust",
        "Variable(001) = Count As Long      ",
        "Variable(003) = Name As String    ",
        "",
        "Declared Export Paths:",
        "",
        "Out = /out/",
        "",
        "Declared Message Paths:",
        "",
        "Msg  = /msg/",
        "Msg2 = /msg2/",
        "",
        "Declared Number Paths:",
        "",
        "Digits = /num/",
        "",
        "Declared Voice Paths:",
        "",
        "Vox = /vox/",
        "",
        "Declared General Paths:",
        "",
        "Bin = /bin/",
        "",
        "Voice/Response Application Code:",
        "",
    };
  }
  std::vector<std::string> Rows() {
    std::vector<std::string> rows;
    WriteListing([&](const std::string& r) { rows.push_back(r); }, kNow);
    return rows;
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
  std::vector<std::string> x = Head(true);
  auto add = [&](const std::string& label, const Rec& r, std::vector<std::string> rows) {
    const int line = list().ListCount();
    Add(label, r);
    x.push_back(Pre(line, label, RTrimZ(View(FuncNames[r.funcNo]))));
    for (auto& row : rows) x.push_back(In(row));
  };
  const std::string err = "Error label = Err -> 0012";
  add("Top", Rec(0).Var(0, kVarLong, "Count").Var(32, kConstLong, "5").LabelRef(64, "Err", 12),
      {"Count = 5", err});
  add("", Rec(1).I32(0, kPathMessage).Text(4, 28, "Msg").Text(32, 28, "Msg2"),
      {"Message        :  Msg = Msg2"});
  add("",
      Rec(2)
          .Var(0, kVarDouble, "Rate")
          .Var(32, kVarDouble, "Rate")
          .Var(64, kConstDouble, "1.5")
          .I32(96, 2)
          .LabelRef(100, "Err", 12),
      {"Rate = Rate * 1.5", err});
  add("",
      Rec(3)
          .Var(0, kVarLong, "Count")
          .Var(32, kConstLong, "3")
          .I32(64, 4)
          .Label(68, "Top")
          .Label(84, "End")
          .I32(100, 0)
          .I32(104, 51),
      {"IF Count <= 3 THEN", "Top -> 0000", "ELSE", "End -> 0051", "END IF"});
  add("", Rec(4).I32(0, 250), {"250ms"});
  {
    Rec r(5);
    for (int i = 0; i < 7; ++i) r.Label(16 * i, "C" + std::to_string(i)).I32(112 + 4 * i, i);
    r.I32(140, 5).I32(144, 1).Var(148, kVarString, "Name");
    add("", r,
        {"Name", "BusyTone=   C0 -> 0000", "CallAnsw=   C1 -> 0001", "NoCall=     C2 -> 0002",
         "Operator=   C3 -> 0003", "NoAnsw=     C4 -> 0004", std::string(9, '\0') + "   C5 -> 0005",
         std::string(9, '\0') + "   C6 -> 0006", "Number of rings = 5",
         "Wait for dial tone = Yes"});
  }
  add("", Rec(6).I32(0, 3).Var(4, kVarString, "Name"), {"Name = YYMMDD   "});
  add("",
      Rec(7)
          .Var(0, kVarString, "Name")
          .I32(32, 5)
          .I32(36, 12)
          .I32(40, 1)
          .LabelRef(44, "Err", 12)
          .LabelRef(64, "Err", 12)
          .LabelRef(84, "Err", 12)
          .I32(104, 10)
          .I32(108, 1),
      {"Name", "Number of keys  = 4     ", "Termination key = #     ", "Disable hangup detection",
       "Hangup  label = Err -> 0012", "Error   label = Err -> 0012", "Timeout label = Err -> 0012",
       "Timeout = 10sec.", "Terminate = Yes"});
  add("", Rec(8).I32(0, 1).Var(4, kVarString, "Name"), {"Name = HHMMSS   "});
  add("", Rec(9).LabelRef(0, "Top", 0).LabelRef(20, "Err", 12), {"Top -> 0000", err});
  add("", Rec(10).LabelRef(0, "End", 51), {"End -> 0051"});
  add("", Rec(11).Var(0, kVarLong, "Count").I32(32, 1).I32(36, 6), {"1 <= Count <= 6"});
  add("",
      Rec(12)
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
          .I32(148, 3),
      {"Msg\\rec.vox", "Max. recording time = 30sec.", "Sound file counter active", "Append",
       "Beep before recording", "Don't record silence", "Beep during silence",
       "Disable hangup detection", "Hangup label = Err -> 0012", err, "Silence label = Err -> 0012",
       "Silence timeout = 3sec."});
  add("", Rec(13).Text(0, 52, "Hello world"), {"Hello world" + std::string(41, ' ')});
  add("", Rec(14).I32(0, -1).LabelRef(4, "Err", 12), {"-1", err});
  add("", Rec(15).I32(0, 150), {"150ms"});
  add("",
      Rec(16)
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
          .Text(168, 16, "b.vox"),
      {"Count\\Digits  Layout = 1   ", "After period = Vox\\a.vox", "At the end = Vox\\b.vox",
       "Disable hangup detection", "Hangup label = Err -> 0012"});
  add("",
      Rec(17)
          .Var(0, kVarLong, "Count")
          .Var(32, kVarString, "Name")
          .Var(64, kVarDouble, "Rate")
          .Var(96, kVarLong, "Count")
          .I32(800, 2)
          .I32(804, 0)
          .Text(808, 28, "Out")
          .Var(836, kConstString, "x.csv")
          .LabelRef(868, "Err", 12),
      {"Out\\x.csv", "Count & Name & Rate & ", "Count", "Field separator = Space",
       "Text delimitor  = \"   ", err});
  add("",
      Rec(18)
          .Text(0, 28, "Vox")
          .Text(28, 16, "f1")
          .Text(44, 16, "f2")
          .Text(60, 16, "f3")
          .I32(108, 1)
          .LabelRef(112, "Err", 12)
          .LabelRef(132, "Err", 12),
      {"Vox\\f1 & f2 & ", "f3", "Disable hangup detection", "Hangup label = Err -> 0012",
       "Error label  = Err -> 0012"});
  add("",
      Rec(19)
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
          .Var(88, kVarString, "Name"),
      {"Number of rings = 2", "At 24.5  o'clock goto Top -> 0000", "Caller id. tone   = 1",
       "Caller id. number = Name", "FSK", "Update system time", "Called id. tone   = 0",
       "Called id. number = Name"});
  add("",
      Rec(20)
          .I32(380, 1)
          .Label(0, "K0")
          .I32(304, 0)
          .Label(160, "K10")
          .I32(344, 10)
          .Label(288, "K18")
          .I32(376, 18)
          .I32(384, 7)
          .I32(388, 0),
      {"Disable hangup detection", "0=     K0 -> 0000", "#=     K10 -> 0010", "T/E=   K18 -> 0018",
       "Timeout = 7sec.", "Terminate = No "});
  add("",
      Rec(21)
          .Text(0, 28, "Msg")
          .Var(28, kVarString, "Name")
          .I32(60, 1)
          .I32(64, 1)
          .I32(68, 1)
          .LabelRef(72, "Err", 12)
          .LabelRef(92, "Err", 12),
      {"Msg\\Name", "Sound file counter active", "Rate and gain control",
       "Disable hangup detection", "Hangup label = Err -> 0012", err});
  add("", Rec(24).Text(0, 16, "Cust").I32(16, 3).LabelRef(20, "Err", 12).LabelRef(40, "Err", 12),
      {"Cust", "Timeout     = 3sec.", "Busy  label = Err -> 0012", err});
  add("", Rec(25).Text(0, 16, "Cust").LabelRef(16, "Err", 12),
      {"Cust", "Error  label = Err -> 0012"});
  add("", Rec(26).Text(0, 16, "Cust").LabelRef(16, "Err", 12),
      {"Cust", "Error  label = Err -> 0012"});
  add("",
      Rec(27)
          .Text(0, 16, "Cust")
          .LabelRef(16, "Err", 12)
          .I32(36, 1)
          .I32(56, 0)
          .Var(76, kVarLong, "Count")
          .I32(44, 3)
          .I32(64, 1)
          .Var(140, kConstString, "x"),
      {"Cust", "Error   label = Err -> 0012", "Field table nr. = 1 = Count",
       "Field table nr. = 3 <> x"});
  const std::vector<std::string> nav = {"Cust", "Error   label = Err -> 0012",
                                        "No Data label = Err -> 0012"};
  add("", Rec(28).Text(0, 16, "Cust").LabelRef(16, "Err", 12).LabelRef(36, "Err", 12), nav);
  add("",
      Rec(29)
          .Text(0, 16, "Cust")
          .LabelRef(16, "Err", 12)
          .I32(36, 1)
          .I32(56, 3)
          .Var(76, kConstLong, "9"),
      {"Cust", err, "Field table nr. = 1 > 9"});
  add("", Rec(30).Text(0, 16, "Cust").LabelRef(16, "Err", 12).LabelRef(36, "Err", 12),
      {"Cust", "Error  label  = Err -> 0012"});
  add("", Rec(31).Text(0, 16, "Cust").LabelRef(16, "Err", 12).LabelRef(36, "Err", 12), nav);
  add("", Rec(32).Text(0, 16, "Cust").LabelRef(16, "Err", 12).LabelRef(36, "Err", 12), nav);
  add("", Rec(33).Text(0, 16, "Cust").LabelRef(16, "Err", 12).LabelRef(36, "Err", 12), nav);
  add("",
      Rec(34)
          .Text(0, 16, "Cust")
          .LabelRef(16, "Err", 12)
          .I32(40, 2)
          .I32(60, 5)
          .Var(108, kVarLong, "Count"),
      {"Cust", "Error   label = Err -> 0012", "Field table nr. = 2 >= Count"});
  add("", Rec(36).I32(0, 1).Var(4, kVarLong, "Count"),
      {"Count   1=Sunday, 2=Monday ... 7=Saturday"});
  add("",
      Rec(37).Var(0, kVarString, "Name").I32(32, 1).LabelRef(36, "Err", 12).LabelRef(56, "Err", 12),
      {"Name", "Yes", "No dial tone label = Err -> 0012", err});
  add("", Rec(38).Text(0, 16, "Cust").LabelRef(16, "Err", 12).Var(36, kVarLong, "Count"),
      {"Cust  Record number = Count", "Error  label = Err -> 0012"});
  add("", Rec(39).Text(0, 16, "Cust").LabelRef(16, "Err", 12).Var(36, kVarLong, "Count"),
      {"Cust", "Variable Count = No. of records in database table", "Error  label = Err -> 0012"});
  add("", Rec(40).Text(0, 16, "Cust").LabelRef(16, "Err", 12),
      {"Cust", "Error  label = Err -> 0012"});
  add("", Rec(41).Var(0, kVarLong, "Count"), {"Count"});
  add("", Rec(43).I32(0, 2), {"Shutdown "});
  add("", Rec(44).I32(0, 2).Var(4, kVarString, "Name").Var(36, kConstString, "abc"),
      {"abc = TRIM( Name )", "A = Leading & trailing "});
  add("", Rec(45).Var(0, kVarLong, "Count").Var(32, kVarString, "Name"), {"Count = LEN( Name )"});
  add("", Rec(46).Var(0, kVarString, "Name").Var(32, kVarString, "Name").Var(64, kConstLong, "3"),
      {"Name = RIGHT( Name , 3 )"});
  add("", Rec(47).Var(0, kVarString, "Name").Var(32, kVarString, "Name").Var(64, kConstLong, "3"),
      {"Name = LEFT( Name , 3 )"});
  add("", Rec(48).Var(0, kVarLong, "Count").Var(32, kVarString, "Name").Var(64, kConstString, "ab"),
      {"Count = INSTR( Name , ab )"});
  add("",
      Rec(49)
          .I32(0, kPathVoice)
          .Text(4, 28, "Vox")
          .Label(32, "Top")
          .I32(64, 0)
          .Label(48, "End")
          .I32(68, 51),
      {"Path Type = Voice          ", "IF Vox DO NOT EXISTS THEN", "Top -> 0000", "ELSE",
       "End -> 0051", "END IF"});
  add("",
      Rec(50)
          .I32(0, kPathMessage)
          .Text(4, 28, "Msg")
          .Var(32, kVarString, "Name")
          .Label(64, "Top")
          .I32(96, 0),
      {"Path Type = Message        ", "Path Variable = Msg", "IF Name DO NOT EXISTS THEN",
       "Top -> 0000", "ELSE", "CONTINUE", "END IF"});
  add("", Rec(51).I32(0, kPathGeneral).Text(4, 28, "Bin").Var(32, kConstString, "old.txt"),
      {"Path Type      = General        ", "Path Variable  = Bin", "File to delete = old.txt",
       "IF THE FILE WASN'T DELETED THEN", "CONTINUE", "ELSE", "CONTINUE", "END IF"});
  add("", Rec(52).I32(0, 1).Var(4, kVarLong, "Count"), {"Set Counter   Variable = Count"});
  add("End",
      Rec(53)
          .Text(0, 28, "Bin")
          .Var(28, kConstString, "tool")
          .Var(60, kConstString, "-x")
          .I32(92, 1)
          .LabelRef(96, "Err", 12),
      {"Path Variable = Bin", "File Name     = tool", "Parameters    = -x",
       "Wait for termination of program = Yes", err});
  {
    Rec r(54);
    for (int i = 0; i < 5; ++i) r.Var(32 * i, kVarLong, "Count");
    r.I32(160, 1).LabelRef(164, "Err", 12);
    add("", r,
        {"H.100 - Board Number  = Count", "From Stream   = Count", "From Timeslot = Count",
         "To Stream     = Count", "To Timeslot   = Count", err});
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
    add("", r,
        {"Function=Count",
         "Check0=Yes",
         "Check1=No ",
         "Check2=Yes",
         "Check3=No ",
         "Check4=No ",
         "Check5=No ",
         "Check6=No ",
         "Check7=Yes",
         "Variable0=v0",
         "Variable1=v1",
         "Variable2=v2",
         "Variable3=v3",
         "Variable4=v4",
         "Variable5=v5",
         "Variable6=v6",
         "Variable7=v7",
         "Label0=P0",
         "Label1=P1",
         "Label2=P2",
         "Label3=P3",
         "Label4=P4",
         "Label5=P5",
         "Label6=P6",
         "Label7=P7",
         "Path Type = General        ",
         "Path Variable 0= Bin",
         "Path Variable 1= Bin",
         "Path Variable 2= Bin",
         "Path Variable 3= Bin",
         "Database table name = Cust"});
  }
  ASSERT_EQ(list().ListCount(), 52);  // every live function once
  ExpectRows(x);
}

TEST_F(ListingTest, FlagsOffAndLabelsEmptyWriteNoRows) {
  std::vector<std::string> x = Head(false);
  auto add = [&](const Rec& r, std::vector<std::string> rows) {
    const int line = list().ListCount();
    Add("", r);
    x.push_back(Pre(line, "", RTrimZ(View(FuncNames[r.funcNo]))));
    for (auto& row : rows) x.push_back(In(row));
  };
  add(Rec(0).Var(0, kVarLong, "Count").Var(32, kVarLong, "Count").LabelRef(64, "", 7),
      {"Count = Count"});
  add(Rec(3).Var(0, kVarLong, "Count").Var(32, kConstLong, "1").Label(68, "Top").I32(100, -1),
      {"IF Count = 1 THEN", "Top -> -0001", "END IF"});
  add(Rec(5).Var(148, kConstLong, "123").I32(140, 0).I32(144, 0),
      {"123", "Wait for dial tone = No "});
  add(Rec(7).Var(0, kVarLong, "Count").I32(104, 5),
      {"Count", "Number of keys  = Ignore", "Termination key = Ignore", "Timeout = 5sec.",
       "Terminate = No "});
  add(Rec(12).Text(0, 28, "Msg").Var(28, kVarString, "Name").I32(60, 10).I32(148, 2),
      {"Msg\\Name", "Max. recording time = 10sec.", "Silence timeout = 2sec."});
  add(Rec(16).Var(0, kVarLong, "Count").Text(124, 28, "Digits"),
      {"Count\\Digits  Layout = All ", "After period = \\", "At the end = \\"});
  // Three names end exactly at a full row: no row is left over.
  add(Rec(17)
          .Var(0, kVarLong, "A")
          .Var(32, kVarLong, "B")
          .Var(64, kVarLong, "C")
          .Text(808, 28, "Out")
          .Var(836, kConstString, "f"),
      {"Out\\f", "A & B & C", "Field separator = ,    ", "Text delimitor  = \"   "});
  add(Rec(17).Text(808, 28, "Out").Var(836, kConstString, "f").I32(800, 4).I32(804, 2),
      {"Out\\f", "Field separator = None ", "Text delimitor  = None"});
  add(Rec(18).Text(0, 28, "Vox").Text(28, 16, "f1").Text(44, 16, "f2"), {"Vox\\f1 & f2"});
  // A gap in the list: the name before it gets no " & ".
  add(Rec(18).Text(0, 28, "Vox").Text(28, 16, "f1").Text(60, 16, "f3"), {"Vox\\f1f3"});
  add(Rec(19).I32(0, 2), {"Number of rings = 2"});
  add(Rec(20).I32(384, 10).I32(388, 1), {"Timeout = 10sec.", "Terminate = Yes"});
  add(Rec(21).Text(0, 28, "Msg").Var(28, kConstString, "x"), {"Msg\\x"});
  add(Rec(36).I32(0, 0).Var(4, kVarLong, "Count"), {"Count   1=Monday, 2=Tuesday ... 7=Sunday"});
  add(Rec(49).I32(0, kPathExport).Text(4, 28, "Out"),
      {"Path Type = Export         ", "IF Out DO NOT EXISTS THEN", "CONTINUE", "ELSE", "CONTINUE",
       "END IF"});
  add(Rec(53).Text(0, 28, "Bin").Var(28, kConstString, "tool"),
      {"Path Variable = Bin", "File Name     = tool", "Wait for termination of program = No "});
  {
    Rec r(54);
    for (int i = 0; i < 5; ++i) r.Var(32 * i, kConstLong, std::to_string(i));
    add(r, {"MVIP - Board Number  = 0", "From Stream   = 1", "From Timeslot = 2",
            "To Stream     = 3", "To Timeslot   = 4"});
  }
  ExpectRows(x);
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
