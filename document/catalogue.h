// The function catalogue: 56 numbered slots with their names and record lengths, and the
// small name tables through which record fields are shown.
#pragma once

#include <cstdint>
#include <string>

namespace kq {

inline constexpr int kFuncCount = 56;
inline constexpr int kBlockSize = 1024;

// The record length of each slot as the catalogue gives it; 0 for the empty slots.
extern const int32_t kCatalogueLength[kFuncCount];
// True for 0 to 55 except the empty slots 22, 23, 35 and 42.
bool IsLiveFunction(int funcNo);

// Filled by InitNameTables: name, NUL, blanks (an empty slot holds a lone NUL, then blanks).
extern char FuncNames[kFuncCount][17];
// Filled by GetFuncRecordLength from the catalogue; empty slots stay 0.
extern int32_t RecordLength[kFuncCount];

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
// Fills RecordLength and checks every entry against the block size.
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
