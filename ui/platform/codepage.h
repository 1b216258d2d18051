// Windows-1252, the system's text, against UTF-8, the text of the world outside: file
// names on this platform, the command line, JSON output.
#pragma once

#include <string>
#include <string_view>

namespace ui {

// Every one of the 256 bytes has one character: the five bytes the code page leaves
// undefined stand for U+0081, U+008D, U+008F, U+0090 and U+009D, so that any text comes
// back byte for byte through Utf8ToCp1252Exact.
std::string Cp1252ToUtf8(std::string_view text);
// For text from outside (file names, the command line): what is not UTF-8 or has no byte
// in the code page becomes '?'.
std::string Utf8ToCp1252(std::string_view text);
// For text that must come back exactly: false, with the offending character in `bad` (as
// "U+4E2D", or "a byte that is not UTF-8"), when a character has no byte.
bool Utf8ToCp1252Exact(std::string_view utf8, std::string& bytes, std::string& bad);

}  // namespace ui
