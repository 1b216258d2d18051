#include "document/catalogue.h"

#include <cstring>

#include "document/function_table.h"
#include "document/records.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

const char* const kFuncNameText[kFuncCount] = {"Assign",
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
                                               "Prototype"};

// Blank-padded row, no NUL.
template <size_t W>
void Fill(char (&row)[W], const char* text) {
  std::memset(row, ' ', W);
  std::memcpy(row, text, std::min(std::strlen(text), W));
}

template <size_t R, size_t W>
void FillNumbers(char (&rows)[R][W], int firstRow, int firstValue) {
  for (size_t i = firstRow; i < R; ++i) {
    Fill(rows[i], std::to_string(firstValue + static_cast<int>(i) - firstRow).c_str());
  }
}

}  // namespace

char FuncNames[kFuncCount][17];

char DataTypeNames[3][10];
char PathTypeNames[5][15];
char YesNoNames[2][3];
char CallOutTags[7][9];
char KeyCountNames[22][6];
char TermKeyNames[17][6];
char SayLayoutNames[3][4];
char FieldSepNames[5][5];
char TextDelimNames[3][4];
char HourNames[24][2];
char MinuteNames[60][2];
char ToneTypeNames[2][4];
char KeyTags[19][4];
char DateFormatNames[9][9];
char TimeFormatNames[10][9];
char HookActionNames[3][9];
char TrimActionNames[3][19];
char CounterActionNames[2][12];

bool IsLiveFunction(int funcNo) {
  return funcNo >= 0 && funcNo < kFuncCount && kCatalogueLength[funcNo] != 0;
}

void InitNameTables() {
  for (int i = 0; i < kFuncCount; ++i) SetField(FuncNames[i], kFuncNameText[i]);

  const char* dataTypes[] = {"Long", "Double", "String"};
  for (int i = 0; i < 3; ++i) Fill(DataTypeNames[i], dataTypes[i]);
  const char* pathTypes[] = {"Export", "Message", "Number", "Voice", "General"};
  for (int i = 0; i < 5; ++i) Fill(PathTypeNames[i], pathTypes[i]);
  Fill(YesNoNames[0], "No");
  Fill(YesNoNames[1], "Yes");
  const char* callOut[] = {"BusyTone=", "CallAnsw=", "NoCall=", "Operator=", "NoAnsw="};
  std::memset(CallOutTags, 0, sizeof CallOutTags);  // rows 5 and 6 are never filled
  for (int i = 0; i < 5; ++i) Fill(CallOutTags[i], callOut[i]);
  Fill(KeyCountNames[0], "Ignore");
  FillNumbers(KeyCountNames, 1, 0);
  Fill(TermKeyNames[0], "Ignore");
  for (int i = 1; i <= 10; ++i) Fill(TermKeyNames[i], std::to_string(i - 1).c_str());
  const char* termKeys[] = {"*", "#", "A", "B", "C", "D"};
  for (int i = 0; i < 6; ++i) Fill(TermKeyNames[11 + i], termKeys[i]);
  const char* layouts[] = {"All", "1", "2"};
  for (int i = 0; i < 3; ++i) Fill(SayLayoutNames[i], layouts[i]);
  const char* seps[] = {",", ";", "Space", "Tab", "None"};
  for (int i = 0; i < 5; ++i) Fill(FieldSepNames[i], seps[i]);
  const char* delims[] = {"\"", "'", "None"};
  for (int i = 0; i < 3; ++i) Fill(TextDelimNames[i], delims[i]);
  FillNumbers(HourNames, 0, 1);
  FillNumbers(MinuteNames, 0, 0);
  Fill(ToneTypeNames[0], "DTMF");
  Fill(ToneTypeNames[1], "FSK");
  for (int i = 0; i < 10; ++i) Fill(KeyTags[i], (std::to_string(i) + "=").c_str());
  const char* keyTags[] = {"#=", "*=", "A=", "B=", "C=", "D=", "H=", "U=", "T/E="};
  for (int i = 0; i < 9; ++i) Fill(KeyTags[10 + i], keyTags[i]);
  const char* dates[] = {"YYYYMMDD", "YYYYMM", "YYYY", "YYMMDD", "YYMM", "YY", "MMDD", "MM", "DD"};
  for (int i = 0; i < 9; ++i) Fill(DateFormatNames[i], dates[i]);
  const char* times[] = {"HHMMSSXX", "HHMMSS", "HHMM", "HH",     "MM",
                         "SS",       "XX",     "SSXX", "MMSSXX", "MMSS"};
  for (int i = 0; i < 10; ++i) Fill(TimeFormatNames[i], times[i]);
  const char* hooks[] = {"On hook", "Off hook", "Shutdown"};
  for (int i = 0; i < 3; ++i) Fill(HookActionNames[i], hooks[i]);
  const char* trims[] = {"Leading", "Trailing", "Leading & trailing"};
  for (int i = 0; i < 3; ++i) Fill(TrimActionNames[i], trims[i]);
  Fill(CounterActionNames[0], "Get Counter");
  Fill(CounterActionNames[1], "Set Counter");
}

void GetFuncRecordLength() {
  for (int i = 0; i < kFuncCount; ++i) {
    if (RecordLength[i] > kBlockSize) {
      ui::ProgramError("Too large record in procedure GetFuncRecordLength " +
                       Str(static_cast<int64_t>(RecordLength[i])) + "bytes.");
    }
  }
}

std::string StringArithmeticOpr(int32_t op) {
  static const char* const kText[] = {" + ", " - ", " * ", " / ", " ^ ", " & "};
  if (op < 0 || op > 5) {
    ui::ProgramError("Illegal Operator " + Str(static_cast<int64_t>(op)) +
                     " in Global StringArithmeticOpr.");
  }
  return kText[op];
}

std::string StringRelationalOpr(int32_t op) {
  static const char* const kText[] = {" = ", " <> ", " < ", " > ", " <= ", " >= "};
  if (op < 0 || op > 5) {
    ui::ProgramError("Illegal operator " + Str(static_cast<int64_t>(op)) +
                     " in Global StringRelationalOpr.");
  }
  return kText[op];
}

// ---- The byte image of each function's record in a RecordSet.

uint8_t* RecordSet::Image(int funcNo) {
  const FunctionInfo* f = FunctionOf(funcNo);
  if (f == nullptr || !f->live()) return nullptr;
  return reinterpret_cast<uint8_t*>(this) + f->at;
}

const uint8_t* RecordSet::Image(int funcNo) const {
  return const_cast<RecordSet*>(this)->Image(funcNo);
}

}  // namespace kq
