// One reader of comma-separated text for every file the programs take as CSV: fields in
// double quotes with "" for a quote inside, commas and line breaks in quoted fields, LF or
// CRLF line ends, a last line with or without its line break. Standard library only.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kq::text {

struct CsvOptions {
  // Blanks and tabs around an unquoted field are dropped, and a line of blanks is blank.
  // Otherwise every byte between the commas is kept.
  bool trimUnquoted = false;
  // The line an open quote is reported on: where its row began, or where the quote is.
  enum class FaultLine { RowStart, QuoteStart } faultLine = FaultLine::RowStart;
};

struct CsvRow {
  std::vector<std::string> fields;
  size_t line = 0;  // the line the row begins on, from 1
};

struct CsvFault {
  enum class Kind { UnclosedQuote } kind = Kind::UnclosedQuote;
  size_t line = 0;
};

struct CsvRead {
  std::vector<CsvRow> rows;  // blank lines left out; none when there is a fault
  std::optional<CsvFault> fault;
};

// Reads `csv`. A leading UTF-8 byte order mark is skipped. A quote opens a quoted field only
// where nothing but blanks stands before it in the field; elsewhere it is a character of the
// field, and so are the characters between a closing quote and the next comma. A carriage
// return outside quotes is dropped; inside quotes it is kept, with the line break.
CsvRead ReadCsv(std::string_view csv, const CsvOptions& options = {});

}  // namespace kq::text
