// The CSV reader: quoting, line ends and the line each row and fault is counted on, and the
// two options (trimming unquoted fields; the line an open quote is reported on).
#include "text/csv.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kq::text {
namespace {

using Fields = std::vector<std::string>;

const CsvOptions kKeep{};
const CsvOptions kTrim{.trimUnquoted = true};

std::vector<Fields> FieldsOf(const CsvRead& read) {
  std::vector<Fields> out;
  for (const CsvRow& row : read.rows) out.push_back(row.fields);
  return out;
}

std::vector<size_t> LinesOf(const CsvRead& read) {
  std::vector<size_t> out;
  for (const CsvRow& row : read.rows) out.push_back(row.line);
  return out;
}

TEST(Csv, QuotedFieldsHoldQuotesCommasAndLineBreaks) {
  for (const CsvOptions& options : {kKeep, kTrim}) {
    const CsvRead read =
        ReadCsv("\"say \"\"hi\"\"\",\"a, b\"\n\"two\nlines\",\"\"\n\"cr\r\nlf\",x", options);
    ASSERT_FALSE(read.fault);
    EXPECT_EQ(FieldsOf(read),
              (std::vector<Fields>{{"say \"hi\"", "a, b"}, {"two\nlines", ""}, {"cr\r\nlf", "x"}}));
    EXPECT_EQ(LinesOf(read), (std::vector<size_t>{1, 2, 4}));
  }
}

TEST(Csv, LineEndsBlankLinesAndEmptyFields) {
  // CRLF and LF alike, a last line without its break, blank lines left out but counted.
  const CsvRead read = ReadCsv("a,b\r\n\r\n\n1,\r\n,\n\"\"\nlast", kKeep);
  ASSERT_FALSE(read.fault);
  EXPECT_EQ(FieldsOf(read), (std::vector<Fields>{{"a", "b"}, {"1", ""}, {"", ""}, {""}, {"last"}}));
  EXPECT_EQ(LinesOf(read), (std::vector<size_t>{1, 4, 5, 6, 7}));
  EXPECT_EQ(FieldsOf(ReadCsv("a\n", kKeep)), FieldsOf(ReadCsv("a", kKeep)));
  for (const char* nothing : {"", "\n\n", "\r\n", "\xEF\xBB\xBF"}) {
    const CsvRead empty = ReadCsv(nothing, kKeep);
    EXPECT_TRUE(empty.rows.empty() && !empty.fault) << nothing;
  }
}

TEST(Csv, ALeadingByteOrderMarkIsNotPartOfTheFirstField) {
  EXPECT_EQ(FieldsOf(ReadCsv("\xEF\xBB\xBFid,name\n", kKeep)),
            (std::vector<Fields>{{"id", "name"}}));
  EXPECT_EQ(FieldsOf(ReadCsv("\xEF\xBB\xBF\"q\"\n", kTrim)), (std::vector<Fields>{{"q"}}));
  // Only at the very beginning.
  EXPECT_EQ(FieldsOf(ReadCsv("a\n\xEF\xBB\xBF"
                             "b\n",
                             kKeep)),
            (std::vector<Fields>{{"a"},
                                 {"\xEF\xBB\xBF"
                                  "b"}}));
}

TEST(Csv, TrimmingDropsTheBlanksAroundUnquotedFieldsOnly) {
  const char* csv = " a\t, b b ,  \" q \"  \n \t \nx,\t\n";
  EXPECT_EQ(FieldsOf(ReadCsv(csv, kTrim)), (std::vector<Fields>{{"a", "b b", " q   "}, {"x", ""}}));
  EXPECT_EQ(LinesOf(ReadCsv(csv, kTrim)), (std::vector<size_t>{1, 3}));
  // Kept, a line of blanks is a row of one field.
  EXPECT_EQ(FieldsOf(ReadCsv(csv, kKeep)),
            (std::vector<Fields>{{" a\t", " b b ", "   q   "}, {" \t "}, {"x", "\t"}}));
}

TEST(Csv, AQuoteOpensAFieldOnlyAtItsStart) {
  for (const CsvOptions& options : {kKeep, kTrim}) {
    // Inside a field a quote is a character: the rows after it are not swallowed.
    const CsvRead read = ReadCsv("5\" disk,1\n2,a\"b\"\n\"ab\"cd,\"a\" \"b\"\n", options);
    ASSERT_FALSE(read.fault);
    EXPECT_EQ(FieldsOf(read),
              (std::vector<Fields>{{"5\" disk", "1"}, {"2", "a\"b\""}, {"abcd", "a \"b\""}}));
  }
}

TEST(Csv, AnOpenQuoteIsAFaultOnTheLineTheOptionsChoose) {
  const char* csv = "a,b\n\"x\ny\",\"open\nmore\n";
  CsvOptions atQuote = kTrim;
  atQuote.faultLine = CsvOptions::FaultLine::QuoteStart;
  const CsvRead byRow = ReadCsv(csv, kTrim);
  const CsvRead byQuote = ReadCsv(csv, atQuote);
  ASSERT_TRUE(byRow.fault && byQuote.fault);
  EXPECT_EQ(byRow.fault->kind, CsvFault::Kind::UnclosedQuote);
  EXPECT_EQ(byRow.fault->line, 2u);
  EXPECT_EQ(byQuote.fault->line, 3u);
  EXPECT_TRUE(byRow.rows.empty() && byQuote.rows.empty());  // nothing half read
  EXPECT_EQ(ReadCsv("\"", kKeep).fault->line, 1u);
}

}  // namespace
}  // namespace kq::text
