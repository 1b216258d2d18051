#include "ui/qt/print_job.h"

#include <QFontMetrics>

namespace ui::qt {

PrintJob::PrintJob() : printer_(QPrinter::HighResolution) {
  font_ = QFont(QStringLiteral("Courier New"), 10);
  font_.setStyleHint(QFont::TypeWriter);
  font_.setFixedPitch(true);
}

bool PrintJob::Begin() {
  if (painter_.isActive()) return true;
  if (failed_) return false;
  if (!painter_.begin(&printer_)) {
    failed_ = true;  // printing ends without a word, as the listing's printing does
    return false;
  }
  painter_.setFont(font_);
  y_ = 0;
  pages_ = 1;
  return true;
}

void PrintJob::Row(const QString& row) {
  if (!Begin()) return;
  const QFontMetrics fm(painter_.font(), &printer_);
  const int height = printer_.pageLayout().paintRectPixels(printer_.resolution()).height();
  if (y_ + fm.height() > height) NewPage();  // the printer runs onto a new sheet
  painter_.drawText(0, y_ + fm.ascent(), row);
  y_ += fm.lineSpacing();
  ++rows_;
}

void PrintJob::NewPage() {
  if (!Begin()) return;
  printer_.newPage();
  y_ = 0;
  ++pages_;
}

void PrintJob::End() {
  if (painter_.isActive()) painter_.end();
}

}  // namespace ui::qt
