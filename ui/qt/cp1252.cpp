#include "ui/qt/cp1252.h"

#include <array>

namespace ui::qt {

namespace {

// 0x80 to 0x9F; the five unassigned codes keep their C1 control character, as the
// system's own conversion does.
constexpr std::array<char16_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

}  // namespace

QString ToQt(const std::string& text) {
  QString out;
  out.reserve(static_cast<qsizetype>(text.size()));
  for (char ch : text) {
    const auto b = static_cast<unsigned char>(ch);
    out.append(b >= 0x80 && b < 0xA0 ? QChar(kHigh[b - 0x80]) : QChar(b));
  }
  return out;
}

int CodeOf(QChar c) {
  const char16_t u = c.unicode();
  if (u < 0x80 || (u >= 0xA0 && u <= 0xFF)) return u;
  for (int i = 0; i < 32; ++i) {
    if (kHigh[i] == u) return 0x80 + i;
  }
  return -1;
}

std::string FromQt(const QString& text) {
  std::string out;
  out.reserve(static_cast<size_t>(text.size()));
  for (QChar c : text) {
    const int code = CodeOf(c);
    out.push_back(static_cast<char>(code < 0 ? '?' : code));
  }
  return out;
}

}  // namespace ui::qt
