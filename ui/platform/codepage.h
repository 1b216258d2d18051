// Windows-1252, the system's text, against UTF-8, the text of the world outside: file
// names on this platform, the command line, JSON output.
#pragma once

#include <string>

namespace ui {

// Unmappable characters become '?'.
std::string Cp1252ToUtf8(const std::string& text);
std::string Utf8ToCp1252(const std::string& text);

}  // namespace ui
