// The name tables are compile-time constants; their bytes are those the tables had when
// they were filled row by row at start: name, NUL, blanks for the function names, the text
// padded with blanks and no NUL for the others.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "document/catalogue.h"
#include "document/field_empty.h"
#include "document/text.h"

namespace {

using namespace kq;

// A table filled at run time: rows of width W, all zero until a row is filled.
template <size_t R, size_t W>
struct Filled {
  std::string bytes = std::string(R * W, '\0');
  void Pad(size_t row, const std::string& text) {
    std::string padded = text.substr(0, W);
    padded.resize(W, ' ');
    bytes.replace(row * W, W, padded);
  }
  void Pad(const std::vector<std::string>& texts, size_t first = 0) {
    for (size_t i = 0; i < texts.size(); ++i) Pad(first + i, texts[i]);
  }
  void Numbers(size_t first, size_t count, int value) {
    for (size_t i = 0; i < count; ++i) Pad(first + i, std::to_string(value + int(i)));
  }
  bool Same(const char (&table)[R][W]) const { return bytes == std::string(&table[0][0], R * W); }
};

TEST(NameTables, FunctionNamesHoldNameNulAndBlanks) {
  for (int f = 0; f < kFuncCount; ++f) {
    const std::string row(FuncNames[f], 17);
    const size_t nul = row.find('\0');
    ASSERT_NE(std::string::npos, nul) << f;
    EXPECT_EQ(std::string(16 - nul, ' '), row.substr(nul + 1)) << f;
    EXPECT_EQ(IsLiveFunction(f), nul > 0) << f;
  }
  EXPECT_EQ(std::string("Assign\0          ", 17), std::string(FuncNames[0], 17));
  EXPECT_EQ(std::string("Sound File Count\0", 17), std::string(FuncNames[52], 17));
  EXPECT_EQ(std::string("Prototype\0       ", 17), std::string(FuncNames[55], 17));
}

TEST(NameTables, TablesHoldPaddedTextsWithoutNul) {
  Filled<3, 10> data;
  data.Pad({"Long", "Double", "String"});
  EXPECT_TRUE(data.Same(DataTypeNames));
  Filled<5, 15> path;
  path.Pad({"Export", "Message", "Number", "Voice", "General"});
  EXPECT_TRUE(path.Same(PathTypeNames));
  Filled<2, 3> yesNo;
  yesNo.Pad({"No", "Yes"});
  EXPECT_TRUE(yesNo.Same(YesNoNames));
  Filled<7, 9> callOut;  // rows 5 and 6 stay zero
  callOut.Pad({"BusyTone=", "CallAnsw=", "NoCall=", "Operator=", "NoAnsw="});
  EXPECT_TRUE(callOut.Same(CallOutTags));
  Filled<22, 6> keyCount;
  keyCount.Pad(0, "Ignore");
  keyCount.Numbers(1, 21, 0);
  EXPECT_TRUE(keyCount.Same(KeyCountNames));
  Filled<17, 6> termKey;
  termKey.Pad(0, "Ignore");
  termKey.Numbers(1, 10, 0);
  termKey.Pad({"*", "#", "A", "B", "C", "D"}, 11);
  EXPECT_TRUE(termKey.Same(TermKeyNames));
  Filled<24, 2> hour;
  hour.Numbers(0, 24, 1);
  EXPECT_TRUE(hour.Same(HourNames));
  Filled<60, 2> minute;
  minute.Numbers(0, 60, 0);
  EXPECT_TRUE(minute.Same(MinuteNames));
  Filled<19, 4> keyTags;
  for (int i = 0; i < 10; ++i) keyTags.Pad(i, std::to_string(i) + "=");
  keyTags.Pad({"#=", "*=", "A=", "B=", "C=", "D=", "H=", "U=", "T/E="}, 10);
  EXPECT_TRUE(keyTags.Same(KeyTags));
  Filled<3, 4> layout, delim;
  layout.Pad({"All", "1", "2"});
  delim.Pad({"\"", "'", "None"});
  EXPECT_TRUE(layout.Same(SayLayoutNames));
  EXPECT_TRUE(delim.Same(TextDelimNames));
  Filled<5, 5> sep;
  sep.Pad({",", ";", "Space", "Tab", "None"});
  EXPECT_TRUE(sep.Same(FieldSepNames));
  Filled<2, 4> tone;
  tone.Pad({"DTMF", "FSK"});
  EXPECT_TRUE(tone.Same(ToneTypeNames));
  Filled<9, 9> date;
  date.Pad({"YYYYMMDD", "YYYYMM", "YYYY", "YYMMDD", "YYMM", "YY", "MMDD", "MM", "DD"});
  EXPECT_TRUE(date.Same(DateFormatNames));
  Filled<10, 9> time;
  time.Pad({"HHMMSSXX", "HHMMSS", "HHMM", "HH", "MM", "SS", "XX", "SSXX", "MMSSXX", "MMSS"});
  EXPECT_TRUE(time.Same(TimeFormatNames));
  Filled<3, 9> hook;
  hook.Pad({"On hook", "Off hook", "Shutdown"});
  EXPECT_TRUE(hook.Same(HookActionNames));
  Filled<3, 19> trim;
  trim.Pad({"Leading", "Trailing", "Leading & trailing"});
  EXPECT_TRUE(trim.Same(TrimActionNames));
  Filled<2, 12> counter;
  counter.Pad({"Get Counter", "Set Counter"});
  EXPECT_TRUE(counter.Same(CounterActionNames));
}

}  // namespace

namespace {

// The quick emptiness test of the table scans answers as FieldEmpty for every width, the
// widths above its run of blanks included, and wherever the first non-blank stands.
TEST(FieldEmptiness, QuickTestAgreesWithTheTrimmedText) {
  for (size_t width : {1u, 2u, 16u, 28u, 260u, 1024u, 1025u, 2100u}) {
    std::string field(width, ' ');
    field[0] = '\0';
    EXPECT_TRUE(EmptyField(field.data(), width)) << width;
    EXPECT_EQ(FieldEmpty(field), EmptyField(field.data(), width)) << width;
    for (size_t at : {size_t{0}, size_t{1}, width / 2, width - 1}) {
      for (char c : {'x', '\0', '\t'}) {
        std::string other = field;
        other[at] = c;
        EXPECT_EQ(FieldEmpty(other), EmptyField(other.data(), width)) << width << " " << at;
      }
    }
  }
  EXPECT_FALSE(EmptyField("", 0));
}

}  // namespace
