// The state of a new document: blank entries, an empty header and the default record of
// every function.
#include <cstring>

#include "document/document.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

namespace {

template <size_t N>
void Empty(char (&field)[N]) {
  SetField(field, "");
}
template <size_t R, size_t N>
void Empty(char (&fields)[R][N]) {
  for (auto& f : fields) SetField(f, "");
}
void Blank(VarRef& v) {
  v = BlankVarRef;
}
template <size_t R>
void Blank(VarRef (&vs)[R]) {
  for (auto& v : vs) v = BlankVarRef;
}
void Blank(LabelRef& l) {
  l = BlankLabelRef;
}
template <size_t R>
void Fill(int32_t (&values)[R], int32_t value) {
  for (auto& x : values) x = value;
}

void InitFormatTarget(FormatTargetRec& r) {
  r.Format = 0;
  Blank(r.Target);
}
void InitTableError(TableErrorRec& r) {
  Empty(r.TableName);
  Blank(r.ErrorLabel);
}
// Update Record leaves its WhereValue array as it found it (all zero): only Delete
// Record and SELECT Records blank it.
void InitTableWhere(TableWhereRec& r, bool blankValues) {
  Empty(r.TableName);
  Blank(r.ErrorLabel);
  Fill(r.WhereField, 0);
  Fill(r.WhereOperator, 0);
  if (blankValues) Blank(r.WhereValue);
}
// Insert Record leaves its second label as it found it (all zero).
void InitTableNav(TableNavRec& r, bool blankSecondLabel) {
  Empty(r.TableName);
  Blank(r.ErrorLabel);
  if (blankSecondLabel) Blank(r.NoDataLabel);
}
void InitTableTarget(TableTargetRec& r) {
  Empty(r.TableName);
  Blank(r.ErrorLabel);
  Blank(r.Target);
}
void InitStringOp(StringOpRec& r) {
  Blank(r.Target);
  Blank(r.Source);
  Blank(r.Operand);
}
void InitCheckFile(CheckFileRec& r) {
  r.PathType = -1;
  Empty(r.PathVar);
  Blank(r.FileVar);
  Empty(r.CheckLabel);
  Fill(r.CheckLine, -1);
}

// Every default of a new line. Fields not named here stay zero.
void InitRecords(RecordSet& r) {
  std::memset(&r, 0, sizeof r);

  Blank(r.Assign.Target);
  Blank(r.Assign.Source);
  Blank(r.Assign.ErrorLabel);

  r.AssignPath.PathType = -1;
  Empty(r.AssignPath.TargetPath);
  Empty(r.AssignPath.SourcePath);

  Blank(r.Calculate.Target);
  Blank(r.Calculate.Left);
  Blank(r.Calculate.Right);
  r.Calculate.Operator = 0;
  Blank(r.Calculate.ErrorLabel);

  Blank(r.Condition.Left);
  Blank(r.Condition.Right);
  r.Condition.Operator = 0;
  Empty(r.Condition.ThenLabel);
  Empty(r.Condition.ElseLabel);
  r.Condition.ThenLine = -1;
  r.Condition.ElseLine = -1;

  r.Delay.DelayMs = 10;

  Empty(r.CallOut.OutcomeLabel);
  Fill(r.CallOut.OutcomeLine, -1);
  r.CallOut.Rings = 5;
  r.CallOut.WaitForDialTone = 1;
  Blank(r.CallOut.Number);

  InitFormatTarget(r.GetDate);

  Blank(r.GetKeys.Target);
  Blank(r.GetKeys.HangupLabel);
  Blank(r.GetKeys.ErrorLabel);
  Blank(r.GetKeys.TimeoutLabel);
  r.GetKeys.TimeoutSec = 10;
  r.GetKeys.Terminate = 1;

  InitFormatTarget(r.GetTime);

  Blank(r.Gosub.Target);
  Blank(r.Gosub.ErrorLabel);

  Blank(r.Goto.Target);

  Blank(r.Random.Target);
  r.Random.Lower = 0;
  r.Random.Upper = 10;

  Empty(r.RecordSound.MessagePath);
  Blank(r.RecordSound.FileName);
  r.RecordSound.MaxRecordSec = 10;
  r.RecordSound.CounterActive = 0;
  r.RecordSound.Append = 0;
  r.RecordSound.BeepBefore = 1;
  Blank(r.RecordSound.HangupLabel);
  Blank(r.RecordSound.ErrorLabel);
  Blank(r.RecordSound.SilenceLabel);
  r.RecordSound.SilenceSec = 2;

  Empty(r.Remark.RemarkText);

  r.Return.ReturnReserved = -1;
  Blank(r.Return.ErrorLabel);

  r.RSwitch.InterruptMs = 150;

  Blank(r.SayNumber.Number);
  r.SayNumber.Layout = 0;
  r.SayNumber.DisableHangup = 0;
  Blank(r.SayNumber.HangupLabel);
  Fill(r.SayNumber.PlayFlag, 0);
  Empty(r.SayNumber.SayPath);
  Empty(r.SayNumber.SayVoiceFile);

  Blank(r.VarExport.ExportVar);
  r.VarExport.FieldSep = 0;
  r.VarExport.TextDelim = 0;
  Empty(r.VarExport.ExportPath);
  Blank(r.VarExport.ExportFile);
  Blank(r.VarExport.ErrorLabel);

  Empty(r.Voice.VoicePath);
  Empty(r.Voice.VoiceFile);
  r.Voice.DisableHangup = 0;
  Blank(r.Voice.HangupLabel);
  Blank(r.Voice.ErrorLabel);

  r.WaitForCall.Rings = 2;
  r.WaitForCall.DailyGoto = 0;
  r.WaitForCall.DailyHour = 1;
  r.WaitForCall.DailyMinute = 0;
  Blank(r.WaitForCall.DailyLabel);
  r.WaitForCall.GetCallerId = 0;
  r.WaitForCall.CallerIdTone = 0;
  Blank(r.WaitForCall.CallerIdVar);
  r.WaitForCall.UpdateSystemTime = 0;
  r.WaitForCall.GetCalledId = 0;
  r.WaitForCall.CalledIdTone = 0;
  Blank(r.WaitForCall.CalledIdVar);

  Empty(r.WaitForKey.KeyLabel);
  Fill(r.WaitForKey.KeyLine, -1);
  r.WaitForKey.DisableHangup = 0;
  r.WaitForKey.TimeoutSec = 10;
  r.WaitForKey.Terminate = 1;

  Empty(r.SayFile.MessagePath);
  Blank(r.SayFile.FileName);
  Blank(r.SayFile.HangupLabel);
  Blank(r.SayFile.ErrorLabel);

  Empty(r.ConnectTable.TableName);
  r.ConnectTable.TimeoutSec = 3;
  Blank(r.ConnectTable.BusyLabel);
  Blank(r.ConnectTable.ErrorLabel);

  InitTableError(r.DisconnectTable);
  InitTableError(r.AddRecord);
  InitTableWhere(r.DeleteRecord, true);
  InitTableNav(r.GetFirstRecord, true);
  InitTableWhere(r.SelectRecords, true);
  InitTableNav(r.InsertRecord, false);
  InitTableNav(r.GetLastRecord, true);
  InitTableNav(r.GetNextRecord, true);
  InitTableNav(r.GetPrevRecord, true);
  InitTableWhere(r.UpdateRecord, false);

  InitFormatTarget(r.GetDayOfWeek);

  Blank(r.DialNumber.Number);
  r.DialNumber.WaitForDialTone = 0;
  Blank(r.DialNumber.NoDialToneLabel);
  Blank(r.DialNumber.ErrorLabel);

  InitTableTarget(r.GetRecordNo);
  InitTableTarget(r.GetNoOfRec);
  InitTableError(r.EmptyTable);
  Blank(r.GetChannelNo.Target);

  r.OnOffHook.HookAction = 0;

  r.TrimString.TrimAction = 2;
  Blank(r.TrimString.Target);
  Blank(r.TrimString.Source);

  Blank(r.LenString.Target);
  Blank(r.LenString.Source);

  InitStringOp(r.RightString);
  InitStringOp(r.LeftString);
  InitStringOp(r.InString);

  r.CheckPath.PathType = -1;
  Empty(r.CheckPath.PathVar);
  Empty(r.CheckPath.CheckLabel);
  Fill(r.CheckPath.CheckLine, -1);

  InitCheckFile(r.CheckFile);
  InitCheckFile(r.DeleteFile);

  InitFormatTarget(r.SoundFileCount);

  Empty(r.Run.RunPath);
  Blank(r.Run.FileVar);
  Blank(r.Run.Parameters);
  r.Run.WaitForTermination = 0;
  Blank(r.Run.ErrorLabel);

  Blank(r.CTBusConnect.BusVar);
  r.CTBusConnect.BusType = 0;
  Blank(r.CTBusConnect.ErrorLabel);

  Blank(r.Prototype.ProtoFunction);
  Fill(r.Prototype.ProtoCheck, 0);
  Blank(r.Prototype.ProtoVar);
  Empty(r.Prototype.ProtoLabel);
  Fill(r.Prototype.ProtoLine, -1);
  r.Prototype.PathType = -1;
  Empty(r.Prototype.ProtoPath);
  Empty(r.Prototype.TableName);
}

}  // namespace

void InitDocument() {
  ChangedFlag = false;

  BlankVarRef.VarRefType = kVarNone;
  SetField(BlankVarRef.VarRefName, "");
  SetField(BlankLabelRef.LabelRefName, "");
  BlankLabelRef.LabelRefLine = -1;
  SetField(BlankPathEntry.PathText, "");
  SetField(BlankPathEntry.PathName, "");

  std::memcpy(PrgHdr.Version, "3.10", 5);
  PrgHdr.CompiledFlag = 0;

  for (auto& v : PrgHdr.Variable) v = BlankVarRef;
  for (auto& row : PrgHdr.Path) {
    for (auto& p : row) p = BlankPathEntry;
  }
  for (auto& t : PrgHdr.Table) {
    SetField(t.TableName, "");
    for (auto& c : t.Column) c = BlankVarRef;
  }

  PrgHdr.LineCount = 0;
  SetField(BlankProgramLine.LineLabel, "");
  BlankProgramLine.LineFuncNo = -1;
  SetField(BlankProgramLine.LineFuncName, "");

  InitRecords(InitRecord);
}

}  // namespace kq
