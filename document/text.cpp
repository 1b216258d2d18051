#include "document/text.h"

#include <cmath>
#include <cstdio>
#include <cstring>

#include "ui/platform/platform.h"

namespace kq {

std::string RTrim(std::string_view text) {
  size_t end = text.size();
  while (end > 0 && text[end - 1] == ' ') --end;
  return std::string(text.substr(0, end));
}

std::string Trim(std::string_view text) {
  size_t begin = 0;
  while (begin < text.size() && text[begin] == ' ') ++begin;
  return RTrim(text.substr(begin));
}

std::string RTrimZ(std::string_view text) {
  std::string t = RTrim(text);
  if (t.empty() || t.back() != '\0') {
    ui::ProgramError("String '" + t + "' not terminated with null character in Global RTrimZ.");
  }
  t.pop_back();
  return t;
}

std::string NulToBlank(std::string_view text) {
  std::string t(text);
  for (char& c : t) {
    if (c == '\0') c = ' ';
  }
  return t;
}

bool FieldEmpty(std::string_view field) {
  const std::string t = RTrim(field);
  return t.size() == 1 && t[0] == '\0';
}

void SetField(char* field, size_t width, std::string_view text) {
  if (width == 0) return;
  const size_t n = std::min(text.size(), width - 1);
  std::memcpy(field, text.data(), n);
  field[n] = '\0';
  std::memset(field + n + 1, ' ', width - n - 1);
}

void AssignField(char* field, size_t width, std::string_view value) {
  const size_t n = std::min(value.size(), width);
  std::memcpy(field, value.data(), n);
  std::memset(field + n, ' ', width - n);
}

std::string Num(int64_t n) {
  return std::to_string(n);
}

std::string Str(int64_t n) {
  char buf[24];
  std::snprintf(buf, sizeof buf, n < 0 ? "%lld" : " %lld", static_cast<long long>(n));
  return buf;
}

std::string Str(double d) {
  char buf[40];
  std::snprintf(buf, sizeof buf, "%.15g", d);
  std::string s = buf;
  return d < 0 ? s : " " + s;
}

// A negative number keeps all its digit places behind the sign: -1 gives "-0001".
std::string Format0000(int64_t n) {
  char buf[24];
  std::snprintf(buf, sizeof buf, n < 0 ? "-%04lld" : "%04lld",
                static_cast<long long>(n < 0 ? -n : n));
  return buf;
}

std::string Format000(int64_t n) {
  char buf[24];
  std::snprintf(buf, sizeof buf, n < 0 ? "-%03lld" : "%03lld",
                static_cast<long long>(n < 0 ? -n : n));
  return buf;
}

double Val(std::string_view text) {
  std::string digits;
  size_t i = 0;
  auto skipBlanks = [&] {
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t')) ++i;
  };
  skipBlanks();
  if (i < text.size() && (text[i] == '-' || text[i] == '+')) digits += text[i++];
  bool any = false, point = false;
  for (; i < text.size(); ++i) {
    const char c = text[i];
    if (c >= '0' && c <= '9') {
      digits += c;
      any = true;
    } else if (c == '.' && !point) {
      digits += c;
      point = true;
    } else if (c == ' ') {
      continue;  // Val skips blanks inside the number
    } else {
      break;
    }
  }
  if (!any) return 0;
  if (i < text.size() && (text[i] == 'e' || text[i] == 'E' || text[i] == 'd' || text[i] == 'D')) {
    std::string exp = "e";
    size_t j = i + 1;
    if (j < text.size() && (text[j] == '-' || text[j] == '+')) exp += text[j++];
    bool expDigits = false;
    for (; j < text.size() && text[j] >= '0' && text[j] <= '9'; ++j) {
      exp += text[j];
      expDigits = true;
    }
    if (expDigits) digits += exp;
  }
  const double v = std::strtod(digits.c_str(), nullptr);
  return std::isfinite(v) ? v : 0;
}

}  // namespace kq
