// The one table of functions: per catalogue slot its record (type, place in a RecordSet,
// size) and the places of the fields that name a variable, a path variable, a database
// table or a label, with what the editor needs declared before the function's dialog
// opens. Every offset is taken from the record structs of records.h, so the layout is
// written once. Compile, the scans, the listing and the dialogs walk this table instead of
// branching on function numbers.
//
// The passes do not all look at the same fields: compile checks some variables the scans
// never compare and the other way round, and the label scan skips a few labels compile
// resolves. Each field says which pass looks at it; those lists are the system's own and
// are kept exactly.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <type_traits>

#include "document/catalogue.h"
#include "document/functions.h"
#include "document/header.h"
#include "document/records.h"

namespace kq {

// A short list of fields held inline, so that a table entry is a constant.
template <typename T, size_t N = 4>
struct FieldList {
  T items[N]{};
  uint8_t count = 0;

  constexpr FieldList() = default;
  constexpr FieldList(std::initializer_list<T> list) {
    for (const T& item : list) items[count++] = item;  // more than N does not compile
  }
  constexpr const T* begin() const { return items; }
  constexpr const T* end() const { return items + count; }
  constexpr bool empty() const { return count == 0; }
  constexpr size_t size() const { return count; }
};

// Whether a pass looks at a variable field: never, always, or only when it has a name.
enum class Look : uint8_t { Never, Always, IfNamed };

// `count` VarRefs 32 bytes apart from `offset`. `guard`, when not -1, is the offset of an
// int32 flag that must be set for the field to count in either pass.
struct VarField {
  uint16_t offset = 0;
  uint8_t count = 1;
  Look compile = Look::Always;
  Look scan = Look::Always;
  int16_t guard = -1;
};

// `count` path names of 28 bytes, 28 apart. The path type is `type` when it is fixed, or
// the int32 at `typeOffset` of the record (type 0). `guard` as for VarField.
struct PathField {
  uint16_t offset = 0;
  uint8_t count = 1;
  int32_t type = 0;
  int16_t typeOffset = -1;
  int16_t guard = -1;
};

// How a label field holds its names and their lines.
enum class LabelForm : uint8_t {
  Ref,     // a LabelRef: the 16-byte name, its line behind it
  List,    // names 16 apart, lines 4 apart elsewhere; empty entries are skipped
  Branch,  // like List, but resolved in place: the first `mandatory` entries even when empty
};

struct LabelField {
  uint16_t name = 0;
  uint16_t line = 0;
  uint8_t count = 1;
  LabelForm form = LabelForm::Ref;
  uint8_t mandatory = 0;
  bool scanned = true;  // false: compile resolves it, the label scan does not compare it
};

// The variables a function needs declared before its dialog opens.
enum class VarNeed : uint8_t { None, Any, LongOrString, Long, String, LongAndString };
// The path variables it needs: one of the types, or any type (but General).
enum class PathNeed : uint8_t {
  None,
  AnyType,
  AnyButGeneral,
  Message,
  Number,
  Export,
  Voice,
  General
};
// The declarations checked before the dialog opens.
inline constexpr uint8_t kNeedsVar = 1, kNeedsPath = 2, kNeedsTable = 4;

struct FunctionInfo {
  Fn fn = Fn::Assign;
  const char* record = nullptr;  // the record struct's name; nullptr for an empty slot
  uint16_t at = 0;               // the record's offset in a RecordSet
  uint16_t size = 0;             // its size; 0 for an empty slot
  FieldList<VarField, 3> vars{};
  FieldList<PathField, 3> paths{};
  FieldList<LabelField, 3> labels{};
  int16_t table = -1;  // the offset of the 16-byte table name, or -1
  bool where = false;  // the five conditions of a TableWhereRec
  VarNeed varNeed = VarNeed::None;
  PathNeed pathNeed = PathNeed::None;
  uint8_t needs = 0;  // kNeedsVar | kNeedsPath | kNeedsTable, checked before the dialog

  constexpr bool live() const { return size != 0; }
};

namespace function_table_detail {

template <typename Rec, typename Member>
constexpr uint16_t SizeOf() {
  static_assert(std::is_same_v<Rec, Member>, "the RecordSet member has another record type");
  return static_cast<uint16_t>(sizeof(Rec));
}

constexpr VarField Var(size_t offset, int count = 1, Look compile = Look::Always,
                       Look scan = Look::Always, size_t guard = size_t(-1)) {
  return {static_cast<uint16_t>(offset), static_cast<uint8_t>(count), compile, scan,
          static_cast<int16_t>(guard == size_t(-1) ? -1 : static_cast<int>(guard))};
}
constexpr PathField FixedPath(int32_t type, size_t offset, size_t guard = size_t(-1)) {
  return {static_cast<uint16_t>(offset), 1, type, -1,
          static_cast<int16_t>(guard == size_t(-1) ? -1 : static_cast<int>(guard))};
}
constexpr PathField TypedPath(size_t typeOffset, size_t offset, int count = 1) {
  return {static_cast<uint16_t>(offset), static_cast<uint8_t>(count), 0,
          static_cast<int16_t>(typeOffset), -1};
}
constexpr LabelField Ref(size_t offset, bool scanned = true) {
  return {static_cast<uint16_t>(offset),
          static_cast<uint16_t>(offset + 16),
          1,
          LabelForm::Ref,
          0,
          scanned};
}
constexpr LabelField List(size_t names, size_t lines, int count) {
  return {static_cast<uint16_t>(names),
          static_cast<uint16_t>(lines),
          static_cast<uint8_t>(count),
          LabelForm::List,
          0,
          true};
}
constexpr LabelField Branch(size_t names, size_t lines, int count, int mandatory) {
  return {static_cast<uint16_t>(names),    static_cast<uint16_t>(lines),
          static_cast<uint8_t>(count),     LabelForm::Branch,
          static_cast<uint8_t>(mandatory), true};
}

}  // namespace function_table_detail

// clang-format off
#define KQ_REC(Rec, member)                                \
  #Rec, static_cast<uint16_t>(offsetof(RecordSet, member)), \
      function_table_detail::SizeOf<Rec, decltype(RecordSet::member)>()
#define KQ_AT(Rec, field) offsetof(Rec, field)

inline constexpr std::array<FunctionInfo, kFuncCount> kFunctions = [] {
  using namespace function_table_detail;
  constexpr Look A = Look::Always, N = Look::Never, I = Look::IfNamed;
  constexpr uint8_t V = kNeedsVar, P = kNeedsPath, T = kNeedsTable;
  std::array<FunctionInfo, kFuncCount> t{};
  for (int i = 0; i < kFuncCount; ++i) t[i].fn = ToFn(i);
  auto set = [&t](FunctionInfo f) { t[ToInt(f.fn)] = f; };

  set({Fn::Assign, KQ_REC(AssignRec, Assign),
       {Var(KQ_AT(AssignRec, Target)), Var(KQ_AT(AssignRec, Source))}, {},
       {Ref(KQ_AT(AssignRec, ErrorLabel))}, -1, false, VarNeed::Any, PathNeed::None, V});
  set({Fn::AssignPath, KQ_REC(AssignPathRec, AssignPath), {},
       {TypedPath(KQ_AT(AssignPathRec, PathType), KQ_AT(AssignPathRec, TargetPath)),
        TypedPath(KQ_AT(AssignPathRec, PathType), KQ_AT(AssignPathRec, SourcePath))},
       {}, -1, false, VarNeed::None, PathNeed::AnyType, P});
  set({Fn::Calculate, KQ_REC(CalculateRec, Calculate),
       {Var(KQ_AT(CalculateRec, Target)), Var(KQ_AT(CalculateRec, Left)),
        Var(KQ_AT(CalculateRec, Right))}, {},
       {Ref(KQ_AT(CalculateRec, ErrorLabel))}, -1, false, VarNeed::Any, PathNeed::None, V});
  // THEN is mandatory, ELSE may be empty.
  set({Fn::Condition, KQ_REC(ConditionRec, Condition),
       {Var(KQ_AT(ConditionRec, Left)), Var(KQ_AT(ConditionRec, Right))}, {},
       {Branch(KQ_AT(ConditionRec, ThenLabel), KQ_AT(ConditionRec, ThenLine), 2, 1)},
       -1, false, VarNeed::Any, PathNeed::None, V});
  set({Fn::Delay, KQ_REC(DelayRec, Delay)});
  set({Fn::CallOut, KQ_REC(CallOutRec, CallOut), {Var(KQ_AT(CallOutRec, Number))}, {},
       {List(KQ_AT(CallOutRec, OutcomeLabel), KQ_AT(CallOutRec, OutcomeLine), 7)},
       -1, false, VarNeed::LongOrString, PathNeed::None, V});
  set({Fn::GetDate, KQ_REC(FormatTargetRec, GetDate), {Var(KQ_AT(FormatTargetRec, Target))},
       {}, {}, -1, false, VarNeed::LongOrString, PathNeed::None, V});
  set({Fn::GetKeys, KQ_REC(GetKeysRec, GetKeys), {Var(KQ_AT(GetKeysRec, Target))}, {},
       {Ref(KQ_AT(GetKeysRec, HangupLabel)), Ref(KQ_AT(GetKeysRec, ErrorLabel)),
        Ref(KQ_AT(GetKeysRec, TimeoutLabel))},
       -1, false, VarNeed::Any, PathNeed::None, V});
  set({Fn::GetTime, KQ_REC(FormatTargetRec, GetTime), {Var(KQ_AT(FormatTargetRec, Target))},
       {}, {}, -1, false, VarNeed::LongOrString, PathNeed::None, V});
  set({Fn::Gosub, KQ_REC(GosubRec, Gosub), {}, {},
       {Ref(KQ_AT(GosubRec, Target)), Ref(KQ_AT(GosubRec, ErrorLabel))}});
  set({Fn::Goto, KQ_REC(GotoRec, Goto), {}, {}, {Ref(KQ_AT(GotoRec, Target))}});
  set({Fn::Random, KQ_REC(RandomRec, Random), {Var(KQ_AT(RandomRec, Target), 1, A, N)}, {}, {},
       -1, false, VarNeed::Long, PathNeed::None, V});
  set({Fn::RecordSound, KQ_REC(RecordSoundRec, RecordSound),
       {Var(KQ_AT(RecordSoundRec, FileName), 1, A, I)},
       {FixedPath(kPathMessage, KQ_AT(RecordSoundRec, MessagePath))},
       {Ref(KQ_AT(RecordSoundRec, HangupLabel)), Ref(KQ_AT(RecordSoundRec, ErrorLabel)),
        Ref(KQ_AT(RecordSoundRec, SilenceLabel))},
       -1, false, VarNeed::String, PathNeed::Message, V | P});
  set({Fn::Remark, KQ_REC(RemarkRec, Remark)});
  set({Fn::Return, KQ_REC(ReturnRec, Return), {}, {}, {Ref(KQ_AT(ReturnRec, ErrorLabel))}});
  set({Fn::RSwitch, KQ_REC(RSwitchRec, RSwitch)});
  set({Fn::SayNumber, KQ_REC(SayNumberRec, SayNumber), {Var(KQ_AT(SayNumberRec, Number))},
       {FixedPath(kPathVoice, KQ_AT(SayNumberRec, SayPath[0]), KQ_AT(SayNumberRec, PlayFlag[0])),
        FixedPath(kPathVoice, KQ_AT(SayNumberRec, SayPath[1]), KQ_AT(SayNumberRec, PlayFlag[1])),
        FixedPath(kPathNumber, KQ_AT(SayNumberRec, SayPath[2]))},
       {Ref(KQ_AT(SayNumberRec, HangupLabel), false)},
       -1, false, VarNeed::Any, PathNeed::Number, V | P});
  set({Fn::VariableExport, KQ_REC(VarExportRec, VarExport),
       {Var(KQ_AT(VarExportRec, ExportVar), 25, I, I), Var(KQ_AT(VarExportRec, ExportFile))},
       {FixedPath(kPathExport, KQ_AT(VarExportRec, ExportPath))},
       {Ref(KQ_AT(VarExportRec, ErrorLabel))}, -1, false, VarNeed::Any, PathNeed::Export, V | P});
  set({Fn::Voice, KQ_REC(VoiceRec, Voice), {},
       {FixedPath(kPathVoice, KQ_AT(VoiceRec, VoicePath))},
       {Ref(KQ_AT(VoiceRec, HangupLabel)), Ref(KQ_AT(VoiceRec, ErrorLabel), false)},
       -1, false, VarNeed::None, PathNeed::Voice, P});
  set({Fn::WaitForCall, KQ_REC(WaitForCallRec, WaitForCall),
       {Var(KQ_AT(WaitForCallRec, CallerIdVar), 1, A, A, KQ_AT(WaitForCallRec, GetCallerId)),
        Var(KQ_AT(WaitForCallRec, CalledIdVar), 1, A, N, KQ_AT(WaitForCallRec, GetCalledId))},
       {}, {Ref(KQ_AT(WaitForCallRec, DailyLabel), false)},
       -1, false, VarNeed::LongOrString, PathNeed::None, 0});
  set({Fn::WaitForKey, KQ_REC(WaitForKeyRec, WaitForKey), {}, {},
       {List(KQ_AT(WaitForKeyRec, KeyLabel), KQ_AT(WaitForKeyRec, KeyLine), 19)}});
  set({Fn::SayFile, KQ_REC(SayFileRec, SayFile), {Var(KQ_AT(SayFileRec, FileName), 1, A, I)},
       {FixedPath(kPathMessage, KQ_AT(SayFileRec, MessagePath))},
       {Ref(KQ_AT(SayFileRec, HangupLabel)), Ref(KQ_AT(SayFileRec, ErrorLabel))},
       -1, false, VarNeed::String, PathNeed::Message, V | P});
  set({Fn::ConnectTable, KQ_REC(ConnectTableRec, ConnectTable), {}, {},
       {Ref(KQ_AT(ConnectTableRec, BusyLabel)), Ref(KQ_AT(ConnectTableRec, ErrorLabel))},
       KQ_AT(ConnectTableRec, TableName), false, VarNeed::None, PathNeed::None, T});
  set({Fn::DisconnectTable, KQ_REC(TableErrorRec, DisconnectTable), {}, {},
       {Ref(KQ_AT(TableErrorRec, ErrorLabel))}, KQ_AT(TableErrorRec, TableName), false,
       VarNeed::None, PathNeed::None, T});
  set({Fn::AddRecord, KQ_REC(TableErrorRec, AddRecord), {}, {},
       {Ref(KQ_AT(TableErrorRec, ErrorLabel))}, KQ_AT(TableErrorRec, TableName), false,
       VarNeed::None, PathNeed::None, T});
  set({Fn::DeleteRecord, KQ_REC(TableWhereRec, DeleteRecord), {}, {},
       {Ref(KQ_AT(TableWhereRec, ErrorLabel))}, KQ_AT(TableWhereRec, TableName), true,
       VarNeed::None, PathNeed::None, T});
  set({Fn::GetFirstRecord, KQ_REC(TableNavRec, GetFirstRecord), {}, {},
       {Ref(KQ_AT(TableNavRec, ErrorLabel)), Ref(KQ_AT(TableNavRec, NoDataLabel), false)},
       KQ_AT(TableNavRec, TableName), false, VarNeed::None, PathNeed::None, T});
  set({Fn::SelectRecords, KQ_REC(TableWhereRec, SelectRecords), {}, {},
       {Ref(KQ_AT(TableWhereRec, ErrorLabel))}, KQ_AT(TableWhereRec, TableName), true,
       VarNeed::None, PathNeed::None, T});
  // Insert Record's No Data label is neither resolved nor compared.
  set({Fn::InsertRecord, KQ_REC(TableNavRec, InsertRecord), {}, {},
       {Ref(KQ_AT(TableNavRec, ErrorLabel))}, KQ_AT(TableNavRec, TableName), false,
       VarNeed::None, PathNeed::None, T});
  set({Fn::GetLastRecord, KQ_REC(TableNavRec, GetLastRecord), {}, {},
       {Ref(KQ_AT(TableNavRec, ErrorLabel)), Ref(KQ_AT(TableNavRec, NoDataLabel), false)},
       KQ_AT(TableNavRec, TableName), false, VarNeed::None, PathNeed::None, T});
  set({Fn::GetNextRecord, KQ_REC(TableNavRec, GetNextRecord), {}, {},
       {Ref(KQ_AT(TableNavRec, ErrorLabel)), Ref(KQ_AT(TableNavRec, NoDataLabel), false)},
       KQ_AT(TableNavRec, TableName), false, VarNeed::None, PathNeed::None, T});
  set({Fn::GetPrevRecord, KQ_REC(TableNavRec, GetPrevRecord), {}, {},
       {Ref(KQ_AT(TableNavRec, ErrorLabel)), Ref(KQ_AT(TableNavRec, NoDataLabel), false)},
       KQ_AT(TableNavRec, TableName), false, VarNeed::None, PathNeed::None, T});
  set({Fn::UpdateRecord, KQ_REC(TableWhereRec, UpdateRecord), {}, {},
       {Ref(KQ_AT(TableWhereRec, ErrorLabel))}, KQ_AT(TableWhereRec, TableName), true,
       VarNeed::None, PathNeed::None, T});
  set({Fn::GetDayOfWeek, KQ_REC(FormatTargetRec, GetDayOfWeek),
       {Var(KQ_AT(FormatTargetRec, Target))}, {}, {}, -1, false, VarNeed::LongOrString,
       PathNeed::None, V});
  set({Fn::DialNumber, KQ_REC(DialNumberRec, DialNumber), {Var(KQ_AT(DialNumberRec, Number))},
       {},
       {Ref(KQ_AT(DialNumberRec, NoDialToneLabel), false),
        Ref(KQ_AT(DialNumberRec, ErrorLabel), false)},
       -1, false, VarNeed::LongOrString, PathNeed::None, V});
  set({Fn::GetRecordNo, KQ_REC(TableTargetRec, GetRecordNo),
       {Var(KQ_AT(TableTargetRec, Target))}, {}, {Ref(KQ_AT(TableTargetRec, ErrorLabel))},
       KQ_AT(TableTargetRec, TableName), false, VarNeed::Long, PathNeed::None, T | V});
  set({Fn::GetNoOfRec, KQ_REC(TableTargetRec, GetNoOfRec),
       {Var(KQ_AT(TableTargetRec, Target))}, {}, {Ref(KQ_AT(TableTargetRec, ErrorLabel))},
       KQ_AT(TableTargetRec, TableName), false, VarNeed::Long, PathNeed::None, T | V});
  set({Fn::EmptyTable, KQ_REC(TableErrorRec, EmptyTable), {}, {},
       {Ref(KQ_AT(TableErrorRec, ErrorLabel))}, KQ_AT(TableErrorRec, TableName), false,
       VarNeed::None, PathNeed::None, T});
  set({Fn::GetChannelNo, KQ_REC(TargetRec, GetChannelNo), {Var(KQ_AT(TargetRec, Target))}, {},
       {}, -1, false, VarNeed::Long, PathNeed::None, V});
  set({Fn::OnOffHook, KQ_REC(HookRec, OnOffHook)});
  set({Fn::TrimString, KQ_REC(TrimStringRec, TrimString),
       {Var(KQ_AT(TrimStringRec, Target)), Var(KQ_AT(TrimStringRec, Source))}, {}, {}, -1, false,
       VarNeed::String, PathNeed::None, V});
  set({Fn::LenString, KQ_REC(LenStringRec, LenString),
       {Var(KQ_AT(LenStringRec, Target)), Var(KQ_AT(LenStringRec, Source))}, {}, {}, -1, false,
       VarNeed::LongAndString, PathNeed::None, V});
  set({Fn::RightString, KQ_REC(StringOpRec, RightString),
       {Var(KQ_AT(StringOpRec, Target)), Var(KQ_AT(StringOpRec, Source)),
        Var(KQ_AT(StringOpRec, Operand))}, {}, {}, -1, false, VarNeed::LongAndString,
       PathNeed::None, V});
  set({Fn::LeftString, KQ_REC(StringOpRec, LeftString),
       {Var(KQ_AT(StringOpRec, Target)), Var(KQ_AT(StringOpRec, Source)),
        Var(KQ_AT(StringOpRec, Operand))}, {}, {}, -1, false, VarNeed::LongAndString,
       PathNeed::None, V});
  set({Fn::InString, KQ_REC(StringOpRec, InString),
       {Var(KQ_AT(StringOpRec, Target)), Var(KQ_AT(StringOpRec, Source)),
        Var(KQ_AT(StringOpRec, Operand))}, {}, {}, -1, false, VarNeed::LongAndString,
       PathNeed::None, V});
  set({Fn::CheckPath, KQ_REC(CheckPathRec, CheckPath), {},
       {TypedPath(KQ_AT(CheckPathRec, PathType), KQ_AT(CheckPathRec, PathVar))},
       {Branch(KQ_AT(CheckPathRec, CheckLabel), KQ_AT(CheckPathRec, CheckLine), 2, 0)},
       -1, false, VarNeed::None, PathNeed::AnyType, P});
  set({Fn::CheckFile, KQ_REC(CheckFileRec, CheckFile),
       {Var(KQ_AT(CheckFileRec, FileVar), 1, A, I)},
       {TypedPath(KQ_AT(CheckFileRec, PathType), KQ_AT(CheckFileRec, PathVar))},
       {Branch(KQ_AT(CheckFileRec, CheckLabel), KQ_AT(CheckFileRec, CheckLine), 2, 0)},
       -1, false, VarNeed::String, PathNeed::AnyType, V | P});
  set({Fn::DeleteFile, KQ_REC(CheckFileRec, DeleteFile),
       {Var(KQ_AT(CheckFileRec, FileVar), 1, A, I)},
       {TypedPath(KQ_AT(CheckFileRec, PathType), KQ_AT(CheckFileRec, PathVar))},
       {Branch(KQ_AT(CheckFileRec, CheckLabel), KQ_AT(CheckFileRec, CheckLine), 2, 0)},
       -1, false, VarNeed::String, PathNeed::AnyButGeneral, V | P});
  set({Fn::SoundFileCount, KQ_REC(FormatTargetRec, SoundFileCount),
       {Var(KQ_AT(FormatTargetRec, Target), 1, A, I)}, {}, {}, -1, false, VarNeed::Long,
       PathNeed::None, V});
  // The parameters of Run are compared by the scan but not checked by compile.
  set({Fn::Run, KQ_REC(RunRec, Run),
       {Var(KQ_AT(RunRec, FileVar), 1, A, I), Var(KQ_AT(RunRec, Parameters), 1, N, I)},
       {FixedPath(kPathGeneral, KQ_AT(RunRec, RunPath))}, {Ref(KQ_AT(RunRec, ErrorLabel))},
       -1, false, VarNeed::String, PathNeed::General, V | P});
  // The fifth bus variable is compared by the scan but not checked by compile.
  set({Fn::CTBusConnect, KQ_REC(CTBusRec, CTBusConnect),
       {Var(KQ_AT(CTBusRec, BusVar), 4), Var(KQ_AT(CTBusRec, BusVar[4]), 1, N, A)}, {},
       {Ref(KQ_AT(CTBusRec, ErrorLabel))}, -1, false, VarNeed::Long, PathNeed::None, V});
  set({Fn::Prototype, KQ_REC(PrototypeRec, Prototype), {Var(KQ_AT(PrototypeRec, ProtoVar), 8)},
       {TypedPath(KQ_AT(PrototypeRec, PathType), KQ_AT(PrototypeRec, ProtoPath), 4)},
       {List(KQ_AT(PrototypeRec, ProtoLabel), KQ_AT(PrototypeRec, ProtoLine), 8)},
       KQ_AT(PrototypeRec, TableName), false, VarNeed::Long, PathNeed::AnyType, T | V | P});
  return t;
}();
// clang-format on

#undef KQ_REC
#undef KQ_AT

static_assert(
    [] {
      for (int n = 0; n < kFuncCount; ++n) {
        if (kFunctions[static_cast<size_t>(n)].size != kCatalogueLength[n]) return false;
      }
      return true;
    }(),
    "every record of the table has the catalogue's length");

// The entry of a function number; nullptr outside 0 to 55.
constexpr const FunctionInfo* FunctionOf(int funcNo) {
  if (funcNo < 0 || funcNo >= kFuncCount) return nullptr;
  return &kFunctions[static_cast<size_t>(funcNo)];
}
constexpr const FunctionInfo& FunctionOf(Fn fn) {
  return kFunctions[static_cast<size_t>(ToInt(fn))];
}

// The WHERE conditions of Delete Record, SELECT Records and Update Record.
inline constexpr size_t kWhereColumn = offsetof(TableWhereRec, WhereField);
inline constexpr size_t kWhereOperator = offsetof(TableWhereRec, WhereOperator);
inline constexpr size_t kWhereValue = offsetof(TableWhereRec, WhereValue);
inline constexpr int kWhereConditions = 5;

}  // namespace kq
