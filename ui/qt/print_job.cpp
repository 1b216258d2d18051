#include "ui/qt/print_job.h"

#include <QFontMetrics>
#include <QPainter>

namespace ui::qt {

PrintJob::PrintJob() : printer_(QPrinter::HighResolution) {
  font_ = QFont(QStringLiteral("Courier New"), 10);
  font_.setStyleHint(QFont::TypeWriter);
  font_.setFixedPitch(true);
}

PrintJob::~PrintJob() {
  End();
}

void PrintJob::Row(const QString& row) {
  document_.emplace_back(row);
}

void PrintJob::NewPage() {
  document_.emplace_back(std::nullopt);
}

void PrintJob::End() {
  if (document_.empty()) return;
  if (printer_.outputFormat() == QPrinter::PdfFormat) {
    if (!written_.empty()) written_.emplace_back(std::nullopt);
    written_.insert(written_.end(), document_.begin(), document_.end());
    Render(written_);
  } else {
    Render(document_);
  }
  document_.clear();
}

void PrintJob::Render(const std::vector<Item>& items) {
  if (failed_) return;
  QPainter painter;
  if (!painter.begin(&printer_)) {
    failed_ = true;  // printing ends without a word, as the listing's printing does
    return;
  }
  painter.setFont(font_);
  const QFontMetrics fm(painter.font(), &printer_);
  const int height = printer_.pageLayout().paintRectPixels(printer_.resolution()).height();
  int y = 0;
  for (const Item& item : items) {
    if (!item || y + fm.height() > height) {  // a new page, asked for or where the sheet ends
      printer_.newPage();
      y = 0;
      if (!item) continue;
    }
    painter.drawText(0, y + fm.ascent(), *item);
    y += fm.lineSpacing();
  }
  painter.end();
}

}  // namespace ui::qt
