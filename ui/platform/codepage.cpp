#include "ui/platform/codepage.h"

#include <cstdio>

namespace ui {

namespace {

// Code points of 0x80 to 0x9F in Windows-1252; the five bytes the code page leaves
// undefined stand for the C1 controls of their own value.
constexpr char32_t kHigh[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// The byte of a code point, or -1; `exact` also takes the five undefined bytes back.
int ByteOf(char32_t cp, bool exact) {
  if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<int>(cp);
  for (int k = 0; k < 32; ++k) {
    if (kHigh[k] == cp && (exact || cp != char32_t(0x80 + k))) return 0x80 + k;
  }
  return -1;
}

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

std::string Cp1252ToUtf8(std::string_view text) {
  std::string out;
  out.reserve(text.size() + 8);
  for (const unsigned char c : text) AppendUtf8(out, c >= 0x80 && c < 0xA0 ? kHigh[c - 0x80] : c);
  return out;
}

std::string Utf8ToCp1252(std::string_view text) {
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
    const int b = ByteOf(cp, false);
    out += b < 0 ? '?' : static_cast<char>(b);
  }
  return out;
}

bool Utf8ToCp1252Exact(std::string_view utf8, std::string& bytes, std::string& bad) {
  bytes.clear();
  bytes.reserve(utf8.size());
  for (size_t i = 0; i < utf8.size();) {
    const auto c = static_cast<unsigned char>(utf8[i]);
    if (c < 0x80) {
      bytes += static_cast<char>(c);
      ++i;
      continue;
    }
    const int len = (c & 0xE0) == 0xC0 ? 2 : (c & 0xF0) == 0xE0 ? 3 : (c & 0xF8) == 0xF0 ? 4 : 0;
    if (len == 0 || i + len > utf8.size()) {
      bad = "a byte that is not UTF-8";
      return false;
    }
    char32_t cp = c & (0x7F >> len);
    for (int k = 1; k < len; ++k) {
      const auto next = static_cast<unsigned char>(utf8[i + k]);
      if ((next & 0xC0) != 0x80) {
        bad = "a byte that is not UTF-8";
        return false;
      }
      cp = (cp << 6) | (next & 0x3F);
    }
    const int b = ByteOf(cp, true);
    if (b < 0) {
      char name[16];
      std::snprintf(name, sizeof name, "U+%04X", static_cast<unsigned>(cp));
      bad = name;
      return false;
    }
    bytes += static_cast<char>(b);
    i += len;
  }
  return true;
}

}  // namespace ui
