#include "cli/cli_document.h"

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

}  // namespace kqx
