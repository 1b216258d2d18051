// Lines on the clipboard. The lines' own format carries them with everything they need to
// be merged into another application: a checked envelope around the application image of
// the lines, which holds the declarations they use, their DisplayLines, entries and
// records. Beside it, the DisplayLines go as plain text for other programs.
//
// The envelope (all numbers little-endian):
//   0  16 bytes  "KQEDIT LINES", CR, LF, 0x1A, LF
//  16  u16       format version (1)
//  18  u16       0
//  20  u32       number of lines
//  24  u32       length of the image
//  28  u32       CRC-32 (IEEE) of the image
//  32  ...       the application image, in the current file format
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "ui/platform/clipboard.h"

namespace kq {

inline constexpr const char* kLinesMime = "application/x-kqedit-lines";
inline constexpr uint16_t kLinesFormatVersion = 1;

// The clipboard formats of these lines of the list (ascending indexes).
ui::ClipboardData LinesClipboardData(const std::vector<int>& lines);

// The envelope around an application image of `lineCount` lines.
std::string EncodeLines(const std::vector<uint8_t>& image, int lineCount);

enum class LinesCheck { Ok, Absent, Damaged, LaterFormat };

// Finds the lines' format on the clipboard and checks it whole; on Ok `image` holds an
// application image that the file checks have passed.
LinesCheck ReadLines(const ui::ClipboardData& data, std::vector<uint8_t>& image);

uint32_t Crc32(const uint8_t* data, size_t size);

}  // namespace kq
