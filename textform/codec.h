// The system's Windows-1252 bytes as UTF-8 and back, exactly: every one of the 256 bytes
// has one character (the five bytes the code page leaves undefined stand for U+0081,
// U+008D, U+008F, U+0090 and U+009D), so that any field comes back byte for byte.
#pragma once

#include <string>
#include <string_view>

namespace kq::textform {

std::string BytesToUtf8(std::string_view bytes);

// False, with the offending character in `bad` (as "U+4E2D"), when the text is not valid
// UTF-8 or holds a character that has no Windows-1252 byte.
bool Utf8ToBytes(std::string_view utf8, std::string& bytes, std::string& bad);

}  // namespace kq::textform
