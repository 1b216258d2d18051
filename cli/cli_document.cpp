#include "cli/cli_document.h"

#include <fstream>
#include <sstream>

#include "document/file.h"
#include "ui/platform/codepage.h"

namespace kqx {

std::string TitleOf(const std::string& path) {
  const size_t slash = path.find_last_of('/');
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

std::string SystemText(const std::string& arg) {
  return ui::Utf8ToCp1252(arg);
}

bool OpenDocument(const std::string& path) {
  std::string name = SystemText(path);
  std::string title = TitleOf(name);
  kq::OpenFile(title, name);
  return !name.empty();
}

bool ReadWhole(const std::string& path, std::string& bytes) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return false;
  std::ostringstream text;
  text << in.rdbuf();
  bytes = text.str();
  return !in.bad();
}

bool WriteWhole(const std::string& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << bytes;
  out.close();
  return static_cast<bool>(out);
}

}  // namespace kqx
