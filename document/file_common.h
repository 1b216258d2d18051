// What the save, open and insert routines share.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kq {

// Reads the whole file, retrying as long as the user answers Retry to HandleDiskError
// under `title`. False when the command is to end.
bool ReadFileForCommand(const std::string& title, const std::string& path,
                        std::vector<uint8_t>& bytes);

// The exclamation box of a refused file under "File Error".
void FileErrorBox(const std::string& text);

// Replaces the first four characters of a DisplayLine by the number as four digits.
void SetLineNumber(std::string& displayLine, int number);

// The hourglass for the life of a command, the default pointer after it.
struct Hourglass {
  Hourglass();
  ~Hourglass();
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;
};

}  // namespace kq
