#include "editor/compile_messages.h"

#include "document/text.h"

namespace kq {

std::string UndefinedVariableText(const VarRef& ref, int line) {
  return "Variable '" + Text(ref.VarRefName) + "' in line" + Str(int64_t{line}) +
         " is not defined or data type mismatch.";
}

std::string UndefinedColumnVariableText(const VarRef& ref, std::string_view table16, int column) {
  return "Variable '" + Text(ref.VarRefName) + "' in database '" + RTrimZ(table16) + "' column" +
         Str(int64_t{column}) + " is not defined.";
}

std::string UndefinedPathText(std::string_view name28) {
  return "Path variable '" + RTrimZ(name28) + "' is not defined.";
}

std::string UndefinedTableText(std::string_view table16, int line) {
  return "Database table name '" + RTrimZ(table16) + "' in line" + Str(int64_t{line}) +
         " is not defined.";
}

std::string DuplicatedLabelText(std::string_view label16, int first, int second) {
  return "Label '" + RTrimZ(label16) + "' duplicated in line" + Str(int64_t{first}) + " and" +
         Str(int64_t{second});
}

std::string LabelNotFoundText(std::string_view label16, int line) {
  return "Label '" + RTrimZ(label16) + "' not found in line" + Str(int64_t{line});
}

std::string IllegalVariableTypeText(const VarRef& ref, int line) {
  return "Illegal variable type '" + NulToBlank(View(ref.VarRefName)) + "' in line " +
         Str(int64_t{line}) + " in Global DefinedVarMsgFunc.";
}

std::string IllegalColumnVariableTypeText(const VarRef& ref) {
  return "Illegal variable type '" + NulToBlank(View(ref.VarRefName)) +
         "' in Global DefinedVarMsgDB.";
}

std::string IllegalPathTypeText(std::string_view name28, int32_t pathType) {
  return "Illegal path variable type '" + NulToBlank(RTrim(name28)) + "' with value " +
         Str(int64_t{pathType}) + " in Global DefinedPathMsgVariable.";
}

std::string IllegalFunctionText(int funcNo, const char* where) {
  return "Illegal Function Number" + Str(int64_t{funcNo}) + " in frmEdit - " + where;
}

std::string IllegalFunctionNoNumberText(const char* where) {
  return std::string("Illegal Function Number in frmEdit - ") + where;
}

}  // namespace kq
