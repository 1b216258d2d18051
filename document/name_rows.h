// Fixed-width rows of text built at compile time: the form in which the catalogue's name
// tables are constants.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string_view>

namespace kq {

template <size_t R, size_t W>
struct NameRows {
  char rows[R][W] = {};  // rows not given stay all zero
};

// One row per text from the first row on: the text, cut at the width, padded with blanks
// (no NUL); with `nul`, the text, one NUL, then blanks, as a fixed field holds it.
template <size_t R, size_t W>
constexpr NameRows<R, W> PaddedRows(std::initializer_list<std::string_view> texts,
                                    bool nul = false) {
  NameRows<R, W> t;
  size_t r = 0;
  for (std::string_view text : texts) {
    const size_t n = nul ? (text.size() < W - 1 ? text.size() : W - 1) : text.size();
    for (size_t i = 0; i < W; ++i) {
      t.rows[r][i] = i < n ? text[i] : (nul && i == n ? '\0' : ' ');
    }
    ++r;
  }
  return t;
}

// The numbers firstValue, firstValue + 1 ... in decimal, blank-padded, into count rows from
// firstRow on.
template <size_t R, size_t W>
constexpr NameRows<R, W> NumberRows(NameRows<R, W> t, size_t firstRow, size_t count,
                                    int firstValue) {
  for (size_t r = firstRow; r < firstRow + count; ++r) {
    char digits[12] = {};
    size_t n = 0;
    for (int v = firstValue + static_cast<int>(r - firstRow); n == 0 || v > 0; v /= 10) {
      digits[n++] = static_cast<char>('0' + v % 10);
    }
    for (size_t i = 0; i < W; ++i) t.rows[r][i] = i < n ? digits[n - 1 - i] : ' ';
  }
  return t;
}

}  // namespace kq
