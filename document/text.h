// Fixed-width text fields and the number-to-text conversions that every part shares.
// A fixed field of N bytes holds the text, one NUL, then blanks; an empty field is a lone
// NUL. Text is Windows-1252 bytes, one byte a character.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kq {

// Strips trailing blanks; the last character left must be the closing NUL, which is
// dropped. A text without it is a program fault that ends the program.
std::string RTrimZ(std::string_view text);
// Every NUL becomes a blank; the length stays.
std::string NulToBlank(std::string_view text);
// Trailing blanks removed (RTrim); leading and trailing blanks removed (Trim).
std::string RTrim(std::string_view text);
std::string Trim(std::string_view text);
// True when the field right-trims to a lone NUL: the emptiness test of fixed fields.
bool FieldEmpty(std::string_view field);

// Writes text into a fixed field of width bytes: the text (cut to width - 1), one NUL,
// blanks. `text` must not carry its own NUL.
void SetField(char* field, size_t width, std::string_view text);
template <size_t N>
void SetField(char (&field)[N], std::string_view text) {
  SetField(field, N, text);
}
// Copies a value that already holds its NUL (as "name" + NUL) into the field, padding
// with blanks, as the original assignment of a string to a fixed field did.
void AssignField(char* field, size_t width, std::string_view value);
template <size_t N>
void AssignField(char (&field)[N], std::string_view value) {
  AssignField(field, N, value);
}
template <size_t N>
std::string_view View(const char (&field)[N]) {
  return std::string_view(field, N);
}
// RTrimZ of a fixed field.
template <size_t N>
std::string Text(const char (&field)[N]) {
  return RTrimZ(std::string_view(field, N));
}

// The number-to-text conversion: one leading blank for a number that is not negative.
std::string Str(int64_t n);
std::string Str(double d);
// Plain decimal text without the sign blank.
std::string Num(int64_t n);
// The "0000" format: at least four digits, zero padded.
std::string Format0000(int64_t n);
std::string Format000(int64_t n);
// The leading number of a text, as the original Val read it: blanks skipped, digits,
// one sign, one decimal point and an exponent; anything else ends the number; 0 if none.
double Val(std::string_view text);

}  // namespace kq
