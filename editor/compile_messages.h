// The texts of compile's faults, in one place, so that every tool that reports them (the
// compile itself and the check of the whole program) uses the same words.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "document/records.h"

namespace kq {

inline constexpr char kCompilationErrorTitle[] = "Compilation Error";
inline constexpr char kGetLineNoTitle[] = "Compilation Error - GetLineNo";

// Compilation faults.
std::string UndefinedVariableText(const VarRef& ref, int line);
std::string UndefinedColumnVariableText(const VarRef& ref, std::string_view table16, int column);
std::string UndefinedPathText(std::string_view name28);
std::string UndefinedTableText(std::string_view table16, int line);
std::string DuplicatedLabelText(std::string_view label16, int first, int second);
std::string LabelNotFoundText(std::string_view label16, int line);

// Program faults, which end the program.
std::string IllegalVariableTypeText(const VarRef& ref, int line);
std::string IllegalColumnVariableTypeText(const VarRef& ref);
std::string IllegalPathTypeText(std::string_view name28, int32_t pathType);
std::string IllegalFunctionText(int funcNo, const char* where);  // with the number
std::string IllegalFunctionNoNumberText(const char* where);
inline constexpr char kSubscriptOutOfRange[] = "Subscript out of range";

}  // namespace kq
