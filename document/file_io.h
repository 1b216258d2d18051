// Whole-file reads and safe whole-file writes for the application files. Errors come back
// as the system's error numbers (0 for none), ready for HandleDiskError.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kq {

// Reads the file into `bytes`, at most `limit` bytes of it. An absent file is created
// empty, as the binary open of the system made it, and reads as 0 bytes.
int ReadWholeFile(const std::string& path, std::vector<uint8_t>& bytes, size_t limit = SIZE_MAX);

// Writes the bytes durably (ui/platform/durable_file.h): to a temporary name beside the
// file, flushed, renamed over the file and the folder flushed, so that a failing write
// leaves the last good file in place. The file keeps its permissions when it existed; a
// file without any write permission is refused as permission denied.
int WriteWholeFile(const std::string& path, const uint8_t* data, size_t size);

// For tests: the next `times` writes fail with `errnoValue` once `afterBytes` bytes of
// the file have been written, like a device that fills up.
void InjectWriteFault(int errnoValue, size_t afterBytes, int times);
// For tests: the next `times` reads of a file fail with `errnoValue`, like a drive that
// cannot be read.
void InjectReadFault(int errnoValue, int times);

}  // namespace kq
