// Whole-file reads and safe whole-file writes for the application files. Errors come back
// as the system's error numbers (0 for none), ready for HandleDiskError.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kq {

// Reads the file into `bytes`. An absent file is created empty, as the binary open of
// the system made it, and reads as 0 bytes.
int ReadWholeFile(const std::string& path, std::vector<uint8_t>& bytes);

// Writes the bytes to a temporary name beside the file, then renames it over the file,
// so that a failing write leaves the last good file in place. The file keeps its
// permissions when it existed.
int WriteWholeFile(const std::string& path, const uint8_t* data, size_t size);

// For tests: the next `times` writes fail with `errnoValue` once `afterBytes` bytes of
// the file have been written, like a device that fills up.
void InjectWriteFault(int errnoValue, size_t afterBytes, int times);

}  // namespace kq
