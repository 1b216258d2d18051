// The facts of the machine that the About box shows, read from the system's own files;
// what cannot be read is empty or 0.
#pragma once

#include <cstdint>
#include <string>

namespace kq {

struct SystemInfo {
  std::string operatingSystem;  // name with its build
  std::string processor;
  uint64_t totalPhysical = 0;  // bytes
  uint64_t availablePhysical = 0;
  uint64_t totalVirtual = 0;
  uint64_t availableVirtual = 0;
};

SystemInfo ReadSystemInfo();

// A number in the format "###,###,###": groups of three with commas, nothing for 0.
std::string FormatThousands(uint64_t n);

}  // namespace kq
