// The Print menu: the listing is written to a text file beside the application file, then
// sent from that file to the printer page by page, each page under a header of its own.
#pragma once

#include <string>
#include <vector>

namespace kq {

inline constexpr int kRowsPerPage = 60;

// The print dialog, the listing file, then the printer. Cancel writes nothing.
void PrintCommand();

// Prints the rows of a listing file (its first four rows are dropped: the page header
// repeats them) on the printer, for the page range and copies given; from and to both 0
// print every page.
void PrintListingRows(const std::vector<std::string>& fileRows, const std::string& dateTime,
                      int fromPage, int toPage, int copies);

}  // namespace kq
