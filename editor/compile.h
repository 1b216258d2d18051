// Compile: checks that every variable, path variable and database table a line names is
// declared and that no label is used twice, then resolves every label reference to the
// number of the line that carries the label, written into the line's FuncBlock. It stops
// at the first fault, shows it and selects the faulty line in the edit list.
#pragma once

#include <cstdint>
#include <string_view>

#include "document/records.h"

namespace kq {

class LabelIndex;
class VariableIndex;

// All passes in order; true when all succeed ("Successfully compilation..." shown).
bool Compile();
// The Compile menu: CompiledFlag := Compile(); a success also sets ChangedFlag.
void CompileCommand();

// The passes. Each returns true when it found and showed a fault, except UpdateLabels,
// which returns true when all labels were resolved.
bool UnDefinedMsgVariables();
bool UnDefinedPathMsgVariables();
bool UndefinedDatabase();  // always false
bool UndefinedDatabaseTables();
bool DuplicatedLabels();
bool UpdateLabels();

// The single checks: true when defined; otherwise the fault is shown.
bool DefinedVarMsgFunc(const VariableIndex& vars, int line, const VarRef& ref);
bool DefinedVarMsgDB(const VariableIndex& vars, std::string_view table16, int column,
                     const VarRef& ref);
bool DefinedPathMsgVariable(int line, int32_t pathType, std::string_view name28);
bool DefinedTableMsgFunc(int line, std::string_view table16);
// The last line that carries the label; false (and the fault shown) when none does.
bool GetLineNo(const LabelIndex& labels, std::string_view label16, int32_t& lineNo, int line);

}  // namespace kq
