#include "textform/fields.h"

#include <type_traits>

#include "document/records.h"

namespace kq::textform {

namespace {

// The shape of member type M as a field of kind K: text is char[N] or char[K][N]; the
// other kinds are one element or an array of them.
template <Kind K, class M>
constexpr Field MakeField(const char* name, size_t offset) {
  Field f{name, static_cast<uint16_t>(offset), 1, 0, K, false};
  if constexpr (K == Kind::Text) {
    static_assert(std::rank_v<M> == 1 || std::rank_v<M> == 2);
    static_assert(std::is_same_v<std::remove_all_extents_t<M>, char>);
    if constexpr (std::rank_v<M> == 2) {
      f.count = static_cast<uint16_t>(std::extent_v<M, 0>);
      f.array = true;
    }
    f.width = static_cast<uint16_t>(std::extent_v<M, std::rank_v<M> - 1>);
  } else {
    using E = std::remove_all_extents_t<M>;
    static_assert(std::rank_v<M> <= 1);
    static_assert((K == Kind::I32 && std::is_same_v<E, int32_t>) ||
                  (K == Kind::VarRef && std::is_same_v<E, VarRef>) ||
                  (K == Kind::LabelRef && std::is_same_v<E, LabelRef>));
    if constexpr (std::rank_v<M> == 1) {
      f.count = static_cast<uint16_t>(std::extent_v<M, 0>);
      f.array = true;
    }
    f.width = static_cast<uint16_t>(sizeof(E));
  }
  return f;
}

#define KQ_FIELD(T, f, K) MakeField<Kind::K, decltype(T::f)>(#f, offsetof(T, f))
#define KQ_LAYOUT(T, ...)                         \
  constexpr Field k##T##Fields[] = {__VA_ARGS__}; \
  constexpr RecordLayout k##T {                   \
#T, sizeof(T), k##T##Fields                   \
  }

// clang-format off
KQ_LAYOUT(AssignRec,
          KQ_FIELD(AssignRec, Target, VarRef), KQ_FIELD(AssignRec, Source, VarRef),
          KQ_FIELD(AssignRec, ErrorLabel, LabelRef));
KQ_LAYOUT(AssignPathRec,
          KQ_FIELD(AssignPathRec, PathType, I32), KQ_FIELD(AssignPathRec, TargetPath, Text),
          KQ_FIELD(AssignPathRec, SourcePath, Text));
KQ_LAYOUT(CalculateRec,
          KQ_FIELD(CalculateRec, Target, VarRef), KQ_FIELD(CalculateRec, Left, VarRef),
          KQ_FIELD(CalculateRec, Right, VarRef), KQ_FIELD(CalculateRec, Operator, I32),
          KQ_FIELD(CalculateRec, ErrorLabel, LabelRef));
KQ_LAYOUT(ConditionRec,
          KQ_FIELD(ConditionRec, Left, VarRef), KQ_FIELD(ConditionRec, Right, VarRef),
          KQ_FIELD(ConditionRec, Operator, I32), KQ_FIELD(ConditionRec, ThenLabel, Text),
          KQ_FIELD(ConditionRec, ElseLabel, Text), KQ_FIELD(ConditionRec, ThenLine, I32),
          KQ_FIELD(ConditionRec, ElseLine, I32));
KQ_LAYOUT(DelayRec, KQ_FIELD(DelayRec, DelayMs, I32));
KQ_LAYOUT(CallOutRec,
          KQ_FIELD(CallOutRec, OutcomeLabel, Text), KQ_FIELD(CallOutRec, OutcomeLine, I32),
          KQ_FIELD(CallOutRec, Rings, I32), KQ_FIELD(CallOutRec, WaitForDialTone, I32),
          KQ_FIELD(CallOutRec, Number, VarRef));
KQ_LAYOUT(FormatTargetRec,
          KQ_FIELD(FormatTargetRec, Format, I32), KQ_FIELD(FormatTargetRec, Target, VarRef));
KQ_LAYOUT(GetKeysRec,
          KQ_FIELD(GetKeysRec, Target, VarRef), KQ_FIELD(GetKeysRec, KeyCount, I32),
          KQ_FIELD(GetKeysRec, TermKey, I32), KQ_FIELD(GetKeysRec, DisableHangup, I32),
          KQ_FIELD(GetKeysRec, HangupLabel, LabelRef), KQ_FIELD(GetKeysRec, ErrorLabel, LabelRef),
          KQ_FIELD(GetKeysRec, TimeoutLabel, LabelRef), KQ_FIELD(GetKeysRec, TimeoutSec, I32),
          KQ_FIELD(GetKeysRec, Terminate, I32));
KQ_LAYOUT(GosubRec,
          KQ_FIELD(GosubRec, Target, LabelRef), KQ_FIELD(GosubRec, ErrorLabel, LabelRef));
KQ_LAYOUT(GotoRec, KQ_FIELD(GotoRec, Target, LabelRef));
KQ_LAYOUT(RandomRec,
          KQ_FIELD(RandomRec, Target, VarRef), KQ_FIELD(RandomRec, Lower, I32),
          KQ_FIELD(RandomRec, Upper, I32));
KQ_LAYOUT(RecordSoundRec,
          KQ_FIELD(RecordSoundRec, MessagePath, Text), KQ_FIELD(RecordSoundRec, FileName, VarRef),
          KQ_FIELD(RecordSoundRec, MaxRecordSec, I32),
          KQ_FIELD(RecordSoundRec, CounterActive, I32), KQ_FIELD(RecordSoundRec, Append, I32),
          KQ_FIELD(RecordSoundRec, BeepBefore, I32),
          KQ_FIELD(RecordSoundRec, DontRecordSilence, I32),
          KQ_FIELD(RecordSoundRec, BeepDuringSilence, I32),
          KQ_FIELD(RecordSoundRec, DisableHangup, I32),
          KQ_FIELD(RecordSoundRec, HangupLabel, LabelRef),
          KQ_FIELD(RecordSoundRec, ErrorLabel, LabelRef),
          KQ_FIELD(RecordSoundRec, SilenceLabel, LabelRef),
          KQ_FIELD(RecordSoundRec, SilenceSec, I32));
KQ_LAYOUT(RemarkRec, KQ_FIELD(RemarkRec, RemarkText, Text));
KQ_LAYOUT(ReturnRec,
          KQ_FIELD(ReturnRec, ReturnReserved, I32), KQ_FIELD(ReturnRec, ErrorLabel, LabelRef));
KQ_LAYOUT(RSwitchRec, KQ_FIELD(RSwitchRec, InterruptMs, I32));
KQ_LAYOUT(SayNumberRec,
          KQ_FIELD(SayNumberRec, Number, VarRef), KQ_FIELD(SayNumberRec, Layout, I32),
          KQ_FIELD(SayNumberRec, DisableHangup, I32),
          KQ_FIELD(SayNumberRec, HangupLabel, LabelRef), KQ_FIELD(SayNumberRec, PlayFlag, I32),
          KQ_FIELD(SayNumberRec, SayPath, Text), KQ_FIELD(SayNumberRec, SayVoiceFile, Text));
KQ_LAYOUT(VarExportRec,
          KQ_FIELD(VarExportRec, ExportVar, VarRef), KQ_FIELD(VarExportRec, FieldSep, I32),
          KQ_FIELD(VarExportRec, TextDelim, I32), KQ_FIELD(VarExportRec, ExportPath, Text),
          KQ_FIELD(VarExportRec, ExportFile, VarRef),
          KQ_FIELD(VarExportRec, ErrorLabel, LabelRef));
KQ_LAYOUT(VoiceRec,
          KQ_FIELD(VoiceRec, VoicePath, Text), KQ_FIELD(VoiceRec, VoiceFile, Text),
          KQ_FIELD(VoiceRec, DisableHangup, I32), KQ_FIELD(VoiceRec, HangupLabel, LabelRef),
          KQ_FIELD(VoiceRec, ErrorLabel, LabelRef));
KQ_LAYOUT(WaitForCallRec,
          KQ_FIELD(WaitForCallRec, Rings, I32), KQ_FIELD(WaitForCallRec, DailyGoto, I32),
          KQ_FIELD(WaitForCallRec, DailyHour, I32), KQ_FIELD(WaitForCallRec, DailyMinute, I32),
          KQ_FIELD(WaitForCallRec, DailyLabel, LabelRef),
          KQ_FIELD(WaitForCallRec, GetCallerId, I32),
          KQ_FIELD(WaitForCallRec, CallerIdTone, I32),
          KQ_FIELD(WaitForCallRec, CallerIdVar, VarRef),
          KQ_FIELD(WaitForCallRec, UpdateSystemTime, I32),
          KQ_FIELD(WaitForCallRec, GetCalledId, I32),
          KQ_FIELD(WaitForCallRec, CalledIdTone, I32),
          KQ_FIELD(WaitForCallRec, CalledIdVar, VarRef));
KQ_LAYOUT(WaitForKeyRec,
          KQ_FIELD(WaitForKeyRec, KeyLabel, Text), KQ_FIELD(WaitForKeyRec, KeyLine, I32),
          KQ_FIELD(WaitForKeyRec, DisableHangup, I32), KQ_FIELD(WaitForKeyRec, TimeoutSec, I32),
          KQ_FIELD(WaitForKeyRec, Terminate, I32));
KQ_LAYOUT(SayFileRec,
          KQ_FIELD(SayFileRec, MessagePath, Text), KQ_FIELD(SayFileRec, FileName, VarRef),
          KQ_FIELD(SayFileRec, CounterActive, I32), KQ_FIELD(SayFileRec, RateGainControl, I32),
          KQ_FIELD(SayFileRec, DisableHangup, I32), KQ_FIELD(SayFileRec, HangupLabel, LabelRef),
          KQ_FIELD(SayFileRec, ErrorLabel, LabelRef));
KQ_LAYOUT(ConnectTableRec,
          KQ_FIELD(ConnectTableRec, TableName, Text), KQ_FIELD(ConnectTableRec, TimeoutSec, I32),
          KQ_FIELD(ConnectTableRec, BusyLabel, LabelRef),
          KQ_FIELD(ConnectTableRec, ErrorLabel, LabelRef));
KQ_LAYOUT(TableErrorRec,
          KQ_FIELD(TableErrorRec, TableName, Text), KQ_FIELD(TableErrorRec, ErrorLabel, LabelRef));
KQ_LAYOUT(TableWhereRec,
          KQ_FIELD(TableWhereRec, TableName, Text), KQ_FIELD(TableWhereRec, ErrorLabel, LabelRef),
          KQ_FIELD(TableWhereRec, WhereField, I32), KQ_FIELD(TableWhereRec, WhereOperator, I32),
          KQ_FIELD(TableWhereRec, WhereValue, VarRef));
KQ_LAYOUT(TableNavRec,
          KQ_FIELD(TableNavRec, TableName, Text), KQ_FIELD(TableNavRec, ErrorLabel, LabelRef),
          KQ_FIELD(TableNavRec, NoDataLabel, LabelRef));
KQ_LAYOUT(DialNumberRec,
          KQ_FIELD(DialNumberRec, Number, VarRef), KQ_FIELD(DialNumberRec, WaitForDialTone, I32),
          KQ_FIELD(DialNumberRec, NoDialToneLabel, LabelRef),
          KQ_FIELD(DialNumberRec, ErrorLabel, LabelRef));
KQ_LAYOUT(TableTargetRec,
          KQ_FIELD(TableTargetRec, TableName, Text), KQ_FIELD(TableTargetRec, ErrorLabel, LabelRef),
          KQ_FIELD(TableTargetRec, Target, VarRef));
KQ_LAYOUT(TargetRec, KQ_FIELD(TargetRec, Target, VarRef));
KQ_LAYOUT(HookRec, KQ_FIELD(HookRec, HookAction, I32));
KQ_LAYOUT(TrimStringRec,
          KQ_FIELD(TrimStringRec, TrimAction, I32), KQ_FIELD(TrimStringRec, Target, VarRef),
          KQ_FIELD(TrimStringRec, Source, VarRef));
KQ_LAYOUT(LenStringRec,
          KQ_FIELD(LenStringRec, Target, VarRef), KQ_FIELD(LenStringRec, Source, VarRef));
KQ_LAYOUT(StringOpRec,
          KQ_FIELD(StringOpRec, Target, VarRef), KQ_FIELD(StringOpRec, Source, VarRef),
          KQ_FIELD(StringOpRec, Operand, VarRef));
KQ_LAYOUT(CheckPathRec,
          KQ_FIELD(CheckPathRec, PathType, I32), KQ_FIELD(CheckPathRec, PathVar, Text),
          KQ_FIELD(CheckPathRec, CheckLabel, Text), KQ_FIELD(CheckPathRec, CheckLine, I32));
KQ_LAYOUT(CheckFileRec,
          KQ_FIELD(CheckFileRec, PathType, I32), KQ_FIELD(CheckFileRec, PathVar, Text),
          KQ_FIELD(CheckFileRec, FileVar, VarRef), KQ_FIELD(CheckFileRec, CheckLabel, Text),
          KQ_FIELD(CheckFileRec, CheckLine, I32));
KQ_LAYOUT(RunRec,
          KQ_FIELD(RunRec, RunPath, Text), KQ_FIELD(RunRec, FileVar, VarRef),
          KQ_FIELD(RunRec, Parameters, VarRef), KQ_FIELD(RunRec, WaitForTermination, I32),
          KQ_FIELD(RunRec, ErrorLabel, LabelRef));
KQ_LAYOUT(CTBusRec,
          KQ_FIELD(CTBusRec, BusVar, VarRef), KQ_FIELD(CTBusRec, BusType, I32),
          KQ_FIELD(CTBusRec, ErrorLabel, LabelRef));
KQ_LAYOUT(PrototypeRec,
          KQ_FIELD(PrototypeRec, ProtoFunction, VarRef), KQ_FIELD(PrototypeRec, ProtoCheck, I32),
          KQ_FIELD(PrototypeRec, ProtoVar, VarRef), KQ_FIELD(PrototypeRec, ProtoLabel, Text),
          KQ_FIELD(PrototypeRec, ProtoLine, I32), KQ_FIELD(PrototypeRec, PathType, I32),
          KQ_FIELD(PrototypeRec, ProtoPath, Text), KQ_FIELD(PrototypeRec, TableName, Text));

struct FunctionLayout {
  Fn fn;
  const RecordLayout* layout;
};

constexpr FunctionLayout kFunctions[] = {
    {Fn::Assign, &kAssignRec},              {Fn::AssignPath, &kAssignPathRec},
    {Fn::Calculate, &kCalculateRec},        {Fn::Condition, &kConditionRec},
    {Fn::Delay, &kDelayRec},                {Fn::CallOut, &kCallOutRec},
    {Fn::GetDate, &kFormatTargetRec},       {Fn::GetKeys, &kGetKeysRec},
    {Fn::GetTime, &kFormatTargetRec},       {Fn::Gosub, &kGosubRec},
    {Fn::Goto, &kGotoRec},                  {Fn::Random, &kRandomRec},
    {Fn::RecordSound, &kRecordSoundRec},    {Fn::Remark, &kRemarkRec},
    {Fn::Return, &kReturnRec},              {Fn::RSwitch, &kRSwitchRec},
    {Fn::SayNumber, &kSayNumberRec},        {Fn::VariableExport, &kVarExportRec},
    {Fn::Voice, &kVoiceRec},                {Fn::WaitForCall, &kWaitForCallRec},
    {Fn::WaitForKey, &kWaitForKeyRec},      {Fn::SayFile, &kSayFileRec},
    {Fn::ConnectTable, &kConnectTableRec},  {Fn::DisconnectTable, &kTableErrorRec},
    {Fn::AddRecord, &kTableErrorRec},       {Fn::DeleteRecord, &kTableWhereRec},
    {Fn::GetFirstRecord, &kTableNavRec},    {Fn::SelectRecords, &kTableWhereRec},
    {Fn::InsertRecord, &kTableNavRec},      {Fn::GetLastRecord, &kTableNavRec},
    {Fn::GetNextRecord, &kTableNavRec},     {Fn::GetPrevRecord, &kTableNavRec},
    {Fn::UpdateRecord, &kTableWhereRec},    {Fn::GetDayOfWeek, &kFormatTargetRec},
    {Fn::DialNumber, &kDialNumberRec},      {Fn::GetRecordNo, &kTableTargetRec},
    {Fn::GetNoOfRec, &kTableTargetRec},     {Fn::EmptyTable, &kTableErrorRec},
    {Fn::GetChannelNo, &kTargetRec},        {Fn::OnOffHook, &kHookRec},
    {Fn::TrimString, &kTrimStringRec},      {Fn::LenString, &kLenStringRec},
    {Fn::RightString, &kStringOpRec},       {Fn::LeftString, &kStringOpRec},
    {Fn::InString, &kStringOpRec},          {Fn::CheckPath, &kCheckPathRec},
    {Fn::CheckFile, &kCheckFileRec},        {Fn::DeleteFile, &kCheckFileRec},
    {Fn::SoundFileCount, &kFormatTargetRec}, {Fn::Run, &kRunRec},
    {Fn::CTBusConnect, &kCTBusRec},         {Fn::Prototype, &kPrototypeRec},
};
// clang-format on

#undef KQ_LAYOUT
#undef KQ_FIELD

}  // namespace

const RecordLayout* LayoutOf(Fn fn) {
  for (const FunctionLayout& f : kFunctions) {
    if (f.fn == fn) return f.layout;
  }
  return nullptr;
}

}  // namespace kq::textform
