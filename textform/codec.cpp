#include "textform/codec.h"

#include <cstdio>

namespace kq::textform {

namespace {

// Code points of 0x80 to 0x9F; the undefined bytes stand for themselves.
constexpr char32_t kHigh[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void Append(std::string& out, char32_t cp) {
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

int ByteOf(char32_t cp) {
  if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<int>(cp);
  for (int k = 0; k < 32; ++k) {
    if (kHigh[k] == cp) return 0x80 + k;
  }
  return -1;
}

std::string Named(char32_t cp) {
  char buf[16];
  std::snprintf(buf, sizeof buf, "U+%04X", static_cast<unsigned>(cp));
  return buf;
}

}  // namespace

std::string BytesToUtf8(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size() + 8);
  for (const unsigned char c : bytes) {
    if (c < 0x80) {
      out += static_cast<char>(c);
    } else {
      Append(out, c < 0xA0 ? kHigh[c - 0x80] : c);
    }
  }
  return out;
}

bool Utf8ToBytes(std::string_view utf8, std::string& bytes, std::string& bad) {
  bytes.clear();
  bytes.reserve(utf8.size());
  for (size_t i = 0; i < utf8.size();) {
    const auto c = static_cast<unsigned char>(utf8[i]);
    if (c < 0x80) {
      bytes += static_cast<char>(c);
      ++i;
      continue;
    }
    int len = (c & 0xE0) == 0xC0 ? 2 : (c & 0xF0) == 0xE0 ? 3 : (c & 0xF8) == 0xF0 ? 4 : 0;
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
    const int b = ByteOf(cp);
    if (b < 0) {
      bad = Named(cp);
      return false;
    }
    bytes += static_cast<char>(b);
    i += len;
  }
  return true;
}

}  // namespace kq::textform
