#include "editor/compile.h"

#include <cstring>
#include <string>

#include "document/document.h"
#include "document/function_table.h"
#include "document/record_view.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/commands.h"
#include "editor/compile_index.h"
#include "editor/select_line.h"
#include "ui/model/list_controls.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

constexpr char kCompilationError[] = "Compilation Error";

int LineCount() {
  return EditList().ListCount();
}

void ShowFault(int line, const std::string& text, const char* title = kCompilationError) {
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
  ui::ProgramError("Illegal Function Number" + Str(int64_t{funcNo}) + " in frmEdit - " + where);
}
[[noreturn]] void IllegalFunctionNoNumber(const char* where) {
  ui::ProgramError(std::string("Illegal Function Number in frmEdit - ") + where);
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
  for (int i = 0; i < kWhereConditions; ++i) {
    const int32_t column = rec.I32(static_cast<int>(kWhereColumn) + 4 * i);
    if (column <= 0) continue;
    // A condition on a table that isn't declared, or on a column beyond the table, has
    // no column to look at: the program can't go on.
    if (t < 0 || column > kTableColumns) ui::ProgramError("Subscript out of range");
    if (!DefinedVarMsgFunc(vars, line, PrgHdr.Table[t].Column[column - 1])) return false;
    if (!DefinedVarMsgFunc(vars, line, VarAt(rec, static_cast<int>(kWhereValue) + 32 * i))) {
      return false;
    }
  }
  return true;
}

bool HasCheckedVariables(const FunctionInfo& fn) {
  if (fn.where) return true;
  for (const VarField& f : fn.vars) {
    if (f.compile != Look::Never) return true;
  }
  return false;
}

// True when every checked VarRef of the line is defined.
bool LineVariablesDefined(const VariableIndex& vars, int line, int funcNo) {
  const FunctionInfo* fn = FunctionOf(funcNo);
  if (fn == nullptr) IllegalFunction(funcNo, "UnDefinedMsgVariables");
  if (!HasCheckedVariables(*fn)) return true;
  const RecordView rec = LoadRecord(line, funcNo);
  for (const VarField& f : fn->vars) {
    if (f.compile == Look::Never) continue;
    if (f.guard >= 0 && rec.I32(f.guard) == 0) continue;
    for (int i = 0; i < f.count; ++i) {
      const int at = f.offset + 32 * i;
      if (f.compile == Look::IfNamed && FieldEmpty(rec.VarName(at))) continue;
      if (!DefinedVarMsgFunc(vars, line, VarAt(rec, at))) return false;
    }
  }
  return !fn->where || WhereConditionsDefined(vars, line, rec);
}

// ---- Pass 2: the path variables a line names.

bool LinePathsDefined(int line, int funcNo) {
  const FunctionInfo* fn = FunctionOf(funcNo);
  if (fn == nullptr) IllegalFunction(funcNo, "UnDefinedPathMsgVariables");
  if (fn->paths.empty()) return true;
  const RecordView rec = LoadRecord(line, funcNo);
  for (const PathField& f : fn->paths) {
    if (f.guard >= 0 && rec.I32(f.guard) == 0) continue;
    const int32_t type = f.typeOffset >= 0 ? rec.I32(f.typeOffset) : f.type;
    for (int i = 0; i < f.count; ++i) {
      if (!DefinedPathMsgVariable(line, type, rec.Field(f.offset + 28 * i, 28))) return false;
    }
  }
  return true;
}

// ---- Pass 6: the label references of a line.

// A label array resolved in place: the first `mandatory` entries are looked up even when
// empty, and a missing label is reported without the title of GetLineNo.
bool ResolveInPlace(const LabelIndex& labels, int line, RecordView& rec, const LabelField& f) {
  for (int i = 0; i < f.count; ++i) {
    const std::string_view name = rec.Label(f.name + 16 * i);
    if (i >= f.mandatory && FieldEmpty(name)) continue;
    const int target = labels.LastLine(name);
    if (target < 0) {
      ShowFault(line, "Label '" + RTrimZ(name) + "' not found in line" + Str(int64_t{line}));
      return false;
    }
    rec.SetI32(f.line + 4 * i, target);
  }
  return true;
}

// Labels resolved through GetLineNo: empty entries keep their numbers.
bool ResolveThroughGetLineNo(const LabelIndex& labels, int line, RecordView& rec,
                             const LabelField& f) {
  for (int i = 0; i < f.count; ++i) {
    const std::string_view name = rec.Label(f.name + 16 * i);
    if (FieldEmpty(name)) continue;
    int32_t target = 0;
    if (!GetLineNo(labels, name, target, line)) return false;
    rec.SetI32(f.line + 4 * i, target);
  }
  return true;
}

// Resolves the labels of one line; false on the first label that is not found. A line
// whose function has labels is written back when all of them were found.
bool ResolveLine(const LabelIndex& labels, int line, int funcNo) {
  const FunctionInfo* fn = FunctionOf(funcNo);
  if (fn == nullptr || !fn->live()) IllegalFunctionNoNumber("UpdateLabels.");
  if (fn->labels.empty()) return true;  // no labels: nothing is written
  RecordView rec = LoadRecord(line, funcNo);
  for (const LabelField& f : fn->labels) {
    const bool ok = f.form == LabelForm::Branch ? ResolveInPlace(labels, line, rec, f)
                                                : ResolveThroughGetLineNo(labels, line, rec, f);
    if (!ok) return false;
  }
  UpdateFuncParm(line, funcNo);
  return true;
}

}  // namespace

bool DefinedVarMsgFunc(const VariableIndex& vars, int line, const VarRef& ref) {
  if (IsConstantType(ref.VarRefType)) return true;
  if (!IsVariableType(ref.VarRefType)) {
    ui::ProgramError("Illegal variable type '" + NulToBlank(View(ref.VarRefName)) + "' in line " +
                     Str(int64_t{line}) + " in Global DefinedVarMsgFunc.");
  }
  if (vars.Defined(ref)) return true;
  ShowFault(line, "Variable '" + Text(ref.VarRefName) + "' in line" + Str(int64_t{line}) +
                      " is not defined or data type mismatch.");
  return false;
}

bool DefinedVarMsgDB(const VariableIndex& vars, std::string_view table16, int column,
                     const VarRef& ref) {
  if (IsConstantType(ref.VarRefType)) return true;
  if (!IsVariableType(ref.VarRefType)) {
    ui::ProgramError("Illegal variable type '" + NulToBlank(View(ref.VarRefName)) +
                     "' in Global DefinedVarMsgDB.");
  }
  if (vars.Defined(ref)) return true;
  ui::platform().MsgBox("Variable '" + Text(ref.VarRefName) + "' in database '" + RTrimZ(table16) +
                            "' column" + Str(int64_t{column}) + " is not defined.",
                        ui::vbExclamation | ui::vbOKOnly, kCompilationError);
  return false;
}

bool DefinedPathMsgVariable(int line, int32_t pathType, std::string_view name28) {
  if (pathType < kPathExport || pathType > kPathGeneral) {
    ui::ProgramError("Illegal path variable type '" + NulToBlank(RTrim(name28)) + "' with value " +
                     Str(int64_t{pathType}) + " in Global DefinedPathMsgVariable.");
  }
  for (int row = 0; row < kPathRows; ++row) {
    const PathEntry& e = PrgHdr.Path[row][pathType - kPathExport];
    if (!FieldEmpty(View(e.PathName)) && View(e.PathName) == name28) return true;
  }
  ShowFault(line, "Path variable '" + RTrimZ(name28) + "' is not defined.");
  return false;
}

bool DefinedTableMsgFunc(int line, std::string_view table16) {
  for (const TableEntry& t : PrgHdr.Table) {
    if (!FieldEmpty(View(t.TableName)) && View(t.TableName) == table16) return true;
  }
  ShowFault(line, "Database table name '" + RTrimZ(table16) + "' in line" + Str(int64_t{line}) +
                      " is not defined.");
  return false;
}

bool GetLineNo(const LabelIndex& labels, std::string_view label16, int32_t& lineNo, int line) {
  const int target = labels.LastLine(label16);
  if (target >= 0) {
    lineNo = target;
    return true;
  }
  ShowFault(line, "Label '" + RTrimZ(label16) + "' not found in line" + Str(int64_t{line}),
            "Compilation Error - GetLineNo");
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
    const FunctionInfo* fn = FunctionOf(f);
    if (fn != nullptr && fn->table >= 0) {
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
    const FunctionInfo* fn = FunctionOf(f);
    if (fn == nullptr || fn->table < 0) {
      if (!IsLiveFunction(f)) IllegalFunctionNoNumber("UndefinedDatabaseTables");
      continue;
    }
    const RecordView rec = LoadRecord(line, f);
    if (!DefinedTableMsgFunc(line, rec.Field(fn->table, 16))) return true;
  }
  return false;
}

bool DuplicatedLabels() {
  const LabelIndex labels(LineCount());
  int i = 0, j = 0;
  if (!labels.FirstDuplicate(i, j)) return false;
  ShowFault(i, "Label '" + Text(LineTable[i].LineLabel) + "' duplicated in line" + Str(int64_t{i}) +
                   " and" + Str(int64_t{j}));
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
