#include "ui/platform/codepage.h"

namespace ui {

namespace {

// Code points of 0x80 to 0x9F in Windows-1252; 0 where the code page has none.
constexpr char32_t kHigh[32] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

void AppendUtf8(std::string& out, char32_t cp) {
  if (cp < 0x80) {
    out += static_cast<char>(cp);
  } else if (cp < 0x800) {
    out += static_cast<char>(0xC0 | (cp >> 6));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else {
    out += static_cast<char>(0xE0 | (cp >> 12));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  }
}

}  // namespace

std::string Cp1252ToUtf8(const std::string& text) {
  std::string out;
  out.reserve(text.size());
  for (unsigned char c : text) {
    char32_t cp = c;
    if (c >= 0x80 && c < 0xA0) cp = kHigh[c - 0x80] ? kHigh[c - 0x80] : c;
    AppendUtf8(out, cp);
  }
  return out;
}

std::string Utf8ToCp1252(const std::string& text) {
  std::string out;
  for (size_t i = 0; i < text.size();) {
    unsigned char c = text[i];
    char32_t cp;
    int len;
    if (c < 0x80) {
      cp = c, len = 1;
    } else if ((c & 0xE0) == 0xC0 && i + 1 < text.size()) {
      cp = ((c & 0x1F) << 6) | (text[i + 1] & 0x3F), len = 2;
    } else if ((c & 0xF0) == 0xE0 && i + 2 < text.size()) {
      cp = ((c & 0x0F) << 12) | ((text[i + 1] & 0x3F) << 6) | (text[i + 2] & 0x3F), len = 3;
    } else if ((c & 0xF8) == 0xF0 && i + 3 < text.size()) {
      cp = 0x110000, len = 4;  // outside the code page
    } else {
      cp = '?', len = 1;
    }
    i += len;
    if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) {
      out += static_cast<char>(cp);
      continue;
    }
    char mapped = '?';
    for (int k = 0; k < 32; ++k) {
      if (kHigh[k] == cp && cp != 0) mapped = static_cast<char>(0x80 + k);
    }
    out += mapped;
  }
  return out;
}

}  // namespace ui
