// Compile, pass 1: every variable a line names, and every column variable of the declared
// tables, is declared with its type.
#include <string>

#include "document/function_table.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/compile.h"
#include "editor/compile_index.h"
#include "editor/compile_pass.h"
#include "ui/platform/platform.h"

namespace kq {

using namespace compile_detail;

namespace {

bool IsVariableType(int32_t t) {
  return t == kVarLong || t == kVarDouble || t == kVarString;
}
bool IsConstantType(int32_t t) {
  return t == kConstLong || t == kConstDouble || t == kConstString;
}

// Delete Record, SELECT Records and Update Record: each used condition names a column of
// the record's table (the last table of that name) and a value.
bool WhereConditionsDefined(const VariableIndex& vars, int line, const RecordView& rec) {
  const std::string_view table = rec.Field(offsetof(TableWhereRec, TableName), 16);
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

}  // namespace kq
