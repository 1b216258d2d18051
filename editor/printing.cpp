#include "editor/printing.h"

#include <fstream>
#include <sstream>

#include "document/state.h"
#include "document/text.h"
#include "editor/commands.h"
#include "editor/listing.h"
#include "ui/platform/durable_file.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

constexpr char kMargin[] = "    ";

class PagePrinter {
 public:
  PagePrinter(const std::vector<std::string>& fileRows, const std::string& dateTime, int from,
              int to)
      : rows_(fileRows), dateTime_(dateTime), from_(from), to_(to) {}

  // One copy is one document on the printer, ended before the next copy starts.
  void PrintCopy() {
    int pageNo = 1;
    int lineCounter = 0;
    anyPrinted_ = false;
    StartPage(pageNo);
    for (size_t i = 4; i < rows_.size(); ++i) {
      if (Printed(pageNo)) ui::platform().PrintRow(kMargin + rows_[i]);
      ++lineCounter;
      if (lineCounter == kRowsPerPage) {
        ++pageNo;
        lineCounter = 0;
        StartPage(pageNo);
      }
    }
    ui::platform().EndDoc();
  }

 private:
  bool Printed(int pageNo) const {
    return (from_ == 0 && to_ == 0) || (pageNo >= from_ && pageNo <= to_);
  }
  // A new printer page (unless it is the first printed one of the copy), then the page
  // header.
  void StartPage(int pageNo) {
    if (!Printed(pageNo)) return;
    ui::Platform& p = ui::platform();
    if (anyPrinted_) p.NewPage();
    anyPrinted_ = true;
    std::string top = kMargin + std::string("Date/Time: ") + dateTime_;
    if (top.size() < 63) top.resize(63, ' ');
    p.PrintRow(top + "Page No. " + Format000(pageNo));
    p.PrintRow(kMargin + std::string("File Name: ") + ApplFileName);
    p.PrintRow(kMargin + (rows_.size() > 2 ? rows_[2] : std::string()));
    p.PrintRow("");
  }

  const std::vector<std::string>& rows_;
  const std::string& dateTime_;
  int from_, to_;
  bool anyPrinted_ = false;
};

// The rows of the text file as written, without their row ends.
std::vector<std::string> ReadRows(const std::string& fileName) {
  std::ifstream in(fileName, std::ios::binary);
  std::vector<std::string> rows;
  std::string row;
  while (std::getline(in, row)) {
    if (!row.empty() && row.back() == '\r') row.pop_back();
    rows.push_back(row);
  }
  return rows;
}

}  // namespace

void PrintListingRows(const std::vector<std::string>& fileRows, const std::string& dateTime,
                      int fromPage, int toPage, int copies) {
  PagePrinter printer(fileRows, dateTime, fromPage, toPage);
  for (int copy = 0; copy < copies; ++copy) printer.PrintCopy();
}

void PrintCommand() {
  ui::PrintDialogRequest request;
  request.maxPage = 100;
  if (!ui::platform().PrintDialog(request)) return;
  const std::string fileName = ListingFileName(ApplFileName);
  const std::string dateTime = NowText();
  // Any failure from here on ends the printing without a message; the text file stays
  // as far as it was made. It is written whole and durably, so a failing disk leaves the
  // last listing in place.
  std::string text;
  try {
    WriteListing([&](const std::string& row) { text += row + kRowEnd; }, dateTime);
  } catch (const ListingFault&) {
    (void)ui::WriteFileDurably(fileName, text.data(), text.size());
    return;
  }
  if (ui::WriteFileDurably(fileName, text.data(), text.size()) != 0) return;
  try {
    PrintListingRows(ReadRows(fileName), dateTime, request.fromPage, request.toPage,
                     request.copies);
  } catch (const std::ios_base::failure&) {
  }
}

}  // namespace kq
