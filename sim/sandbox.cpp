#include "sim/sandbox.h"

#include <algorithm>
#include <cctype>
#include <system_error>

#include "ui/platform/codepage.h"

namespace kq::sim {

namespace fs = std::filesystem;

fs::path NativePath(std::string_view cp1252) {
  return fs::path(ui::Cp1252ToUtf8(std::string(cp1252)));
}

std::string SystemText(const fs::path& p) {
  return ui::Utf8ToCp1252(p.string());
}

std::optional<fs::path> Sandbox::Map(std::string_view text) const {
  std::string t(text);
  std::replace(t.begin(), t.end(), '\\', '/');
  if (t.size() >= 2 && t[1] == ':' && std::isalpha(static_cast<unsigned char>(t[0]))) {
    t = std::string(1, t[0]) + "/" + t.substr(2);
  }
  fs::path out = root_;
  size_t i = 0;
  while (i <= t.size()) {
    size_t j = t.find('/', i);
    if (j == std::string::npos) j = t.size();
    std::string step = t.substr(i, j - i);
    if (step == "..") return std::nullopt;
    if (!step.empty() && step != ".") out /= NativePath(step);
    i = j + 1;
  }
  return out;
}

std::optional<fs::path> Sandbox::MapFile(std::string_view text, std::string_view name) const {
  if (name.empty() || name == "." || name == ".." ||
      name.find_first_of("/\\") != std::string_view::npos) {
    return std::nullopt;
  }
  auto folder = Map(text);
  if (!folder) return std::nullopt;
  return *folder / NativePath(name);
}

fs::path Sandbox::Declared(std::string_view text) const {
  std::string t(text);
  std::replace(t.begin(), t.end(), '\\', '/');
  fs::path p = NativePath(t);
  return p.is_absolute() ? p : base_ / p;
}

std::optional<fs::path> Sandbox::FindIn(const fs::path& folder, std::string_view name) {
  if (name.empty() || name.find_first_of("/\\") != std::string_view::npos) return std::nullopt;
  std::error_code ec;
  const fs::path exact = folder / NativePath(name);
  if (fs::is_regular_file(exact, ec)) return exact;
  const std::string wanted = ui::Cp1252ToUtf8(std::string(name));
  auto lower = [](std::string s) {
    for (char& c : s) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
  };
  const std::string key = lower(wanted);
  std::optional<fs::path> found;
  for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
    if (!it->is_regular_file(ec)) continue;
    const std::string n = it->path().filename().string();
    if (lower(n) == key && (!found || n < found->filename().string())) found = it->path();
  }
  return found;
}

}  // namespace kq::sim
