// The program header: version, compiled flag, declarations and the line count. The file
// holds its fields in this order (see file.cpp); in memory it is a plain struct.
#pragma once

#include <cstdint>

#include "document/records.h"

namespace kq {

inline constexpr int kMaxVariables = 500;
inline constexpr int kPathRows = 20;
inline constexpr int kPathTypes = 5;
inline constexpr int kMaxTables = 50;
inline constexpr int kTableColumns = 24;
inline constexpr int kMaxLines = 10001;  // room in the stores: indexes 0 to 10,000
inline constexpr int kUserLines = 9999;  // lines offered to the user
inline constexpr int kDisplayLineWidth = 180;

// Path type codes: the letters "A" to "E".
inline constexpr int32_t kPathExport = 65;
inline constexpr int32_t kPathMessage = 66;
inline constexpr int32_t kPathNumber = 67;
inline constexpr int32_t kPathVoice = 68;
inline constexpr int32_t kPathGeneral = 69;

struct PathEntry {
  char PathText[260];
  char PathName[28];
};
static_assert(sizeof(PathEntry) == 288);

struct TableEntry {
  char TableName[16];
  VarRef Column[kTableColumns];
};
static_assert(sizeof(TableEntry) == 784);

struct ProgramHeader {
  char Version[5];
  int16_t CompiledFlag;  // 0, or -1 after a successful compile
  VarRef Variable[kMaxVariables];
  PathEntry Path[kPathRows][kPathTypes];  // [row][type code - 65], the file's order
  TableEntry Table[kMaxTables];
  int16_t LineCount;
};

// One entry of the line table; 35 bytes in the file.
struct ProgramLine {
  char LineLabel[16];
  int16_t LineFuncNo;
  char LineFuncName[17];
};

}  // namespace kq
