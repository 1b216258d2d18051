// The rows of one program line in the listing. The captions are written as the authors
// aligned them by hand for each function ("Error label = ", "Error  label = " ...); they
// differ from one function to the next and are kept per function.
#include <cstring>

#include "document/catalogue.h"
#include "document/functions.h"
#include "document/record_view.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/listing.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

class LineRows {
 public:
  LineRows(const RowSink& sink, int funcNo, const std::string& indent)
      : sink_(sink), rec_(WorkRecord.Image(funcNo)), indent_(indent) {}

  void Row(const std::string& text) { sink_(indent_ + text); }
  void RowIf(int flagOffset, const std::string& text) {
    if (rec_.I32(flagOffset) != 0) Row(text);
  }
  // The text of a fixed field.
  std::string T(int offset, int width) const { return RTrimZ(rec_.Field(offset, width)); }
  std::string Path(int offset) const { return T(offset, 28); }
  std::string Table(int offset) const { return T(offset, 16); }
  std::string LabelName(int offset) const { return T(offset, 16); }
  // The name of the VarRef that starts at the offset.
  std::string V(int varOffset) const { return T(varOffset + 4, 28); }
  std::string N(int offset) const { return Num(rec_.I32(offset)); }
  // A number as the number-to-text conversion gives it, with its sign blank.
  std::string S(int offset) const { return Str(int64_t{rec_.I32(offset)}); }
  std::string Line(int offset) const { return Format0000(rec_.I32(offset)); }
  bool Empty(int offset, int width) const { return FieldEmpty(rec_.Field(offset, width)); }
  int32_t I(int offset) const { return rec_.I32(offset); }

  template <size_t R, size_t W>
  std::string Name(const char (&table)[R][W], int32_t index) const {
    if (index < 0 || static_cast<size_t>(index) >= R) throw ListingFault("Subscript out of range");
    return kq::Row(table[index]);
  }
  std::string PathTypeName(int offset) const {
    return Name(PathTypeNames, I(offset) - kPathExport);
  }
  std::string YesNo(int offset) const { return Name(YesNoNames, I(offset)); }

  // The label row: caption, label, " -> ", its line (behind the name unless the label
  // array keeps it elsewhere); only for a label that is not empty.
  void L(int offset, const std::string& caption) { L(offset, caption, offset + 16); }
  void L(int offset, const std::string& caption, int lineOffset) {
    if (!Empty(offset, 16)) Row(caption + LabelName(offset) + " -> " + Line(lineOffset));
  }
  // A label of a label array with its line, or "CONTINUE" when it is empty.
  std::string TargetOrContinue(int nameOffset, int lineOffset) const {
    if (Empty(nameOffset, 16)) return "CONTINUE";
    return LabelName(nameOffset) + " -> " + Line(lineOffset);
  }
  // The labels of Check Path, Check File and Delete File.
  void CheckTargets(int names, int lines) {
    Row(TargetOrContinue(names, lines));
    Row("ELSE");
    Row(TargetOrContinue(names + 16, lines + 4));
    Row("END IF");
  }
  // The names of Variable Export (perRow 3) and the voice files of Voice (perRow 2):
  // joined by " & " while the next entry is named, so many to a row.
  void NameList(std::string text, int first, int stride, int nameWidth, int entries, int perRow) {
    int counter = 0;
    for (int i = 0; i < entries; ++i) {
      const int at = first + stride * i;
      if (Empty(at, nameWidth)) continue;
      ++counter;
      text += T(at, nameWidth);
      if (i < entries - 1 && !Empty(at + stride, nameWidth)) text += " & ";
      if (counter == perRow) {
        sink_(text);
        counter = 0;
        text = indent_;
      }
    }
    if (counter > 0) sink_(text);
  }
  void WhereConditions() {
    for (int i = 0; i < 5; ++i) {
      const int32_t column = I(36 + 4 * i);
      if (column <= 0) continue;
      Row("Field table nr. =" + Str(int64_t{column}) + StringRelationalOpr(I(56 + 4 * i)) +
          V(76 + 32 * i));
    }
  }
  const std::string& Indent() const { return indent_; }

 private:
  const RowSink& sink_;
  RecordView rec_;
  std::string indent_;
};

void WriteParameters(LineRows& r, int f) {
  switch (ToFn(f)) {
    case Fn::Assign:
      r.Row(r.V(0) + " = " + r.V(32));
      r.L(64, "Error label = ");
      break;
    case Fn::AssignPath:
      r.Row(r.PathTypeName(0) + ":  " + r.Path(4) + " = " + r.Path(32));
      break;
    case Fn::Calculate:
      r.Row(r.V(0) + " = " + r.V(32) + StringArithmeticOpr(r.I(96)) + r.V(64));
      r.L(100, "Error label = ");
      break;
    case Fn::Condition:
      r.Row("IF " + r.V(0) + StringRelationalOpr(r.I(64)) + r.V(32) + " THEN");
      r.L(68, "", 100);
      if (!r.Empty(84, 16)) {
        r.Row("ELSE");
        r.L(84, "", 104);
      }
      r.Row("END IF");
      break;
    case Fn::Delay:
    case Fn::RSwitch:
      r.Row(r.N(0) + "ms");
      break;
    case Fn::CallOut:
      r.Row(r.V(148));
      for (int i = 0; i < 7; ++i) {
        if (r.Empty(16 * i, 16)) continue;
        r.Row(r.Name(CallOutTags, i) + "   " + r.LabelName(16 * i) + " -> " + r.Line(112 + 4 * i));
      }
      r.RowIf(140, "Number of rings = " + r.N(140));
      r.Row("Wait for dial tone = " + r.YesNo(144));
      break;
    case Fn::GetDate:
      r.Row(r.V(4) + " = " + r.Name(DateFormatNames, r.I(0)));
      break;
    case Fn::GetKeys:
      r.Row(r.V(0));
      r.Row("Number of keys  = " + r.Name(KeyCountNames, r.I(32)));
      r.Row("Termination key = " + r.Name(TermKeyNames, r.I(36)));
      r.RowIf(40, "Disable hangup detection");
      r.L(44, "Hangup  label = ");
      r.L(64, "Error   label = ");
      r.L(84, "Timeout label = ");
      r.Row("Timeout =" + r.S(104) + "sec.");
      r.Row("Terminate = " + r.YesNo(108));
      break;
    case Fn::GetTime:
      r.Row(r.V(4) + " = " + r.Name(TimeFormatNames, r.I(0)));
      break;
    case Fn::Gosub:
      r.L(0, "");
      r.L(20, "Error label = ");
      break;
    case Fn::Goto:
      r.L(0, "");
      break;
    case Fn::Random:
      r.Row(r.N(32) + " <= " + r.V(0) + " <= " + r.N(36));
      break;
    case Fn::RecordSound:
      r.Row(r.Path(0) + "\\" + r.V(28));
      r.Row("Max. recording time =" + r.S(60) + "sec.");
      r.RowIf(64, "Sound file counter active");
      r.RowIf(68, "Append");
      r.RowIf(72, "Beep before recording");
      r.RowIf(76, "Don't record silence");
      r.RowIf(80, "Beep during silence");
      r.RowIf(84, "Disable hangup detection");
      r.L(88, "Hangup label = ");
      r.L(108, "Error label = ");
      r.L(128, "Silence label = ");
      r.Row("Silence timeout =" + r.S(148) + "sec.");
      break;
    case Fn::Remark:
      r.Row(NulToBlank(
          std::string_view(reinterpret_cast<const char*>(WorkRecord.Remark.RemarkText), 52)));
      break;
    case Fn::Return:
      r.Row(r.N(0));
      r.L(4, "Error label = ");
      break;
    case Fn::SayNumber:
      r.Row(r.V(0) + "\\" + r.Path(124) + "  Layout = " + r.Name(SayLayoutNames, r.I(32)));
      r.Row("After period = " + r.Path(68) + "\\" + r.T(152, 16));
      r.Row("At the end = " + r.Path(96) + "\\" + r.T(168, 16));
      r.RowIf(36, "Disable hangup detection");
      r.L(40, "Hangup label = ");
      break;
    case Fn::VariableExport:
      r.Row(r.Path(808) + "\\" + r.V(836));
      r.NameList(r.Indent(), 4, 32, 28, 25, 3);
      r.Row("Field separator = " + r.Name(FieldSepNames, r.I(800)));
      r.Row("Text delimitor  = " + r.Name(TextDelimNames, r.I(804)));
      r.L(868, "Error label = ");
      break;
    case Fn::Voice:
      r.NameList(r.Indent() + r.Path(0) + "\\", 28, 16, 16, 5, 2);
      r.RowIf(108, "Disable hangup detection");
      r.L(112, "Hangup label = ");
      r.L(132, "Error label  = ");
      break;
    case Fn::WaitForCall:
      r.Row("Number of rings = " + r.N(0));
      if (r.I(4) != 0) {
        r.Row("At " + r.Name(HourNames, r.I(8) - 1) + "." + r.Name(MinuteNames, r.I(12)) +
              " o'clock goto " + r.LabelName(16) + " -> " + r.Line(32));
      }
      if (r.I(36) != 0) {
        r.Row("Caller id. tone   = " + r.N(40));
        r.Row("Caller id. number = " + r.V(44));
        r.Row(r.I(40) == 1 ? "FSK" : r.N(40));
      }
      r.RowIf(76, "Update system time");
      if (r.I(80) != 0) {
        r.Row("Called id. tone   = " + r.N(84));
        r.Row("Called id. number = " + r.V(88));
      }
      break;
    case Fn::WaitForKey:
      r.RowIf(380, "Disable hangup detection");
      for (int i = 0; i < 19; ++i) {
        if (r.Empty(16 * i, 16)) continue;
        r.Row(r.Name(KeyTags, i) + "   " + r.LabelName(16 * i) + " -> " + r.Line(304 + 4 * i));
      }
      r.Row("Timeout =" + r.S(384) + "sec.");
      r.Row("Terminate = " + r.YesNo(388));
      break;
    case Fn::SayFile:
      r.Row(r.Path(0) + "\\" + r.V(28));
      r.RowIf(60, "Sound file counter active");
      r.RowIf(64, "Rate and gain control");
      r.RowIf(68, "Disable hangup detection");
      r.L(72, "Hangup label = ");
      r.L(92, "Error label = ");
      break;
    case Fn::ConnectTable:
      r.Row(r.Table(0));
      r.Row("Timeout     = " + r.N(16) + "sec.");
      r.L(20, "Busy  label = ");
      r.L(40, "Error label = ");
      break;
    case Fn::DisconnectTable:
    case Fn::AddRecord:
    case Fn::EmptyTable:
      r.Row(r.Table(0));
      r.L(16, "Error  label = ");
      break;
    case Fn::DeleteRecord:
    case Fn::UpdateRecord:
      r.Row(r.Table(0));
      r.L(16, "Error   label = ");
      r.WhereConditions();
      break;
    case Fn::SelectRecords:
      r.Row(r.Table(0));
      r.L(16, "Error label = ");
      r.WhereConditions();
      break;
    case Fn::GetFirstRecord:
    case Fn::GetLastRecord:
    case Fn::GetNextRecord:
    case Fn::GetPrevRecord:
      r.Row(r.Table(0));
      r.L(16, "Error   label = ");
      r.L(36, "No Data label = ");
      break;
    case Fn::InsertRecord:
      r.Row(r.Table(0));
      r.L(16, "Error  label  = ");
      break;
    case Fn::GetDayOfWeek:
      r.Row(r.V(4) + (r.I(0) == 0 ? "   1=Monday, 2=Tuesday ... 7=Sunday"
                                  : "   1=Sunday, 2=Monday ... 7=Saturday"));
      break;
    case Fn::DialNumber:
      r.Row(r.V(0));
      r.Row(r.YesNo(32));
      r.L(36, "No dial tone label = ");
      r.L(56, "Error label = ");
      break;
    case Fn::GetRecordNo:
      r.Row(r.Table(0) + "  Record number = " + r.V(36));
      r.L(16, "Error  label = ");
      break;
    case Fn::GetNoOfRec:
      r.Row(r.Table(0));
      r.Row("Variable " + r.V(36) + " = No. of records in database table");
      r.L(16, "Error  label = ");
      break;
    case Fn::GetChannelNo:
      r.Row(r.V(0));
      break;
    case Fn::OnOffHook:
      r.Row(r.Name(HookActionNames, r.I(0)));
      break;
    case Fn::TrimString:
      r.Row(r.V(36) + " = TRIM( " + r.V(4) + " )");
      r.Row("A = " + r.Name(TrimActionNames, r.I(0)));
      break;
    case Fn::LenString:
      r.Row(r.V(0) + " = LEN( " + r.V(32) + " )");
      break;
    case Fn::RightString:
      r.Row(r.V(0) + " = RIGHT( " + r.V(32) + " , " + r.V(64) + " )");
      break;
    case Fn::LeftString:
      r.Row(r.V(0) + " = LEFT( " + r.V(32) + " , " + r.V(64) + " )");
      break;
    case Fn::InString:
      r.Row(r.V(0) + " = INSTR( " + r.V(32) + " , " + r.V(64) + " )");
      break;
    case Fn::CheckPath:
      r.Row("Path Type = " + r.PathTypeName(0));
      r.Row("IF " + r.Path(4) + " DO NOT EXISTS THEN");
      r.CheckTargets(32, 64);
      break;
    case Fn::CheckFile:
      r.Row("Path Type = " + r.PathTypeName(0));
      r.Row("Path Variable = " + r.Path(4));
      r.Row("IF " + r.V(32) + " DO NOT EXISTS THEN");
      r.CheckTargets(64, 96);
      break;
    case Fn::DeleteFile:
      r.Row("Path Type      = " + r.PathTypeName(0));
      r.Row("Path Variable  = " + r.Path(4));
      r.Row("File to delete = " + r.V(32));
      r.Row("IF THE FILE WASN'T DELETED THEN");
      r.CheckTargets(64, 96);
      break;
    case Fn::SoundFileCount:
      r.Row(r.Name(CounterActionNames, r.I(0)) + "  Variable = " + r.V(4));
      break;
    case Fn::Run:
      r.Row("Path Variable = " + r.Path(0));
      r.Row("File Name     = " + r.V(28));
      if (!r.Empty(64, 28)) r.Row("Parameters    = " + r.V(60));
      r.Row("Wait for termination of program = " + r.YesNo(92));
      r.L(96, "Error label = ");
      break;
    case Fn::CTBusConnect:
      r.Row((r.I(160) == 0 ? "MVIP - Board Number  = " : "H.100 - Board Number  = ") + r.V(0));
      r.Row("From Stream   = " + r.V(32));
      r.Row("From Timeslot = " + r.V(64));
      r.Row("To Stream     = " + r.V(96));
      r.Row("To Timeslot   = " + r.V(128));
      r.L(164, "Error label = ");
      break;
    case Fn::Prototype:
      r.Row("Function=" + r.V(0));
      for (int i = 0; i < 8; ++i) r.Row("Check" + Num(i) + "=" + r.YesNo(32 + 4 * i));
      for (int i = 0; i < 8; ++i) r.Row("Variable" + Num(i) + "=" + r.V(64 + 32 * i));
      for (int i = 0; i < 8; ++i) r.Row("Label" + Num(i) + "=" + r.LabelName(320 + 16 * i));
      r.Row("Path Type = " + r.PathTypeName(480));
      for (int i = 0; i < 4; ++i) r.Row("Path Variable " + Num(i) + "= " + r.Path(484 + 28 * i));
      r.Row("Database table name = " + r.Table(596));
      break;
    default:
      ui::ProgramError("Illegal Function Number in frmEdit - mnuPrint.");
  }
}

}  // namespace

void WriteLineRows(const RowSink& row, int line) {
  const ProgramLine& pl = LineTable[line];
  const std::string prefix = Format0000(line) + "  " + NulToBlank(View(pl.LineLabel)) + "  " +
                             NulToBlank(View(pl.LineFuncName)) + "  ";
  row(prefix);
  const int f = pl.LineFuncNo;
  if (!IsLiveFunction(f)) ui::ProgramError("Illegal Function Number in frmEdit - mnuPrint.");
  std::memcpy(WorkRecord.Image(f), FuncBlock[line], static_cast<size_t>(RecordLength[f]));
  LineRows rows(row, f, std::string(prefix.size() - 17, ' '));
  WriteParameters(rows, f);
}

}  // namespace kq
