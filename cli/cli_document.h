// Opening an application file for a kqx command, as the editor opens it.
#pragma once

#include <string>

#include "cli/kqx.h"

namespace kqx {

// The file name behind the last "/".
std::string TitleOf(const std::string& path);

// Opens the file as the document through the editor's own routine. False when the file
// was refused (its message box has been written as an event).
bool OpenDocument(CliContext& ctx, const std::string& path);

// Checks the number of arguments; prints the usage line and returns false otherwise.
bool ExpectArgs(CliContext& ctx, size_t count, const char* usage);

}  // namespace kqx
