#include "editor/compile.h"

#include <cstring>
#include <string>

#include "document/document.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/commands.h"
#include "editor/compile_index.h"
#include "editor/compile_messages.h"
#include "editor/record_view.h"
#include "editor/select_line.h"
#include "ui/model/list_controls.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

int LineCount() {
  return EditList().ListCount();
}

void ShowFault(int line, const std::string& text, const char* title = kCompilationErrorTitle) {
  SelectOnlyLine(line);
  ui::platform().MsgBox(text, ui::vbExclamation | ui::vbOKOnly, title);
}

// Loads the line's record into its function's WorkRecord and gives access to it.
RecordView LoadRecord(int line, int funcNo) {
  uint8_t* work = WorkRecord.Image(funcNo);
  std::memcpy(work, FuncBlock[line], static_cast<size_t>(RecordLength[funcNo]));
  return RecordView(work);
}

VarRef VarAt(const RecordView& rec, int offset) {
  VarRef v;
  std::memcpy(&v, rec.Field(offset, 32).data(), sizeof v);
  return v;
}

bool IsVariableType(int32_t t) {
  return t == kVarLong || t == kVarDouble || t == kVarString;
}
bool IsConstantType(int32_t t) {
  return t == kConstLong || t == kConstDouble || t == kConstString;
}

[[noreturn]] void IllegalFunction(int funcNo, const char* where) {
  ui::ProgramError(IllegalFunctionText(funcNo, where));
}
[[noreturn]] void IllegalFunctionNoNumber(const char* where) {
  ui::ProgramError(IllegalFunctionNoNumberText(where));
}

// ---- Pass 1: the variables a line names.

// Delete Record, SELECT Records and Update Record: each used condition names a column of
// the record's table (the last table of that name) and a value.
bool WhereConditionsDefined(const VariableIndex& vars, int line, const RecordView& rec) {
  const std::string_view table = rec.Field(0, 16);
  int t = -1;
  for (int k = 0; k < kMaxTables; ++k) {
    if (View(PrgHdr.Table[k].TableName) == table) t = k;
  }
  for (int i = 0; i < 5; ++i) {
    const int32_t column = rec.I32(36 + 4 * i);
    if (column <= 0) continue;
    // A condition on a table that isn't declared, or on a column beyond the table, has
    // no column to look at: the program can't go on.
    if (t < 0 || column > kTableColumns) ui::ProgramError(kSubscriptOutOfRange);
    if (!DefinedVarMsgFunc(vars, line, PrgHdr.Table[t].Column[column - 1])) return false;
    if (!DefinedVarMsgFunc(vars, line, VarAt(rec, 76 + 32 * i))) return false;
  }
  return true;
}

// True when every checked VarRef of the line is defined.
bool LineVariablesDefined(const VariableIndex& vars, int line, int f) {
  auto check = [&](const RecordView& rec, std::initializer_list<int> offsets) {
    for (int o : offsets) {
      if (!DefinedVarMsgFunc(vars, line, VarAt(rec, o))) return false;
    }
    return true;
  };
  switch (f) {
    case 0:
    case 3:
    case 45:
      return check(LoadRecord(line, f), {0, 32});
    case 2:
    case 46:
    case 47:
    case 48:
      return check(LoadRecord(line, f), {0, 32, 64});
    case 5:
      return check(LoadRecord(line, f), {148});
    case 6:
    case 8:
    case 36:
    case 52:
      return check(LoadRecord(line, f), {4});
    case 7:
    case 11:
    case 16:
    case 37:
    case 41:
      return check(LoadRecord(line, f), {0});
    case 12:
    case 21:
    case 53:  // the parameters of Run, at 60, are not checked
      return check(LoadRecord(line, f), {28});
    case 17: {
      const RecordView rec = LoadRecord(line, f);
      for (int i = 0; i < 25; ++i) {
        if (FieldEmpty(rec.VarName(32 * i))) continue;
        if (!check(rec, {32 * i})) return false;
      }
      return check(rec, {836});
    }
    case 19: {
      const RecordView rec = LoadRecord(line, f);
      if (rec.I32(36) != 0 && !check(rec, {44})) return false;
      if (rec.I32(80) != 0 && !check(rec, {88})) return false;
      return true;
    }
    case 27:
    case 29:
    case 34:
      return WhereConditionsDefined(vars, line, LoadRecord(line, f));
    case 38:
    case 39:
      return check(LoadRecord(line, f), {36});
    case 44:
      return check(LoadRecord(line, f), {4, 36});
    case 50:
    case 51:
      return check(LoadRecord(line, f), {32});
    case 54:  // the fifth bus variable, at 128, is not checked
      return check(LoadRecord(line, f), {0, 32, 64, 96});
    case 55: {
      const RecordView rec = LoadRecord(line, f);
      for (int i = 0; i < 8; ++i) {
        if (!check(rec, {64 + 32 * i})) return false;
      }
      return true;
    }
    default:
      if (f < 0 || f > 55) IllegalFunction(f, "UnDefinedMsgVariables");
      return true;
  }
}

// ---- Pass 2: the path variables a line names.

bool LinePathsDefined(int line, int f) {
  auto check = [&](int32_t type, const RecordView& rec, int offset) {
    return DefinedPathMsgVariable(line, type, rec.Field(offset, 28));
  };
  switch (f) {
    case 1: {
      const RecordView rec = LoadRecord(line, f);
      return check(rec.I32(0), rec, 4) && check(rec.I32(0), rec, 32);
    }
    case 12:
    case 21:
      return check(kPathMessage, LoadRecord(line, f), 0);
    case 16: {
      const RecordView rec = LoadRecord(line, f);
      if (rec.I32(60) != 0 && !check(kPathVoice, rec, 68)) return false;
      if (rec.I32(64) != 0 && !check(kPathVoice, rec, 96)) return false;
      return check(kPathNumber, rec, 124);
    }
    case 17:
      return check(kPathExport, LoadRecord(line, f), 808);
    case 18:
      return check(kPathVoice, LoadRecord(line, f), 0);
    case 49:
    case 50:
    case 51: {
      const RecordView rec = LoadRecord(line, f);
      return check(rec.I32(0), rec, 4);
    }
    case 53:
      return check(kPathGeneral, LoadRecord(line, f), 0);
    case 55: {
      const RecordView rec = LoadRecord(line, f);
      for (int i = 0; i < 4; ++i) {
        if (!check(rec.I32(480), rec, 484 + 28 * i)) return false;
      }
      return true;
    }
    default:
      if (f < 0 || f > 55) IllegalFunction(f, "UnDefinedPathMsgVariables");
      return true;
  }
}

// The offset of the table name of the functions that name a table; -1 for the others.
int TableNameOffset(int f) {
  if ((f >= 24 && f <= 34) || f == 38 || f == 39 || f == 40) return 0;
  if (f == 55) return 596;
  return -1;
}

// ---- Pass 6: the label references of a line.

// A label array resolved in place: the names at nameOffset + 16 i, their lines at
// lineOffset + 4 i; the first `mandatory` entries are looked up even when empty.
bool ResolveInPlace(const LabelIndex& labels, int line, RecordView& rec, int nameOffset,
                    int lineOffset, int entries, int mandatory) {
  for (int i = 0; i < entries; ++i) {
    const std::string_view name = rec.Label(nameOffset + 16 * i);
    if (i >= mandatory && FieldEmpty(name)) continue;
    const int target = labels.LastLine(name);
    if (target < 0) {
      ShowFault(line, LabelNotFoundText(name, line));
      return false;
    }
    rec.SetI32(lineOffset + 4 * i, target);
  }
  return true;
}

// LabelRef fields: the name at the offset, the line number behind it.
bool ResolveRefs(const LabelIndex& labels, int line, RecordView& rec,
                 std::initializer_list<int> offsets) {
  for (int o : offsets) {
    const std::string_view name = rec.Label(o);
    if (FieldEmpty(name)) continue;
    int32_t target = 0;
    if (!GetLineNo(labels, name, target, line)) return false;
    rec.SetI32(o + 16, target);
  }
  return true;
}

// Label arrays resolved through GetLineNo: empty entries keep their numbers.
bool ResolveArray(const LabelIndex& labels, int line, RecordView& rec, int nameOffset,
                  int lineOffset, int entries) {
  for (int i = 0; i < entries; ++i) {
    const std::string_view name = rec.Label(nameOffset + 16 * i);
    if (FieldEmpty(name)) continue;
    int32_t target = 0;
    if (!GetLineNo(labels, name, target, line)) return false;
    rec.SetI32(lineOffset + 4 * i, target);
  }
  return true;
}

// Resolves the labels of one line; false on the first label that is not found. A line
// whose function has labels is written back when all of them were found.
bool ResolveLine(const LabelIndex& labels, int line, int f) {
  bool ok = true;
  auto refs = [&](std::initializer_list<int> offsets) {
    RecordView rec = LoadRecord(line, f);
    ok = ResolveRefs(labels, line, rec, offsets);
  };
  switch (f) {
    case 0:
      refs({64});
      break;
    case 2:
      refs({100});
      break;
    case 7:
      refs({44, 64, 84});
      break;
    case 9:
      refs({0, 20});
      break;
    case 10:
      refs({0});
      break;
    case 12:
      refs({88, 108, 128});
      break;
    case 14:
      refs({4});
      break;
    case 16:
      refs({40});
      break;
    case 17:
      refs({868});
      break;
    case 18:
      refs({112, 132});
      break;
    case 19:
      refs({16});
      break;
    case 21:
      refs({72, 92});
      break;
    case 24:
      refs({20, 40});
      break;
    case 25:
    case 26:
    case 27:
    case 29:
    case 30:
    case 34:
    case 38:
    case 39:
    case 40:
      refs({16});
      break;
    case 28:
    case 31:
    case 32:
    case 33:
      refs({16, 36});
      break;
    case 37:
      refs({36, 56});
      break;
    case 53:
      refs({96});
      break;
    case 54:
      refs({164});
      break;
    case 5: {
      RecordView rec = LoadRecord(line, f);
      ok = ResolveArray(labels, line, rec, 0, 112, 7);
      break;
    }
    case 20: {
      RecordView rec = LoadRecord(line, f);
      ok = ResolveArray(labels, line, rec, 0, 304, 19);
      break;
    }
    case 55: {
      RecordView rec = LoadRecord(line, f);
      ok = ResolveArray(labels, line, rec, 320, 448, 8);
      break;
    }
    case 3: {  // THEN is mandatory, ELSE may be empty
      RecordView rec = LoadRecord(line, f);
      ok = ResolveInPlace(labels, line, rec, 68, 100, 2, 1);
      break;
    }
    case 49: {
      RecordView rec = LoadRecord(line, f);
      ok = ResolveInPlace(labels, line, rec, 32, 64, 2, 0);
      break;
    }
    case 50:
    case 51: {
      RecordView rec = LoadRecord(line, f);
      ok = ResolveInPlace(labels, line, rec, 64, 96, 2, 0);
      break;
    }
    case 1:
    case 4:
    case 6:
    case 8:
    case 11:
    case 13:
    case 15:
    case 36:
    case 41:
    case 43:
    case 44:
    case 45:
    case 46:
    case 47:
    case 48:
    case 52:
      return true;  // no labels: nothing is written
    default:
      IllegalFunctionNoNumber("UpdateLabels.");
  }
  if (ok) UpdateFuncParm(line, f);
  return ok;
}

}  // namespace

bool DefinedVarMsgFunc(const VariableIndex& vars, int line, const VarRef& ref) {
  if (IsConstantType(ref.VarRefType)) return true;
  if (!IsVariableType(ref.VarRefType)) {
    ui::ProgramError(IllegalVariableTypeText(ref, line));
  }
  if (vars.Defined(ref)) return true;
  ShowFault(line, UndefinedVariableText(ref, line));
  return false;
}

bool DefinedVarMsgDB(const VariableIndex& vars, std::string_view table16, int column,
                     const VarRef& ref) {
  if (IsConstantType(ref.VarRefType)) return true;
  if (!IsVariableType(ref.VarRefType)) {
    ui::ProgramError(IllegalColumnVariableTypeText(ref));
  }
  if (vars.Defined(ref)) return true;
  ui::platform().MsgBox(UndefinedColumnVariableText(ref, table16, column),
                        ui::vbExclamation | ui::vbOKOnly, kCompilationErrorTitle);
  return false;
}

bool DefinedPathMsgVariable(int line, int32_t pathType, std::string_view name28) {
  if (pathType < kPathExport || pathType > kPathGeneral) {
    ui::ProgramError(IllegalPathTypeText(name28, pathType));
  }
  for (int row = 0; row < kPathRows; ++row) {
    const PathEntry& e = PrgHdr.Path[row][pathType - kPathExport];
    if (!FieldEmpty(View(e.PathName)) && View(e.PathName) == name28) return true;
  }
  ShowFault(line, UndefinedPathText(name28));
  return false;
}

bool DefinedTableMsgFunc(int line, std::string_view table16) {
  for (const TableEntry& t : PrgHdr.Table) {
    if (!FieldEmpty(View(t.TableName)) && View(t.TableName) == table16) return true;
  }
  ShowFault(line, UndefinedTableText(table16, line));
  return false;
}

bool GetLineNo(const LabelIndex& labels, std::string_view label16, int32_t& lineNo, int line) {
  const int target = labels.LastLine(label16);
  if (target >= 0) {
    lineNo = target;
    return true;
  }
  ShowFault(line, LabelNotFoundText(label16, line), kGetLineNoTitle);
  return false;
}

bool UnDefinedMsgVariables() {
  const VariableIndex vars;
  for (const TableEntry& t : PrgHdr.Table) {
    if (FieldEmpty(View(t.TableName))) continue;
    for (int c = 0; c < kTableColumns; ++c) {
      if (FieldEmpty(View(t.Column[c].VarRefName))) continue;
      if (!DefinedVarMsgDB(vars, View(t.TableName), c + 1, t.Column[c])) return true;
    }
  }
  const int count = LineCount();
  for (int line = 0; line < count; ++line) {
    if (!LineVariablesDefined(vars, line, LineTable[line].LineFuncNo)) return true;
  }
  return false;
}

bool UnDefinedPathMsgVariables() {
  const int count = LineCount();
  for (int line = 0; line < count; ++line) {
    if (!LinePathsDefined(line, LineTable[line].LineFuncNo)) return true;
  }
  return false;
}

bool UndefinedDatabase() {
  const int count = LineCount();
  for (int line = 0; line < count; ++line) {
    const int f = LineTable[line].LineFuncNo;
    if (TableNameOffset(f) >= 0) {
      LoadRecord(line, f);
    } else if (!IsLiveFunction(f)) {
      IllegalFunctionNoNumber("UndefinedDatabase");
    }
  }
  return false;
}

bool UndefinedDatabaseTables() {
  const int count = LineCount();
  for (int line = 0; line < count; ++line) {
    const int f = LineTable[line].LineFuncNo;
    const int offset = TableNameOffset(f);
    if (offset < 0) {
      if (!IsLiveFunction(f)) IllegalFunctionNoNumber("UndefinedDatabaseTables");
      continue;
    }
    const RecordView rec = LoadRecord(line, f);
    if (!DefinedTableMsgFunc(line, rec.Field(offset, 16))) return true;
  }
  return false;
}

bool DuplicatedLabels() {
  const LabelIndex labels(LineCount());
  int i = 0, j = 0;
  if (!labels.FirstDuplicate(i, j)) return false;
  ShowFault(i, DuplicatedLabelText(View(LineTable[i].LineLabel), i, j));
  return true;
}

bool UpdateLabels() {
  const int count = LineCount();
  const LabelIndex labels(count);
  for (int line = 0; line < count; ++line) {
    if (!ResolveLine(labels, line, LineTable[line].LineFuncNo)) return false;
  }
  return true;
}

bool Compile() {
  ui::Platform& p = ui::platform();
  p.SetMousePointer(ui::vbHourglass);
  bool result = false;
  if (!UnDefinedMsgVariables() && !UnDefinedPathMsgVariables() && !UndefinedDatabase() &&
      !UndefinedDatabaseTables() && !DuplicatedLabels() && UpdateLabels()) {
    result = true;
    p.SetMousePointer(ui::vbDefault);
    p.MsgBox("Successfully compilation...", ui::vbExclamation | ui::vbOKOnly,
             "Compile Information");
  }
  p.SetMousePointer(ui::vbDefault);
  return result;
}

void CompileCommand() {
  const bool ok = Compile();
  PrgHdr.CompiledFlag = ok ? -1 : 0;
  if (ok) ChangedFlag = true;
}

}  // namespace kq
