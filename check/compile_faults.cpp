#include "check/compile_faults.h"

#include <cstring>
#include <unordered_map>

#include "check/flow.h"
#include "check/record_fields.h"
#include "document/catalogue.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/compile_index.h"
#include "editor/compile_messages.h"

namespace kq::check {

namespace {

// The walk of compile's passes, collecting instead of stopping. `stopped` is set by a
// program fault: nothing after it is looked at.
class Walk {
 public:
  Walk(int lineCount, const LabelIndex& labels, const LabelFieldTable& table)
      : count_(lineCount), labels_(labels), table_(table) {}

  Findings Run() {
    Variables() && Paths() && FunctionNumbers() && Tables() && DuplicatedLabels() && Labels();
    return std::move(out_);
  }

 private:
  void Fault(int line, const char* code, std::string message) {
    out_.push_back({Severity::Error, line, code, std::move(message)});
  }
  bool ProgramFault(int line, std::string message) {
    out_.push_back({Severity::Error, line, "program-error", std::move(message)});
    return false;
  }

  // A name shown in a message must end with its NUL: compile's text helper ends the program
  // on one that does not, with this message.
  bool Terminated(int line, std::string_view field) {
    const std::string t = RTrim(field);
    if (!t.empty() && t.back() == '\0') return true;
    return ProgramFault(line,
                        "String '" + t + "' not terminated with null character in Global RTrimZ.");
  }

  static VarRef VarAt(const uint8_t* record, int offset) {
    VarRef v;
    std::memcpy(&v, record + offset, sizeof v);
    return v;
  }
  static bool IsVariable(int32_t t) { return t == kVarLong || t == kVarDouble || t == kVarString; }
  static bool IsConstant(int32_t t) {
    return t == kConstLong || t == kConstDouble || t == kConstString;
  }

  // false on a program fault.
  bool CheckVar(int line, const VarRef& ref) {
    if (IsConstant(ref.VarRefType)) return true;
    if (!IsVariable(ref.VarRefType)) return ProgramFault(line, IllegalVariableTypeText(ref, line));
    if (vars_.Defined(ref)) return true;
    if (!Terminated(line, View(ref.VarRefName))) return false;
    Fault(line, "undefined-variable", UndefinedVariableText(ref, line));
    return true;
  }

  bool Variables() {
    for (const TableEntry& t : PrgHdr.Table) {
      if (FieldEmpty(View(t.TableName))) continue;
      for (int c = 0; c < kTableColumns; ++c) {
        const VarRef& ref = t.Column[c];
        if (FieldEmpty(View(ref.VarRefName)) || IsConstant(ref.VarRefType)) continue;
        if (!IsVariable(ref.VarRefType))
          return ProgramFault(-1, IllegalColumnVariableTypeText(ref));
        if (!vars_.Defined(ref)) {
          if (!Terminated(-1, View(ref.VarRefName)) || !Terminated(-1, View(t.TableName))) {
            return false;
          }
          Fault(-1, "undefined-variable",
                UndefinedColumnVariableText(ref, View(t.TableName), c + 1));
        }
      }
    }
    std::vector<int> offsets;
    std::vector<WhereRow> rows;
    for (int line = 0; line < count_; ++line) {
      const int f = LineTable[line].LineFuncNo;
      if (f < 0 || f >= kFuncCount) {
        return ProgramFault(line, IllegalFunctionText(f, "UnDefinedMsgVariables"));
      }
      const uint8_t* rec = FuncBlock[line];
      if (HasWhereRows(f)) {
        if (!WhereConditions(line, rec, rows)) return false;
        continue;
      }
      offsets.clear();
      CheckedVarOffsets(f, rec, offsets);
      for (int o : offsets) {
        if (!CheckVar(line, VarAt(rec, o))) return false;
      }
    }
    return true;
  }

  // Each used condition names a column of the last table of the record's table name.
  bool WhereConditions(int line, const uint8_t* rec, std::vector<WhereRow>& rows) {
    const std::string_view table = FieldAt(rec, 0, 16);
    int t = -1;
    for (int k = 0; k < kMaxTables; ++k) {
      if (View(PrgHdr.Table[k].TableName) == table) t = k;
    }
    rows.clear();
    WhereRows(rec, rows);
    for (const WhereRow& w : rows) {
      if (t < 0 || w.column > kTableColumns) return ProgramFault(line, kSubscriptOutOfRange);
      if (!CheckVar(line, PrgHdr.Table[t].Column[w.column - 1])) return false;
      if (!CheckVar(line, VarAt(rec, w.valueOffset))) return false;
    }
    return true;
  }

  bool Paths() {
    std::vector<PathField> fields;
    for (int line = 0; line < count_; ++line) {
      const int f = LineTable[line].LineFuncNo;
      if (f < 0 || f >= kFuncCount) {
        return ProgramFault(line, IllegalFunctionText(f, "UnDefinedPathMsgVariables"));
      }
      const uint8_t* rec = FuncBlock[line];
      fields.clear();
      PathFields(f, rec, fields);
      for (const PathField& p : fields) {
        const std::string_view name = FieldAt(rec, p.offset, 28);
        if (p.type < kPathExport || p.type > kPathGeneral) {
          return ProgramFault(line, IllegalPathTypeText(name, p.type));
        }
        if (PathDefined(p.type, name)) continue;
        if (!Terminated(line, name)) return false;
        Fault(line, "undefined-path", UndefinedPathText(name));
      }
    }
    return true;
  }

  static bool PathDefined(int32_t type, std::string_view name28) {
    for (int row = 0; row < kPathRows; ++row) {
      const PathEntry& e = PrgHdr.Path[row][type - kPathExport];
      if (!FieldEmpty(View(e.PathName)) && View(e.PathName) == name28) return true;
    }
    return false;
  }

  bool FunctionNumbers() {
    for (int line = 0; line < count_; ++line) {
      const int f = LineTable[line].LineFuncNo;
      if (TableNameOffset(f) < 0 && !IsLiveFunction(f)) {
        return ProgramFault(line, IllegalFunctionNoNumberText("UndefinedDatabase"));
      }
    }
    return true;
  }

  bool Tables() {
    for (int line = 0; line < count_; ++line) {
      const int offset = TableNameOffset(LineTable[line].LineFuncNo);
      if (offset < 0) continue;
      const std::string_view name = FieldAt(FuncBlock[line], offset, 16);
      bool found = false;
      for (const TableEntry& t : PrgHdr.Table) {
        if (!FieldEmpty(View(t.TableName)) && View(t.TableName) == name) found = true;
      }
      if (found) continue;
      if (!Terminated(line, name)) return false;
      Fault(line, "undefined-table", UndefinedTableText(name, line));
    }
    return true;
  }

  // Each line whose label stands again further down, with the next line that carries it.
  bool DuplicatedLabels() {
    std::unordered_map<FieldKey<16>, int, FieldKeyHash> next;  // label -> the line below
    std::vector<int> below(static_cast<size_t>(count_), -1);
    for (int line = count_ - 1; line >= 0; --line) {
      const std::string_view label = View(LineTable[line].LineLabel);
      if (FieldEmpty(label)) continue;
      auto [it, fresh] = next.try_emplace(FieldKey<16>(label), line);
      if (!fresh) {
        below[static_cast<size_t>(line)] = it->second;
        it->second = line;
      }
    }
    for (int line = 0; line < count_; ++line) {
      const int j = below[static_cast<size_t>(line)];
      if (j < 0) continue;
      if (!Terminated(line, View(LineTable[line].LineLabel))) return false;
      Fault(line, "duplicate-label", DuplicatedLabelText(View(LineTable[line].LineLabel), line, j));
    }
    return true;
  }

  bool Labels() {
    for (int line = 0; line < count_; ++line) {
      const int f = LineTable[line].LineFuncNo;
      if (!IsLiveFunction(f))
        return ProgramFault(line, IllegalFunctionNoNumberText("UpdateLabels."));
      for (const LabelField& field : table_.Of(f)) {
        const std::string_view name = FieldAt(FuncBlock[line], field.offset, 16);
        if (!field.mandatory && FieldEmpty(name)) continue;
        if (labels_.LastLine(name) < 0) {
          if (!Terminated(line, name)) return false;
          Fault(line, "label-not-found", LabelNotFoundText(name, line));
        }
      }
    }
    return true;
  }

  int count_;
  const LabelIndex& labels_;
  const LabelFieldTable& table_;
  const VariableIndex vars_;
  Findings out_;
};

}  // namespace

Findings CompileFaults(int lineCount, const LabelIndex& labels, const LabelFieldTable& table) {
  return Walk(lineCount, labels, table).Run();
}

Findings CompileFaults(int lineCount) {
  const LabelIndex labels(lineCount);
  const LabelFieldTable table;
  return CompileFaults(lineCount, labels, table);
}

}  // namespace kq::check
