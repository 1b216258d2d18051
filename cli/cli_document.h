// Opening an application file for a kqx command, as the editor opens it.
#pragma once

#include <string>

namespace kqx {

// The file name behind the last "/".
std::string TitleOf(const std::string& path);

// A path from the command line (UTF-8) as the system's Windows-1252 text.
std::string SystemText(const std::string& arg);

// Opens the file as the document through the editor's own routine. False when the file
// was refused (its message box has been written as an event).
bool OpenDocument(const std::string& path);

}  // namespace kqx
