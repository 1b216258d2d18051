#include "text/csv.h"

#include <algorithm>

namespace kq::text {

namespace {

// A carriage return reaches a field only inside quotes; before a second quote it is blank.
bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r';
}

}  // namespace

CsvRead ReadCsv(std::string_view csv, const CsvOptions& options) {
  if (csv.starts_with("\xEF\xBB\xBF")) csv.remove_prefix(3);
  const bool trim = options.trimUnquoted;
  CsvRead read;
  CsvRow row{{}, 1};
  std::string field;
  bool quoted = false, hadQuote = false, any = false;
  size_t line = 1, quoteLine = 0;
  auto endField = [&] {
    if (trim && !hadQuote) {
      field.erase(std::find_if_not(field.rbegin(), field.rend(), IsBlank).base(), field.end());
      field.erase(field.begin(), std::find_if_not(field.begin(), field.end(), IsBlank));
    }
    row.fields.push_back(std::move(field));
    field.clear();
    hadQuote = false;
  };
  auto endRow = [&] {
    endField();
    if (any) read.rows.push_back(std::move(row));
    row = CsvRow{{}, line + 1};
    any = false;
  };
  for (size_t i = 0; i < csv.size(); ++i) {
    const char c = csv[i];
    if (quoted) {
      if (c != '"') {
        if (c == '\n') ++line;
        field += c;
      } else if (i + 1 < csv.size() && csv[i + 1] == '"') {
        field += '"';
        ++i;
      } else {
        quoted = false;
      }
    } else if (c == '"' && std::all_of(field.begin(), field.end(), IsBlank)) {
      if (trim) field.clear();
      quoted = hadQuote = any = true;
      quoteLine = line;
    } else if (c == ',') {
      any = true;
      endField();
    } else if (c == '\n') {
      endRow();
      ++line;
    } else if (c != '\r') {
      any = any || !trim || !IsBlank(c);
      field += c;
    }
  }
  if (quoted) {
    const bool atQuote = options.faultLine == CsvOptions::FaultLine::QuoteStart;
    return {{}, CsvFault{CsvFault::Kind::UnclosedQuote, atQuote ? quoteLine : row.line}};
  }
  endRow();
  return read;
}

}  // namespace kq::text
