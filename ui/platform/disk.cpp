#include "ui/platform/disk.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <system_error>

#include "ui/platform/codepage.h"

namespace ui {

namespace fs = std::filesystem;

namespace {

unsigned char Fold(unsigned char c) {
  return static_cast<unsigned char>(std::tolower(c));
}

bool LessNoCase(const std::string& a, const std::string& b) {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                      [](char x, char y) { return Fold(x) < Fold(y); });
}

int ErrorNumber(const std::error_code& ec) {
  if (ec == std::errc::no_such_file_or_directory || ec == std::errc::not_a_directory) {
    return kErrorPathNotFound;
  }
  if (ec == std::errc::permission_denied || ec == std::errc::operation_not_permitted) {
    return kErrorPermissionDenied;
  }
  if (ec == std::errc::no_such_device || ec == std::errc::no_such_device_or_address) {
    return kErrorDeviceUnavailable;
  }
  return kErrorFileAccess;
}

class SystemDisk : public Disk {
 public:
  int ReadFolder(const std::string& folder, std::vector<std::string>& folders,
                 std::vector<std::string>& files) override {
    folders.clear();
    files.clear();
    if (NamesForeignDrive(folder)) return kErrorDeviceUnavailable;
    std::error_code ec;
    const fs::path where(Cp1252ToUtf8(folder));
    if (!fs::is_directory(where, ec)) return ec ? ErrorNumber(ec) : kErrorPathNotFound;
    fs::directory_iterator it(where, ec);
    if (ec) return ErrorNumber(ec);
    for (; it != fs::directory_iterator(); it.increment(ec)) {
      if (ec) return ErrorNumber(ec);
      const std::string name = Utf8ToCp1252(it->path().filename().string());
      if (name.empty() || name[0] == '.') continue;  // hidden on this platform
      std::error_code kindError;
      if (it->is_directory(kindError)) {
        folders.push_back(name);
      } else if (it->is_regular_file(kindError)) {
        files.push_back(name);
      }
    }
    std::sort(folders.begin(), folders.end(), LessNoCase);
    std::sort(files.begin(), files.end(), LessNoCase);
    return 0;
  }

  std::string CurrentDirectory() override {
    std::error_code ec;
    const fs::path p = fs::current_path(ec);
    return ec ? std::string("/") : Utf8ToCp1252(p.string());
  }

  int ChangeDirectory(const std::string& folder) override {
    if (NamesForeignDrive(folder)) return kErrorDeviceUnavailable;
    std::error_code ec;
    fs::current_path(fs::path(Cp1252ToUtf8(folder)), ec);
    return ec ? ErrorNumber(ec) : 0;
  }
};

SystemDisk systemDisk;
Disk* current = &systemDisk;

bool Match(const char* n, const char* p) {
  for (; *p != '\0'; ++p, ++n) {
    if (*p == '*') {
      for (const char* rest = n;; ++rest) {
        if (Match(rest, p + 1)) return true;
        if (*rest == '\0') return false;
      }
    }
    if (*n == '\0') return false;
    if (*p != '?' && Fold(*p) != Fold(*n)) return false;
  }
  return *n == '\0';
}

}  // namespace

Disk& disk() {
  return *current;
}

void SetDisk(Disk* d) {
  current = d != nullptr ? d : &systemDisk;
}

std::string WithTrailingSeparator(std::string folder) {
  if (folder.empty() || folder.back() != '/') folder += '/';
  return folder;
}

std::string FullFolder(const std::string& folder) {
  if (NamesForeignDrive(folder)) return folder;
  fs::path p(folder);
  if (!p.is_absolute()) p = fs::path(disk().CurrentDirectory()) / p;
  std::string text = p.lexically_normal().generic_string();
  while (text.size() > 1 && text.back() == '/') text.pop_back();
  return text.empty() ? std::string("/") : text;
}

bool NamesForeignDrive(const std::string& path) {
  return path.size() >= 2 && std::isalpha(static_cast<unsigned char>(path[0])) && path[1] == ':';
}

bool MatchesPattern(const std::string& name, const std::string& pattern) {
  if (pattern == "*.*" || pattern == "*") return true;
  return Match(name.c_str(), pattern.c_str());
}

}  // namespace ui
