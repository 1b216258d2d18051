// The function catalogue: 56 numbered slots with their names and record lengths, and the
// small name tables through which record fields are shown.
#pragma once

#include <cstdint>
#include <string>

#include "document/name_rows.h"

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

// The names of the slots: name, NUL, blanks (an empty slot holds a lone NUL, then blanks).
// The name tables are constants; the start of a run has nothing to fill.
inline constexpr auto kFuncNameRows = PaddedRows<kFuncCount, 17>({"Assign",
                                                                  "Assign Path",
                                                                  "Calculate",
                                                                  "Condition",
                                                                  "Delay",
                                                                  "Call Out",
                                                                  "Get Date",
                                                                  "Get Keys",
                                                                  "Get Time",
                                                                  "Gosub",
                                                                  "Goto",
                                                                  "Random",
                                                                  "Record Sound",
                                                                  "Remark",
                                                                  "Return",
                                                                  "R Switch",
                                                                  "Say Number",
                                                                  "Variable Export",
                                                                  "Voice",
                                                                  "Wait for Call",
                                                                  "Wait for Key",
                                                                  "Say File",
                                                                  "",
                                                                  "",
                                                                  "Connect Table",
                                                                  "Disconnect Table",
                                                                  "Add Record",
                                                                  "Delete Record",
                                                                  "Get First Record",
                                                                  "SELECT Records",
                                                                  "Insert Record",
                                                                  "Get Last Record",
                                                                  "Get Next Record",
                                                                  "Get Prev. Record",
                                                                  "Update Record",
                                                                  "",
                                                                  "Get Day Of Week",
                                                                  "Dial Number",
                                                                  "Get Record No.",
                                                                  "Get No. Of Rec.",
                                                                  "Empty Table",
                                                                  "Get Channel No.",
                                                                  "",
                                                                  "On/Off Hook",
                                                                  "Trim String",
                                                                  "Len String",
                                                                  "Right String",
                                                                  "Left String",
                                                                  "In String",
                                                                  "Check Path",
                                                                  "Check File",
                                                                  "Delete File",
                                                                  "Sound File Count",
                                                                  "Run",
                                                                  "CT Bus Connect",
                                                                  "Prototype"},
                                                                 true);
inline constexpr const char (&FuncNames)[kFuncCount][17] = kFuncNameRows.rows;
// The record lengths the program works with: the catalogue's, checked against the block
// size by GetFuncRecordLength at start.
inline constexpr const int32_t (&RecordLength)[kFuncCount] = kCatalogueLength;

// The name tables: blank-padded, no NUL.
namespace names {
inline constexpr auto kDataType = PaddedRows<3, 10>({"Long", "Double", "String"});
inline constexpr auto kPathType =
    PaddedRows<5, 15>({"Export", "Message", "Number", "Voice", "General"});
inline constexpr auto kYesNo = PaddedRows<2, 3>({"No", "Yes"});
// Rows 5 and 6 are never filled: all zero.
inline constexpr auto kCallOut =
    PaddedRows<7, 9>({"BusyTone=", "CallAnsw=", "NoCall=", "Operator=", "NoAnsw="});
inline constexpr auto kKeyCount = NumberRows(PaddedRows<22, 6>({"Ignore"}), 1, 21, 0);
inline constexpr auto kTermKey =
    NumberRows(PaddedRows<17, 6>({"Ignore", "", "", "", "", "", "", "", "", "", "", "*", "#", "A",
                                  "B", "C", "D"}),
               1, 10, 0);
inline constexpr auto kSayLayout = PaddedRows<3, 4>({"All", "1", "2"});
inline constexpr auto kFieldSep = PaddedRows<5, 5>({",", ";", "Space", "Tab", "None"});
inline constexpr auto kTextDelim = PaddedRows<3, 4>({"\"", "'", "None"});
inline constexpr auto kHour = NumberRows(NameRows<24, 2>{}, 0, 24, 1);
inline constexpr auto kMinute = NumberRows(NameRows<60, 2>{}, 0, 60, 0);
inline constexpr auto kToneType = PaddedRows<2, 4>({"DTMF", "FSK"});
inline constexpr auto kKeyTag =
    PaddedRows<19, 4>({"0=", "1=", "2=", "3=", "4=", "5=", "6=", "7=", "8=", "9=", "#=", "*=", "A=",
                       "B=", "C=", "D=", "H=", "U=", "T/E="});
inline constexpr auto kDateFormat =
    PaddedRows<9, 9>({"YYYYMMDD", "YYYYMM", "YYYY", "YYMMDD", "YYMM", "YY", "MMDD", "MM", "DD"});
inline constexpr auto kTimeFormat = PaddedRows<10, 9>(
    {"HHMMSSXX", "HHMMSS", "HHMM", "HH", "MM", "SS", "XX", "SSXX", "MMSSXX", "MMSS"});
inline constexpr auto kHookAction = PaddedRows<3, 9>({"On hook", "Off hook", "Shutdown"});
inline constexpr auto kTrimAction =
    PaddedRows<3, 19>({"Leading", "Trailing", "Leading & trailing"});
inline constexpr auto kCounterAction = PaddedRows<2, 12>({"Get Counter", "Set Counter"});
}  // namespace names

inline constexpr const char (&DataTypeNames)[3][10] = names::kDataType.rows;
inline constexpr const char (&PathTypeNames)[5][15] = names::kPathType.rows;
inline constexpr const char (&YesNoNames)[2][3] = names::kYesNo.rows;
inline constexpr const char (&CallOutTags)[7][9] = names::kCallOut.rows;
inline constexpr const char (&KeyCountNames)[22][6] = names::kKeyCount.rows;
inline constexpr const char (&TermKeyNames)[17][6] = names::kTermKey.rows;
inline constexpr const char (&SayLayoutNames)[3][4] = names::kSayLayout.rows;
inline constexpr const char (&FieldSepNames)[5][5] = names::kFieldSep.rows;
inline constexpr const char (&TextDelimNames)[3][4] = names::kTextDelim.rows;
inline constexpr const char (&HourNames)[24][2] = names::kHour.rows;
inline constexpr const char (&MinuteNames)[60][2] = names::kMinute.rows;
inline constexpr const char (&ToneTypeNames)[2][4] = names::kToneType.rows;
inline constexpr const char (&KeyTags)[19][4] = names::kKeyTag.rows;
inline constexpr const char (&DateFormatNames)[9][9] = names::kDateFormat.rows;
inline constexpr const char (&TimeFormatNames)[10][9] = names::kTimeFormat.rows;
inline constexpr const char (&HookActionNames)[3][9] = names::kHookAction.rows;
inline constexpr const char (&TrimActionNames)[3][19] = names::kTrimAction.rows;
inline constexpr const char (&CounterActionNames)[2][12] = names::kCounterAction.rows;

static_assert(FuncNames[52][15] == 't' && FuncNames[52][16] == '\0');  // 16 letters and NUL
static_assert(FuncNames[22][0] == '\0' && FuncNames[22][1] == ' ');
static_assert(KeyCountNames[21][0] == '2' && KeyCountNames[21][1] == '0');
static_assert(HourNames[23][0] == '2' && HourNames[23][1] == '4');
static_assert(CallOutTags[5][0] == '\0');

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
