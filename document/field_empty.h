// The emptiness test of fixed fields without building a text: the field right-trims to a
// lone NUL, that is a NUL and blanks behind it. Gives the same answer as FieldEmpty, for the
// scans over whole tables, where most entries are blank: one comparison of the blanks, not
// a walk byte by byte.
#pragma once

#include <cstddef>
#include <cstring>

namespace kq {

namespace detail {
inline constexpr size_t kBlankRun = 1024;
struct Blanks {
  char bytes[kBlankRun];
  constexpr Blanks() : bytes() {
    for (char& b : bytes) b = ' ';
  }
};
inline constexpr Blanks kBlanks;
}  // namespace detail

inline bool EmptyField(const char* field, size_t width) {
  if (width == 0 || field[0] != '\0') return false;
  for (size_t at = 1; at < width; at += detail::kBlankRun) {
    const size_t n = width - at < detail::kBlankRun ? width - at : detail::kBlankRun;
    if (std::memcmp(field + at, detail::kBlanks.bytes, n) != 0) return false;
  }
  return true;
}
template <size_t N>
bool EmptyField(const char (&field)[N]) {
  return EmptyField(field, N);
}

}  // namespace kq
