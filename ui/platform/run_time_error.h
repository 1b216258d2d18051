// A run-time error that no handler of the program takes: the run time's box under the
// program's title, then the program ends, as with a program error.
#pragma once

#include <string>

namespace ui {

// The run time's words for an error number ("Path/File access error" for 75).
std::string RunTimeErrorText(int number);
// "Run-time error '{n}':", two carriage returns, the words; critical icon, title "KQEdit".
[[noreturn]] void RunTimeError(int number);

}  // namespace ui
