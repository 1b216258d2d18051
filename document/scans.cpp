// The scans that find the lines using a variable, a path variable or a label. Each
// function has a fixed list of the fields that are compared; a field that is not listed
// is never looked at, even where it holds a reference of that kind (the pruning of a
// Save Part and the searches rely on these exact lists).
#include <cstring>

#include "document/document.h"
#include "document/field_empty.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

// Loads the line's block into its function's WorkRecord; false for an illegal number.
bool LoadWorkRecord(int line, int funcNo) {
  if (!IsLiveFunction(funcNo)) return false;
  std::memcpy(WorkRecord.Image(funcNo), FuncBlock[line], kCatalogueLength[funcNo]);
  return true;
}

[[noreturn]] void IllegalNumber(int funcNo, const char* where) {
  ui::ProgramError("Illegal Function Number " + Str(int64_t{funcNo}) + where);
}

bool Named(const VarRef& v) {
  return !EmptyField(v.VarRefName);
}

bool Eq(const VarRef& a, const VarRef& v) {
  return VarRefEqual(a, v);
}
bool EqIfNamed(const VarRef& a, const VarRef& v) {
  return Named(a) && VarRefEqual(a, v);
}
template <size_t R>
bool AnyEq(const VarRef (&as)[R], const VarRef& v) {
  for (const auto& a : as) {
    if (VarRefEqual(a, v)) return true;
  }
  return false;
}

// The key is compared over the field's whole width; a shorter key counts as padded with
// blanks, as a fixed-length assignment pads it.
template <size_t N>
bool Same(const char (&field)[N], std::string_view key) {
  if (key.size() > N) key = key.substr(0, N);
  if (std::memcmp(field, key.data(), key.size()) != 0) return false;
  for (size_t i = key.size(); i < N; ++i) {
    if (field[i] != ' ') return false;
  }
  return true;
}
bool SameLabel(const LabelRef& l, std::string_view key) {
  return Same(l.LabelRefName, key);
}
template <size_t R, size_t N>
bool AnySame(const char (&fields)[R][N], std::string_view key) {
  for (const auto& f : fields) {
    if (Same(f, key)) return true;
  }
  return false;
}

}  // namespace

bool FoundVarFunc(int line, const VarRef& v) {
  const int funcNo = LineTable[line].LineFuncNo;
  if (!LoadWorkRecord(line, funcNo)) IllegalNumber(funcNo, " in KQEditSub - FoundVarFunc");
  const RecordSet& w = WorkRecord;
  switch (funcNo) {
    case 0:
      return Eq(w.Assign.Target, v) || Eq(w.Assign.Source, v);
    case 2:
      return Eq(w.Calculate.Target, v) || Eq(w.Calculate.Left, v) || Eq(w.Calculate.Right, v);
    case 3:
      return Eq(w.Condition.Left, v) || Eq(w.Condition.Right, v);
    case 5:
      return Eq(w.CallOut.Number, v);
    case 16:
      return Eq(w.SayNumber.Number, v);
    case 37:
      return Eq(w.DialNumber.Number, v);
    case 6:
      return Eq(w.GetDate.Target, v);
    case 7:
      return Eq(w.GetKeys.Target, v);
    case 8:
      return Eq(w.GetTime.Target, v);
    case 36:
      return Eq(w.GetDayOfWeek.Target, v);
    case 41:
      return Eq(w.GetChannelNo.Target, v);
    case 12:
      return EqIfNamed(w.RecordSound.FileName, v);
    case 21:
      return EqIfNamed(w.SayFile.FileName, v);
    case 17:
      for (const auto& e : w.VarExport.ExportVar) {
        if (EqIfNamed(e, v)) return true;
      }
      return Eq(w.VarExport.ExportFile, v);
    case 19:
      return w.WaitForCall.GetCallerId != 0 && Eq(w.WaitForCall.CallerIdVar, v);
    case 38:
      return Eq(w.GetRecordNo.Target, v);
    case 39:
      return Eq(w.GetNoOfRec.Target, v);
    case 44:
      return Eq(w.TrimString.Target, v) || Eq(w.TrimString.Source, v);
    case 45:
      return Eq(w.LenString.Target, v) || Eq(w.LenString.Source, v);
    case 46:
    case 47:
    case 48: {
      const StringOpRec& s =
          funcNo == 46 ? w.RightString : (funcNo == 47 ? w.LeftString : w.InString);
      return Eq(s.Target, v) || Eq(s.Source, v) || Eq(s.Operand, v);
    }
    case 50:
      return EqIfNamed(w.CheckFile.FileVar, v);
    case 51:
      return EqIfNamed(w.DeleteFile.FileVar, v);
    case 52:
      return EqIfNamed(w.SoundFileCount.Target, v);
    case 53:
      return EqIfNamed(w.Run.FileVar, v) || EqIfNamed(w.Run.Parameters, v);
    case 54:
      return AnyEq(w.CTBusConnect.BusVar, v);
    case 55:
      return AnyEq(w.Prototype.ProtoVar, v);
    default:
      return false;
  }
}

bool FoundPathFunc(int line, int32_t pathType, std::string_view name28) {
  const int funcNo = LineTable[line].LineFuncNo;
  if (!LoadWorkRecord(line, funcNo)) IllegalNumber(funcNo, " in KQEditSub - FoundPathFunc");
  const RecordSet& w = WorkRecord;
  switch (funcNo) {
    case 1:
      return pathType == w.AssignPath.PathType &&
             (Same(w.AssignPath.TargetPath, name28) || Same(w.AssignPath.SourcePath, name28));
    case 12:
      return pathType == kPathMessage && Same(w.RecordSound.MessagePath, name28);
    case 21:
      return pathType == kPathMessage && Same(w.SayFile.MessagePath, name28);
    case 16: {
      const SayNumberRec& s = w.SayNumber;
      if (pathType == kPathVoice) {
        return (s.PlayFlag[0] != 0 && Same(s.SayPath[0], name28)) ||
               (s.PlayFlag[1] != 0 && Same(s.SayPath[1], name28));
      }
      return pathType == kPathNumber && Same(s.SayPath[2], name28);
    }
    case 17:
      return pathType == kPathExport && Same(w.VarExport.ExportPath, name28);
    case 18:
      return pathType == kPathVoice && Same(w.Voice.VoicePath, name28);
    case 49:
      return pathType == w.CheckPath.PathType && Same(w.CheckPath.PathVar, name28);
    case 50:
      return pathType == w.CheckFile.PathType && Same(w.CheckFile.PathVar, name28);
    case 51:
      return pathType == w.DeleteFile.PathType && Same(w.DeleteFile.PathVar, name28);
    case 53:
      return pathType == kPathGeneral && Same(w.Run.RunPath, name28);
    case 55:
      return pathType == w.Prototype.PathType && AnySame(w.Prototype.ProtoPath, name28);
    default:
      return false;
  }
}

bool FoundLblFunc(int line, std::string_view label16) {
  const int funcNo = LineTable[line].LineFuncNo;
  if (!LoadWorkRecord(line, funcNo)) IllegalNumber(funcNo, " in KQEDIT1 - FoundLblFunc.");
  const RecordSet& w = WorkRecord;
  const std::string_view k = label16;
  switch (funcNo) {
    case 0:
      return SameLabel(w.Assign.ErrorLabel, k);
    case 2:
      return SameLabel(w.Calculate.ErrorLabel, k);
    case 14:
      return SameLabel(w.Return.ErrorLabel, k);
    case 17:
      return SameLabel(w.VarExport.ErrorLabel, k);
    case 3:
      return Same(w.Condition.ThenLabel, k) || Same(w.Condition.ElseLabel, k);
    case 5:
      return AnySame(w.CallOut.OutcomeLabel, k);
    case 7:
      return SameLabel(w.GetKeys.HangupLabel, k) || SameLabel(w.GetKeys.ErrorLabel, k) ||
             SameLabel(w.GetKeys.TimeoutLabel, k);
    case 9:
      return SameLabel(w.Gosub.Target, k) || SameLabel(w.Gosub.ErrorLabel, k);
    case 10:
      return SameLabel(w.Goto.Target, k);
    case 12:
      return SameLabel(w.RecordSound.HangupLabel, k) || SameLabel(w.RecordSound.ErrorLabel, k) ||
             SameLabel(w.RecordSound.SilenceLabel, k);
    case 18:
      return SameLabel(w.Voice.HangupLabel, k);
    case 20:
      return AnySame(w.WaitForKey.KeyLabel, k);
    case 21:
      return SameLabel(w.SayFile.HangupLabel, k) || SameLabel(w.SayFile.ErrorLabel, k);
    case 24:
      return SameLabel(w.ConnectTable.BusyLabel, k) || SameLabel(w.ConnectTable.ErrorLabel, k);
    case 25:
      return SameLabel(w.DisconnectTable.ErrorLabel, k);
    case 26:
      return SameLabel(w.AddRecord.ErrorLabel, k);
    case 27:
      return SameLabel(w.DeleteRecord.ErrorLabel, k);
    case 28:
      return SameLabel(w.GetFirstRecord.ErrorLabel, k);
    case 29:
      return SameLabel(w.SelectRecords.ErrorLabel, k);
    case 30:
      return SameLabel(w.InsertRecord.ErrorLabel, k);
    case 31:
      return SameLabel(w.GetLastRecord.ErrorLabel, k);
    case 32:
      return SameLabel(w.GetNextRecord.ErrorLabel, k);
    case 33:
      return SameLabel(w.GetPrevRecord.ErrorLabel, k);
    case 34:
      return SameLabel(w.UpdateRecord.ErrorLabel, k);
    case 38:
      return SameLabel(w.GetRecordNo.ErrorLabel, k);
    case 39:
      return SameLabel(w.GetNoOfRec.ErrorLabel, k);
    case 40:
      return SameLabel(w.EmptyTable.ErrorLabel, k);
    case 49:
      return AnySame(w.CheckPath.CheckLabel, k);
    case 50:
      return AnySame(w.CheckFile.CheckLabel, k);
    case 51:
      return AnySame(w.DeleteFile.CheckLabel, k);
    case 53:
      return SameLabel(w.Run.ErrorLabel, k);
    case 54:
      return SameLabel(w.CTBusConnect.ErrorLabel, k);
    case 55:
      return AnySame(w.Prototype.ProtoLabel, k);
    default:
      return false;
  }
}

}  // namespace kq
