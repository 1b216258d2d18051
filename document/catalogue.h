// The function catalogue: 56 numbered slots with their names and record lengths, and the
// small name tables through which record fields are shown.
#pragma once

#include <cstdint>
#include <string>

namespace kq {

inline constexpr int kFuncCount = 56;
inline constexpr int kBlockSize = 1024;

// The record length of each slot as the catalogue gives it; 0 for the empty slots.
inline constexpr int32_t kCatalogueLength[kFuncCount] = {
    84,  60,  120, 108, 4, 180, 36, 112, 36,  40, 20,  40, 152, 52,  24, 4,   184, 888, 152,
    120, 392, 112, 0,   0, 60,  36, 36,  236, 56, 236, 56, 56,  56,  56, 236, 0,   36,  76,
    68,  68,  36,  32,  0, 4,   68, 64,  96,  96, 96,  72, 104, 104, 36, 116, 184, 612};
// True for 0 to 55 except the empty slots 22, 23, 35 and 42.
bool IsLiveFunction(int funcNo);

// Filled by InitNameTables: name, NUL, blanks (an empty slot holds a lone NUL, then blanks).
extern char FuncNames[kFuncCount][17];
// The record lengths the program works with: the catalogue's, checked against the block
// size by GetFuncRecordLength at start.
inline constexpr const int32_t (&RecordLength)[kFuncCount] = kCatalogueLength;

// The name tables: blank-padded, no NUL.
extern char DataTypeNames[3][10];
extern char PathTypeNames[5][15];
extern char YesNoNames[2][3];
extern char CallOutTags[7][9];
extern char KeyCountNames[22][6];
extern char TermKeyNames[17][6];
extern char SayLayoutNames[3][4];
extern char FieldSepNames[5][5];
extern char TextDelimNames[3][4];
extern char HourNames[24][2];
extern char MinuteNames[60][2];
extern char ToneTypeNames[2][4];
extern char KeyTags[19][4];
extern char DateFormatNames[9][9];
extern char TimeFormatNames[10][9];
extern char HookActionNames[3][9];
extern char TrimActionNames[3][19];
extern char CounterActionNames[2][12];

void InitNameTables();
// Checks every record length against the block size.
void GetFuncRecordLength();

// A name table row as a text (the row with its padding).
template <size_t W>
std::string Row(const char (&row)[W]) {
  return std::string(row, W);
}

// Operator texts; other indexes are program faults.
std::string StringArithmeticOpr(int32_t op);
std::string StringRelationalOpr(int32_t op);

}  // namespace kq
