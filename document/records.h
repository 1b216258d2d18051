// The function records: one plain struct per record layout, whose byte image is the file
// form and the form in the line's FuncBlock. Sizes and offsets are checked below.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kq {

static_assert(sizeof(int32_t) == 4 && sizeof(int16_t) == 2);

// VarRefType values.
inline constexpr int32_t kVarNone = -1;
inline constexpr int32_t kVarLong = 0;
inline constexpr int32_t kVarDouble = 1;
inline constexpr int32_t kVarString = 2;
inline constexpr int32_t kConstLong = 8;
inline constexpr int32_t kConstDouble = 9;
inline constexpr int32_t kConstString = 10;

struct VarRef {
  int32_t VarRefType;
  char VarRefName[28];
};

struct LabelRef {
  char LabelRefName[16];
  int32_t LabelRefLine;
};

// 0 Assign
struct AssignRec {
  VarRef Target;
  VarRef Source;
  LabelRef ErrorLabel;
};
// 1 Assign Path
struct AssignPathRec {
  int32_t PathType;
  char TargetPath[28];
  char SourcePath[28];
};
// 2 Calculate
struct CalculateRec {
  VarRef Target;
  VarRef Left;
  VarRef Right;
  int32_t Operator;
  LabelRef ErrorLabel;
};
// 3 Condition
struct ConditionRec {
  VarRef Left;
  VarRef Right;
  int32_t Operator;
  char ThenLabel[16];
  char ElseLabel[16];
  int32_t ThenLine;
  int32_t ElseLine;
};
// 4 Delay
struct DelayRec {
  int32_t DelayMs;
};
// 5 Call Out
struct CallOutRec {
  char OutcomeLabel[7][16];
  int32_t OutcomeLine[7];
  int32_t Rings;
  int32_t WaitForDialTone;
  VarRef Number;
};
// 6 Get Date, 8 Get Time, 36 Get Day Of Week, 52 Sound File Count
struct FormatTargetRec {
  int32_t Format;
  VarRef Target;
};
// 7 Get Keys
struct GetKeysRec {
  VarRef Target;
  int32_t KeyCount;
  int32_t TermKey;
  int32_t DisableHangup;
  LabelRef HangupLabel;
  LabelRef ErrorLabel;
  LabelRef TimeoutLabel;
  int32_t TimeoutSec;
  int32_t Terminate;
};
// 9 Gosub
struct GosubRec {
  LabelRef Target;
  LabelRef ErrorLabel;
};
// 10 Goto
struct GotoRec {
  LabelRef Target;
};
// 11 Random
struct RandomRec {
  VarRef Target;
  int32_t Lower;
  int32_t Upper;
};
// 12 Record Sound
struct RecordSoundRec {
  char MessagePath[28];
  VarRef FileName;
  int32_t MaxRecordSec;
  int32_t CounterActive;
  int32_t Append;
  int32_t BeepBefore;
  int32_t DontRecordSilence;
  int32_t BeepDuringSilence;
  int32_t DisableHangup;
  LabelRef HangupLabel;
  LabelRef ErrorLabel;
  LabelRef SilenceLabel;
  int32_t SilenceSec;
};
// 13 Remark
struct RemarkRec {
  char RemarkText[52];
};
// 14 Return
struct ReturnRec {
  int32_t ReturnReserved;
  LabelRef ErrorLabel;
};
// 15 R Switch
struct RSwitchRec {
  int32_t InterruptMs;
};
// 16 Say Number
struct SayNumberRec {
  VarRef Number;
  int32_t Layout;
  int32_t DisableHangup;
  LabelRef HangupLabel;
  int32_t PlayFlag[2];
  char SayPath[3][28];
  char SayVoiceFile[2][16];
};
// 17 Variable Export
struct VarExportRec {
  VarRef ExportVar[25];
  int32_t FieldSep;
  int32_t TextDelim;
  char ExportPath[28];
  VarRef ExportFile;
  LabelRef ErrorLabel;
};
// 18 Voice
struct VoiceRec {
  char VoicePath[28];
  char VoiceFile[5][16];
  int32_t DisableHangup;
  LabelRef HangupLabel;
  LabelRef ErrorLabel;
};
// 19 Wait for Call
struct WaitForCallRec {
  int32_t Rings;
  int32_t DailyGoto;
  int32_t DailyHour;
  int32_t DailyMinute;
  LabelRef DailyLabel;
  int32_t GetCallerId;
  int32_t CallerIdTone;
  VarRef CallerIdVar;
  int32_t UpdateSystemTime;
  int32_t GetCalledId;
  int32_t CalledIdTone;
  VarRef CalledIdVar;
};
// 20 Wait for Key
struct WaitForKeyRec {
  char KeyLabel[19][16];
  int32_t KeyLine[19];
  int32_t DisableHangup;
  int32_t TimeoutSec;
  int32_t Terminate;
};
// 21 Say File
struct SayFileRec {
  char MessagePath[28];
  VarRef FileName;
  int32_t CounterActive;
  int32_t RateGainControl;
  int32_t DisableHangup;
  LabelRef HangupLabel;
  LabelRef ErrorLabel;
};
// 24 Connect Table
struct ConnectTableRec {
  char TableName[16];
  int32_t TimeoutSec;
  LabelRef BusyLabel;
  LabelRef ErrorLabel;
};
// 25 Disconnect Table, 26 Add Record, 40 Empty Table
struct TableErrorRec {
  char TableName[16];
  LabelRef ErrorLabel;
};
// 27 Delete Record, 29 SELECT Records, 34 Update Record
struct TableWhereRec {
  char TableName[16];
  LabelRef ErrorLabel;
  int32_t WhereField[5];
  int32_t WhereOperator[5];
  VarRef WhereValue[5];
};
// 28 Get First Record, 30 Insert Record, 31 Get Last, 32 Get Next, 33 Get Prev. Record
struct TableNavRec {
  char TableName[16];
  LabelRef ErrorLabel;
  LabelRef NoDataLabel;
};
// 37 Dial Number
struct DialNumberRec {
  VarRef Number;
  int32_t WaitForDialTone;
  LabelRef NoDialToneLabel;
  LabelRef ErrorLabel;
};
// 38 Get Record No., 39 Get No. Of Rec.
struct TableTargetRec {
  char TableName[16];
  LabelRef ErrorLabel;
  VarRef Target;
};
// 41 Get Channel No.
struct TargetRec {
  VarRef Target;
};
// 43 On/Off Hook
struct HookRec {
  int32_t HookAction;
};
// 44 Trim String
struct TrimStringRec {
  int32_t TrimAction;
  VarRef Target;
  VarRef Source;
};
// 45 Len String
struct LenStringRec {
  VarRef Target;
  VarRef Source;
};
// 46 Right String, 47 Left String, 48 In String
struct StringOpRec {
  VarRef Target;
  VarRef Source;
  VarRef Operand;
};
// 49 Check Path
struct CheckPathRec {
  int32_t PathType;
  char PathVar[28];
  char CheckLabel[2][16];
  int32_t CheckLine[2];
};
// 50 Check File, 51 Delete File
struct CheckFileRec {
  int32_t PathType;
  char PathVar[28];
  VarRef FileVar;
  char CheckLabel[2][16];
  int32_t CheckLine[2];
};
// 53 Run
struct RunRec {
  char RunPath[28];
  VarRef FileVar;
  VarRef Parameters;
  int32_t WaitForTermination;
  LabelRef ErrorLabel;
};
// 54 CT Bus Connect
struct CTBusRec {
  VarRef BusVar[5];
  int32_t BusType;
  LabelRef ErrorLabel;
};
// 55 Prototype
struct PrototypeRec {
  VarRef ProtoFunction;
  int32_t ProtoCheck[8];
  VarRef ProtoVar[8];
  char ProtoLabel[8][16];
  int32_t ProtoLine[8];
  int32_t PathType;
  char ProtoPath[4][28];
  char TableName[16];
};

// One record of every live function: InitRecord and WorkRecord are the two instances.
struct RecordSet {
  AssignRec Assign;                // 0
  AssignPathRec AssignPath;        // 1
  CalculateRec Calculate;          // 2
  ConditionRec Condition;          // 3
  DelayRec Delay;                  // 4
  CallOutRec CallOut;              // 5
  FormatTargetRec GetDate;         // 6
  GetKeysRec GetKeys;              // 7
  FormatTargetRec GetTime;         // 8
  GosubRec Gosub;                  // 9
  GotoRec Goto;                    // 10
  RandomRec Random;                // 11
  RecordSoundRec RecordSound;      // 12
  RemarkRec Remark;                // 13
  ReturnRec Return;                // 14
  RSwitchRec RSwitch;              // 15
  SayNumberRec SayNumber;          // 16
  VarExportRec VarExport;          // 17
  VoiceRec Voice;                  // 18
  WaitForCallRec WaitForCall;      // 19
  WaitForKeyRec WaitForKey;        // 20
  SayFileRec SayFile;              // 21
  ConnectTableRec ConnectTable;    // 24
  TableErrorRec DisconnectTable;   // 25
  TableErrorRec AddRecord;         // 26
  TableWhereRec DeleteRecord;      // 27
  TableNavRec GetFirstRecord;      // 28
  TableWhereRec SelectRecords;     // 29
  TableNavRec InsertRecord;        // 30
  TableNavRec GetLastRecord;       // 31
  TableNavRec GetNextRecord;       // 32
  TableNavRec GetPrevRecord;       // 33
  TableWhereRec UpdateRecord;      // 34
  FormatTargetRec GetDayOfWeek;    // 36
  DialNumberRec DialNumber;        // 37
  TableTargetRec GetRecordNo;      // 38
  TableTargetRec GetNoOfRec;       // 39
  TableErrorRec EmptyTable;        // 40
  TargetRec GetChannelNo;          // 41
  HookRec OnOffHook;               // 43
  TrimStringRec TrimString;        // 44
  LenStringRec LenString;          // 45
  StringOpRec RightString;         // 46
  StringOpRec LeftString;          // 47
  StringOpRec InString;            // 48
  CheckPathRec CheckPath;          // 49
  CheckFileRec CheckFile;          // 50
  CheckFileRec DeleteFile;         // 51
  FormatTargetRec SoundFileCount;  // 52
  RunRec Run;                      // 53
  CTBusRec CTBusConnect;           // 54
  PrototypeRec Prototype;          // 55

  // The byte image of function n's record; nullptr for an empty slot or a number
  // outside 0 to 55.
  uint8_t* Image(int funcNo);
  const uint8_t* Image(int funcNo) const;
};

// ---- Layout checks: every size and offset of the record tables.
#define KQ_AT(T, f, off) static_assert(offsetof(T, f) == (off), #T "." #f)
static_assert(sizeof(VarRef) == 32 && sizeof(LabelRef) == 20);
KQ_AT(VarRef, VarRefName, 4);
KQ_AT(LabelRef, LabelRefLine, 16);
static_assert(sizeof(AssignRec) == 84);
KQ_AT(AssignRec, Source, 32);
KQ_AT(AssignRec, ErrorLabel, 64);
static_assert(sizeof(AssignPathRec) == 60);
KQ_AT(AssignPathRec, TargetPath, 4);
KQ_AT(AssignPathRec, SourcePath, 32);
static_assert(sizeof(CalculateRec) == 120);
KQ_AT(CalculateRec, Left, 32);
KQ_AT(CalculateRec, Right, 64);
KQ_AT(CalculateRec, Operator, 96);
KQ_AT(CalculateRec, ErrorLabel, 100);
static_assert(sizeof(ConditionRec) == 108);
KQ_AT(ConditionRec, Right, 32);
KQ_AT(ConditionRec, Operator, 64);
KQ_AT(ConditionRec, ThenLabel, 68);
KQ_AT(ConditionRec, ElseLabel, 84);
KQ_AT(ConditionRec, ThenLine, 100);
KQ_AT(ConditionRec, ElseLine, 104);
static_assert(sizeof(DelayRec) == 4);
static_assert(sizeof(CallOutRec) == 180);
KQ_AT(CallOutRec, OutcomeLine, 112);
KQ_AT(CallOutRec, Rings, 140);
KQ_AT(CallOutRec, WaitForDialTone, 144);
KQ_AT(CallOutRec, Number, 148);
static_assert(sizeof(FormatTargetRec) == 36);
KQ_AT(FormatTargetRec, Target, 4);
static_assert(sizeof(GetKeysRec) == 112);
KQ_AT(GetKeysRec, KeyCount, 32);
KQ_AT(GetKeysRec, TermKey, 36);
KQ_AT(GetKeysRec, DisableHangup, 40);
KQ_AT(GetKeysRec, HangupLabel, 44);
KQ_AT(GetKeysRec, ErrorLabel, 64);
KQ_AT(GetKeysRec, TimeoutLabel, 84);
KQ_AT(GetKeysRec, TimeoutSec, 104);
KQ_AT(GetKeysRec, Terminate, 108);
static_assert(sizeof(GosubRec) == 40);
KQ_AT(GosubRec, ErrorLabel, 20);
static_assert(sizeof(GotoRec) == 20);
static_assert(sizeof(RandomRec) == 40);
KQ_AT(RandomRec, Lower, 32);
KQ_AT(RandomRec, Upper, 36);
static_assert(sizeof(RecordSoundRec) == 152);
KQ_AT(RecordSoundRec, FileName, 28);
KQ_AT(RecordSoundRec, MaxRecordSec, 60);
KQ_AT(RecordSoundRec, CounterActive, 64);
KQ_AT(RecordSoundRec, Append, 68);
KQ_AT(RecordSoundRec, BeepBefore, 72);
KQ_AT(RecordSoundRec, DontRecordSilence, 76);
KQ_AT(RecordSoundRec, BeepDuringSilence, 80);
KQ_AT(RecordSoundRec, DisableHangup, 84);
KQ_AT(RecordSoundRec, HangupLabel, 88);
KQ_AT(RecordSoundRec, ErrorLabel, 108);
KQ_AT(RecordSoundRec, SilenceLabel, 128);
KQ_AT(RecordSoundRec, SilenceSec, 148);
static_assert(sizeof(RemarkRec) == 52);
static_assert(sizeof(ReturnRec) == 24);
KQ_AT(ReturnRec, ErrorLabel, 4);
static_assert(sizeof(RSwitchRec) == 4);
static_assert(sizeof(SayNumberRec) == 184);
KQ_AT(SayNumberRec, Layout, 32);
KQ_AT(SayNumberRec, DisableHangup, 36);
KQ_AT(SayNumberRec, HangupLabel, 40);
KQ_AT(SayNumberRec, PlayFlag, 60);
KQ_AT(SayNumberRec, SayPath, 68);
KQ_AT(SayNumberRec, SayVoiceFile, 152);
static_assert(sizeof(VarExportRec) == 888);
KQ_AT(VarExportRec, FieldSep, 800);
KQ_AT(VarExportRec, TextDelim, 804);
KQ_AT(VarExportRec, ExportPath, 808);
KQ_AT(VarExportRec, ExportFile, 836);
KQ_AT(VarExportRec, ErrorLabel, 868);
static_assert(sizeof(VoiceRec) == 152);
KQ_AT(VoiceRec, VoiceFile, 28);
KQ_AT(VoiceRec, DisableHangup, 108);
KQ_AT(VoiceRec, HangupLabel, 112);
KQ_AT(VoiceRec, ErrorLabel, 132);
static_assert(sizeof(WaitForCallRec) == 120);
KQ_AT(WaitForCallRec, DailyGoto, 4);
KQ_AT(WaitForCallRec, DailyHour, 8);
KQ_AT(WaitForCallRec, DailyMinute, 12);
KQ_AT(WaitForCallRec, DailyLabel, 16);
KQ_AT(WaitForCallRec, GetCallerId, 36);
KQ_AT(WaitForCallRec, CallerIdTone, 40);
KQ_AT(WaitForCallRec, CallerIdVar, 44);
KQ_AT(WaitForCallRec, UpdateSystemTime, 76);
KQ_AT(WaitForCallRec, GetCalledId, 80);
KQ_AT(WaitForCallRec, CalledIdTone, 84);
KQ_AT(WaitForCallRec, CalledIdVar, 88);
static_assert(sizeof(WaitForKeyRec) == 392);
KQ_AT(WaitForKeyRec, KeyLine, 304);
KQ_AT(WaitForKeyRec, DisableHangup, 380);
KQ_AT(WaitForKeyRec, TimeoutSec, 384);
KQ_AT(WaitForKeyRec, Terminate, 388);
static_assert(sizeof(SayFileRec) == 112);
KQ_AT(SayFileRec, FileName, 28);
KQ_AT(SayFileRec, CounterActive, 60);
KQ_AT(SayFileRec, RateGainControl, 64);
KQ_AT(SayFileRec, DisableHangup, 68);
KQ_AT(SayFileRec, HangupLabel, 72);
KQ_AT(SayFileRec, ErrorLabel, 92);
static_assert(sizeof(ConnectTableRec) == 60);
KQ_AT(ConnectTableRec, TimeoutSec, 16);
KQ_AT(ConnectTableRec, BusyLabel, 20);
KQ_AT(ConnectTableRec, ErrorLabel, 40);
static_assert(sizeof(TableErrorRec) == 36);
KQ_AT(TableErrorRec, ErrorLabel, 16);
static_assert(sizeof(TableWhereRec) == 236);
KQ_AT(TableWhereRec, ErrorLabel, 16);
KQ_AT(TableWhereRec, WhereField, 36);
KQ_AT(TableWhereRec, WhereOperator, 56);
KQ_AT(TableWhereRec, WhereValue, 76);
static_assert(sizeof(TableNavRec) == 56);
KQ_AT(TableNavRec, NoDataLabel, 36);
static_assert(sizeof(DialNumberRec) == 76);
KQ_AT(DialNumberRec, WaitForDialTone, 32);
KQ_AT(DialNumberRec, NoDialToneLabel, 36);
KQ_AT(DialNumberRec, ErrorLabel, 56);
static_assert(sizeof(TableTargetRec) == 68);
KQ_AT(TableTargetRec, Target, 36);
static_assert(sizeof(TargetRec) == 32);
static_assert(sizeof(HookRec) == 4);
static_assert(sizeof(TrimStringRec) == 68);
KQ_AT(TrimStringRec, Target, 4);
KQ_AT(TrimStringRec, Source, 36);
static_assert(sizeof(LenStringRec) == 64);
static_assert(sizeof(StringOpRec) == 96);
KQ_AT(StringOpRec, Operand, 64);
static_assert(sizeof(CheckPathRec) == 72);
KQ_AT(CheckPathRec, PathVar, 4);
KQ_AT(CheckPathRec, CheckLabel, 32);
KQ_AT(CheckPathRec, CheckLine, 64);
static_assert(sizeof(CheckFileRec) == 104);
KQ_AT(CheckFileRec, FileVar, 32);
KQ_AT(CheckFileRec, CheckLabel, 64);
KQ_AT(CheckFileRec, CheckLine, 96);
static_assert(sizeof(RunRec) == 116);
KQ_AT(RunRec, FileVar, 28);
KQ_AT(RunRec, Parameters, 60);
KQ_AT(RunRec, WaitForTermination, 92);
KQ_AT(RunRec, ErrorLabel, 96);
static_assert(sizeof(CTBusRec) == 184);
KQ_AT(CTBusRec, BusType, 160);
KQ_AT(CTBusRec, ErrorLabel, 164);
static_assert(sizeof(PrototypeRec) == 612);
KQ_AT(PrototypeRec, ProtoCheck, 32);
KQ_AT(PrototypeRec, ProtoVar, 64);
KQ_AT(PrototypeRec, ProtoLabel, 320);
KQ_AT(PrototypeRec, ProtoLine, 448);
KQ_AT(PrototypeRec, PathType, 480);
KQ_AT(PrototypeRec, ProtoPath, 484);
KQ_AT(PrototypeRec, TableName, 596);
#undef KQ_AT

}  // namespace kq
