#include "cli/cli_document.h"

#include "document/file.h"

namespace kqx {

std::string TitleOf(const std::string& path) {
  const size_t slash = path.find_last_of('/');
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

bool OpenDocument(CliContext& ctx, const std::string& path) {
  (void)ctx;
  std::string title = TitleOf(path);
  std::string name = path;
  kq::OpenFile(title, name);
  return !name.empty();
}

bool ExpectArgs(CliContext& ctx, size_t count, const char* usage) {
  if (ctx.args.size() == count) return true;
  ctx.err << "usage: kqx " << usage << "\n";
  return false;
}

}  // namespace kqx
