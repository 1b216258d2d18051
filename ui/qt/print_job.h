// One print job: rows of fixed-pitch text, page by page, on the printer or into the PDF file
// chosen in the print dialog. The job outlives the documents printed on it, so that every
// copy of a listing goes where the dialog said, with the dialog's settings.
#pragma once

#include <QFont>
#include <QPrinter>
#include <optional>
#include <vector>

namespace ui::qt {

class PrintJob {
 public:
  PrintJob();
  ~PrintJob();
  QPrinter& printer() { return printer_; }
  void Row(const QString& row);
  void NewPage();
  // Ends one document; one that printed nothing makes no page. On a printer each document
  // is a job of its own. A PDF file is written anew with every document ended so far, one
  // after the other, so that a later copy does not take the place of an earlier one.
  void End();

 private:
  using Item = std::optional<QString>;  // a row, or nothing for a new page
  void Render(const std::vector<Item>& items);
  QPrinter printer_;
  QFont font_;
  std::vector<Item> document_;  // the document being printed
  std::vector<Item> written_;   // a PDF file's documents so far
  bool failed_ = false;
};

}  // namespace ui::qt
