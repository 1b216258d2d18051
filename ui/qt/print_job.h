// One print job: rows of fixed-pitch text, page by page, on paper or into a PDF file.
// The painter starts with the first row, so a job that prints nothing makes no page.
#pragma once

#include <QFont>
#include <QPainter>
#include <QPrinter>
#include <memory>

namespace ui::qt {

class PrintJob {
 public:
  PrintJob();
  QPrinter& printer() { return printer_; }
  void Row(const QString& row);
  void NewPage();
  void End();
  int RowsPrinted() const { return rows_; }
  int Pages() const { return pages_; }

 private:
  bool Begin();
  QPrinter printer_;
  QPainter painter_;
  QFont font_;
  int y_ = 0;
  int rows_ = 0;
  int pages_ = 0;
  bool failed_ = false;
};

}  // namespace ui::qt
