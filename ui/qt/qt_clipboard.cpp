#include "ui/qt/qt_clipboard.h"

#include <QByteArray>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QString>

#include "ui/qt/cp1252.h"

namespace ui::qt {

void QtClipboard::Set(const ClipboardData& data) {
  auto* mime = new QMimeData;  // the clipboard takes it over
  for (const auto& [type, bytes] : data) {
    if (type == kPlainTextMime) {
      mime->setText(ToQt(bytes));
    } else {
      mime->setData(QString::fromStdString(type),
                    QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())));
    }
  }
  QGuiApplication::clipboard()->setMimeData(mime);
}

ClipboardData QtClipboard::Get() const {
  ClipboardData out;
  const QMimeData* mime = QGuiApplication::clipboard()->mimeData();
  if (mime == nullptr) return out;
  for (const QString& type : mime->formats()) {
    if (type == QLatin1String(kPlainTextMime)) continue;
    const QByteArray bytes = mime->data(type);
    out[type.toStdString()] = std::string(bytes.constData(), static_cast<size_t>(bytes.size()));
  }
  if (mime->hasText()) out[kPlainTextMime] = FromQt(mime->text());
  return out;
}

}  // namespace ui::qt
