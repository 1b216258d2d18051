// The system's Windows-1252 bytes as UTF-8 and back, exactly, for the fields of the text
// form: any field comes back byte for byte (see ui/platform/codepage.h).
#pragma once

#include <string>
#include <string_view>

#include "ui/platform/codepage.h"

namespace kq::textform {

inline std::string BytesToUtf8(std::string_view bytes) {
  return ui::Cp1252ToUtf8(bytes);
}

// False, with the offending character in `bad` (as "U+4E2D"), when the text is not valid
// UTF-8 or holds a character that has no Windows-1252 byte.
inline bool Utf8ToBytes(std::string_view utf8, std::string& bytes, std::string& bad) {
  return ui::Utf8ToCp1252Exact(utf8, bytes, bad);
}

}  // namespace kq::textform
