// The 56 slots of the function catalogue by name, so that code branches on `Fn::Voice`
// rather than on a bare number. The empty slots 22, 23, 35 and 42 keep their places.
#pragma once

#include <cstdint>

namespace kq {

enum class Fn : int32_t {
  Assign = 0,
  AssignPath = 1,
  Calculate = 2,
  Condition = 3,
  Delay = 4,
  CallOut = 5,
  GetDate = 6,
  GetKeys = 7,
  GetTime = 8,
  Gosub = 9,
  Goto = 10,
  Random = 11,
  RecordSound = 12,
  Remark = 13,
  Return = 14,
  RSwitch = 15,
  SayNumber = 16,
  VariableExport = 17,
  Voice = 18,
  WaitForCall = 19,
  WaitForKey = 20,
  SayFile = 21,
  Empty22 = 22,
  Empty23 = 23,
  ConnectTable = 24,
  DisconnectTable = 25,
  AddRecord = 26,
  DeleteRecord = 27,
  GetFirstRecord = 28,
  SelectRecords = 29,
  InsertRecord = 30,
  GetLastRecord = 31,
  GetNextRecord = 32,
  GetPrevRecord = 33,
  UpdateRecord = 34,
  Empty35 = 35,
  GetDayOfWeek = 36,
  DialNumber = 37,
  GetRecordNo = 38,
  GetNoOfRec = 39,
  EmptyTable = 40,
  GetChannelNo = 41,
  Empty42 = 42,
  OnOffHook = 43,
  TrimString = 44,
  LenString = 45,
  RightString = 46,
  LeftString = 47,
  InString = 48,
  CheckPath = 49,
  CheckFile = 50,
  DeleteFile = 51,
  SoundFileCount = 52,
  Run = 53,
  CTBusConnect = 54,
  Prototype = 55,
};

inline constexpr int32_t ToInt(Fn f) { return static_cast<int32_t>(f); }
inline constexpr Fn ToFn(int32_t n) { return static_cast<Fn>(n); }

}  // namespace kq
