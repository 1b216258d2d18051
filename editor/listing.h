// The listing of an application: a header, all declarations, then every line with its
// parameters spelled out, one fact to a row. It is the editor's only plain-text view of
// what the records hold: compiled line numbers and flags that the DisplayLine leaves out.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>

namespace kq {

// A record value that selects no row of its name table: the listing can't go on.
struct ListingFault : std::runtime_error {
  using std::runtime_error::runtime_error;
};

using RowSink = std::function<void(const std::string& row)>;

// The rows of the listing, in order; dateTime is the text of the first row. No row holds
// a NUL: each one comes out as a blank.
// Throws ListingFault after the rows written so far.
void WriteListing(const RowSink& row, const std::string& dateTime);
// The rows of one line of code: its prefix row and its parameter rows.
void WriteLineRows(const RowSink& row, int line);

// The listing as the text file holds it: every row closed by a carriage return and a
// line feed.
std::string ListingText(const std::string& dateTime);
inline constexpr char kRowEnd[] = "\r\n";

// The current local date and time as "YYYY-MM-DD HH:MM:SS".
std::string NowText();
// The listing file of an application: its name less the last three characters, "TXT".
std::string ListingFileName(const std::string& applFileName);

}  // namespace kq
