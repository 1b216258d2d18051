#include "speech/forms/system_info.h"

#include <fstream>
#include <map>
#include <sstream>

namespace kq {

namespace {

std::string FirstLine(const char* path) {
  std::ifstream in(path);
  std::string line;
  std::getline(in, line);
  return line;
}

// The value of "key: value" or "key=value" lines.
std::string ValueOf(const char* path, const std::string& key, char separator) {
  std::ifstream in(path);
  for (std::string line; std::getline(in, line);) {
    const size_t cut = line.find(separator);
    if (cut == std::string::npos) continue;
    std::string name = line.substr(0, cut);
    while (!name.empty() && (name.back() == ' ' || name.back() == '\t')) name.pop_back();
    if (name != key) continue;
    std::string value = line.substr(cut + 1);
    while (!value.empty() && (value.front() == ' ' || value.front() == '"')) value.erase(0, 1);
    while (!value.empty() && value.back() == '"') value.pop_back();
    return value;
  }
  return {};
}

uint64_t KiloBytes(const std::string& value) {
  std::istringstream in(value);
  uint64_t n = 0;
  in >> n;
  return n * 1024;
}

}  // namespace

SystemInfo ReadSystemInfo() {
  SystemInfo info;
  info.operatingSystem = ValueOf("/etc/os-release", "PRETTY_NAME", '=');
  const std::string build = FirstLine("/proc/sys/kernel/osrelease");
  if (!build.empty()) info.operatingSystem += " (Build " + build + ")";
  info.processor = ValueOf("/proc/cpuinfo", "model name", ':');
  const char* mem = "/proc/meminfo";
  info.totalPhysical = KiloBytes(ValueOf(mem, "MemTotal", ':'));
  info.availablePhysical = KiloBytes(ValueOf(mem, "MemAvailable", ':'));
  info.totalVirtual = KiloBytes(ValueOf(mem, "CommitLimit", ':'));
  const uint64_t committed = KiloBytes(ValueOf(mem, "Committed_AS", ':'));
  info.availableVirtual = info.totalVirtual > committed ? info.totalVirtual - committed : 0;
  return info;
}

std::string FormatThousands(uint64_t n) {
  if (n == 0) return {};
  std::string digits = std::to_string(n);
  std::string out;
  for (size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) out += ',';
    out += digits[i];
  }
  return out;
}

}  // namespace kq
