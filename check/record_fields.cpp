#include "check/record_fields.h"

#include <cstddef>
#include <cstring>

#include "document/catalogue.h"
#include "document/functions.h"
#include "document/header.h"
#include "document/records.h"
#include "document/text.h"

namespace kq::check {

namespace {

constexpr int At(size_t offset) {
  return static_cast<int>(offset);
}

void Add(std::vector<int>& out, std::initializer_list<size_t> offsets) {
  for (size_t o : offsets) out.push_back(At(o));
}

bool Named(const uint8_t* record, int offset) {
  return !FieldEmpty(FieldAt(record, offset + 4, 28));
}

}  // namespace

int32_t I32At(const uint8_t* record, int offset) {
  int32_t v;
  std::memcpy(&v, record + offset, sizeof v);
  return v;
}

void CheckedVarOffsets(int funcNo, const uint8_t* r, std::vector<int>& out) {
  if (!IsLiveFunction(funcNo)) return;
  switch (ToFn(funcNo)) {
    case Fn::Assign:
      return Add(out, {offsetof(AssignRec, Target), offsetof(AssignRec, Source)});
    case Fn::Condition:
      return Add(out, {offsetof(ConditionRec, Left), offsetof(ConditionRec, Right)});
    case Fn::LenString:
      return Add(out, {offsetof(LenStringRec, Target), offsetof(LenStringRec, Source)});
    case Fn::Calculate:
      return Add(out, {offsetof(CalculateRec, Target), offsetof(CalculateRec, Left),
                       offsetof(CalculateRec, Right)});
    case Fn::RightString:
    case Fn::LeftString:
    case Fn::InString:
      return Add(out, {offsetof(StringOpRec, Target), offsetof(StringOpRec, Source),
                       offsetof(StringOpRec, Operand)});
    case Fn::CallOut:
      return Add(out, {offsetof(CallOutRec, Number)});
    case Fn::GetDate:
    case Fn::GetTime:
    case Fn::GetDayOfWeek:
    case Fn::SoundFileCount:
      return Add(out, {offsetof(FormatTargetRec, Target)});
    case Fn::GetKeys:
    case Fn::Random:
    case Fn::SayNumber:
    case Fn::DialNumber:
    case Fn::GetChannelNo:
      return Add(out, {0});  // the first field of each of these records
    case Fn::RecordSound:
      return Add(out, {offsetof(RecordSoundRec, FileName)});
    case Fn::SayFile:
      return Add(out, {offsetof(SayFileRec, FileName)});
    case Fn::Run:  // the parameters are not checked
      return Add(out, {offsetof(RunRec, FileVar)});
    case Fn::VariableExport:
      for (int i = 0; i < 25; ++i) {
        const int o = At(offsetof(VarExportRec, ExportVar)) + 32 * i;
        if (Named(r, o)) out.push_back(o);
      }
      return Add(out, {offsetof(VarExportRec, ExportFile)});
    case Fn::WaitForCall:
      if (I32At(r, At(offsetof(WaitForCallRec, GetCallerId))) != 0) {
        Add(out, {offsetof(WaitForCallRec, CallerIdVar)});
      }
      if (I32At(r, At(offsetof(WaitForCallRec, GetCalledId))) != 0) {
        Add(out, {offsetof(WaitForCallRec, CalledIdVar)});
      }
      return;
    case Fn::GetRecordNo:
    case Fn::GetNoOfRec:
      return Add(out, {offsetof(TableTargetRec, Target)});
    case Fn::TrimString:
      return Add(out, {offsetof(TrimStringRec, Target), offsetof(TrimStringRec, Source)});
    case Fn::CheckFile:
    case Fn::DeleteFile:
      return Add(out, {offsetof(CheckFileRec, FileVar)});
    case Fn::CTBusConnect:  // the fifth bus variable is not checked
      for (int i = 0; i < 4; ++i) out.push_back(At(offsetof(CTBusRec, BusVar)) + 32 * i);
      return;
    case Fn::Prototype:
      for (int i = 0; i < 8; ++i) out.push_back(At(offsetof(PrototypeRec, ProtoVar)) + 32 * i);
      return;
    default:
      return;
  }
}

void UsedVarOffsets(int funcNo, const uint8_t* r, std::vector<int>& out) {
  if (!IsLiveFunction(funcNo)) return;
  switch (ToFn(funcNo)) {
    case Fn::Run:
      return Add(out, {offsetof(RunRec, FileVar), offsetof(RunRec, Parameters)});
    case Fn::CTBusConnect:
      for (int i = 0; i < 5; ++i) out.push_back(At(offsetof(CTBusRec, BusVar)) + 32 * i);
      return;
    case Fn::WaitForCall:
      return Add(out,
                 {offsetof(WaitForCallRec, CallerIdVar), offsetof(WaitForCallRec, CalledIdVar)});
    case Fn::Prototype:
      Add(out, {offsetof(PrototypeRec, ProtoFunction)});
      return CheckedVarOffsets(funcNo, r, out);
    case Fn::DeleteRecord:
    case Fn::SelectRecords:
    case Fn::UpdateRecord: {
      std::vector<WhereRow> rows;
      WhereRows(r, rows);
      for (const WhereRow& w : rows) out.push_back(w.valueOffset);
      return;
    }
    default:
      return CheckedVarOffsets(funcNo, r, out);
  }
}

bool HasWhereRows(int funcNo) {
  return funcNo == ToInt(Fn::DeleteRecord) || funcNo == ToInt(Fn::SelectRecords) ||
         funcNo == ToInt(Fn::UpdateRecord);
}

void WhereRows(const uint8_t* r, std::vector<WhereRow>& out) {
  for (int i = 0; i < 5; ++i) {
    const int32_t column = I32At(r, At(offsetof(TableWhereRec, WhereField)) + 4 * i);
    if (column > 0) out.push_back({column, At(offsetof(TableWhereRec, WhereValue)) + 32 * i});
  }
}

void PathFields(int funcNo, const uint8_t* r, std::vector<PathField>& out) {
  if (!IsLiveFunction(funcNo)) return;
  switch (ToFn(funcNo)) {
    case Fn::AssignPath: {
      const int32_t type = I32At(r, At(offsetof(AssignPathRec, PathType)));
      out.push_back({type, At(offsetof(AssignPathRec, TargetPath))});
      out.push_back({type, At(offsetof(AssignPathRec, SourcePath))});
      return;
    }
    case Fn::RecordSound:
      out.push_back({kPathMessage, At(offsetof(RecordSoundRec, MessagePath))});
      return;
    case Fn::SayFile:
      out.push_back({kPathMessage, At(offsetof(SayFileRec, MessagePath))});
      return;
    case Fn::SayNumber: {
      const int paths = At(offsetof(SayNumberRec, SayPath));
      const int flags = At(offsetof(SayNumberRec, PlayFlag));
      if (I32At(r, flags) != 0) out.push_back({kPathVoice, paths});
      if (I32At(r, flags + 4) != 0) out.push_back({kPathVoice, paths + 28});
      out.push_back({kPathNumber, paths + 56});  // checked whatever the flags say
      return;
    }
    case Fn::VariableExport:
      out.push_back({kPathExport, At(offsetof(VarExportRec, ExportPath))});
      return;
    case Fn::Voice:
      out.push_back({kPathVoice, At(offsetof(VoiceRec, VoicePath))});
      return;
    case Fn::CheckPath:
      out.push_back({I32At(r, 0), At(offsetof(CheckPathRec, PathVar))});
      return;
    case Fn::CheckFile:
    case Fn::DeleteFile:
      out.push_back({I32At(r, 0), At(offsetof(CheckFileRec, PathVar))});
      return;
    case Fn::Run:
      out.push_back({kPathGeneral, At(offsetof(RunRec, RunPath))});
      return;
    case Fn::Prototype: {
      const int32_t type = I32At(r, At(offsetof(PrototypeRec, PathType)));
      for (int i = 0; i < 4; ++i)
        out.push_back({type, At(offsetof(PrototypeRec, ProtoPath)) + 28 * i});
      return;
    }
    default:
      return;
  }
}

int TableNameOffset(int funcNo) {
  if ((funcNo >= ToInt(Fn::ConnectTable) && funcNo <= ToInt(Fn::UpdateRecord)) ||
      funcNo == ToInt(Fn::GetRecordNo) || funcNo == ToInt(Fn::GetNoOfRec) ||
      funcNo == ToInt(Fn::EmptyTable)) {
    return 0;
  }
  if (funcNo == ToInt(Fn::Prototype)) return At(offsetof(PrototypeRec, TableName));
  return -1;
}

}  // namespace kq::check
