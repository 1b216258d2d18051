#include "tests/support/test_text.h"

#include <fstream>
#include <sstream>

#include "ui/headless/headless_platform.h"

namespace kq::test {

std::string ReadText(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream s;
  s << in.rdbuf();
  return s.str();
}

std::string ProgramErrorOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const ui::ProgramEnded& e) {
    return e.what();
  }
  return "";
}

}  // namespace kq::test
