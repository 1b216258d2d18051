// Small readers for tests: a whole file as text, and the program error an action ends with.
#pragma once

#include <functional>
#include <string>

namespace kq::test {

// The file's bytes, "" when it cannot be read.
std::string ReadText(const std::string& path);
// The text of the program error that ends action, "" when it ends without one.
std::string ProgramErrorOf(const std::function<void()>& action);

}  // namespace kq::test
