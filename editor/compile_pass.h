// What the passes of compile share: the fault box, loading a line's record, and the
// program errors of an illegal function number.
#pragma once

#include <string>

#include "document/record_view.h"
#include "document/records.h"

namespace kq::compile_detail {

inline constexpr char kCompilationError[] = "Compilation Error";

// The lines of the program: the count of the main window's list.
int LineCount();
// Selects the line alone and shows the fault.
void ShowFault(int line, const std::string& text, const char* title = kCompilationError);
// Loads the line's record into its function's WorkRecord and gives access to it.
RecordView LoadRecord(int line, int funcNo);
// The VarRef that starts at the offset.
VarRef VarAt(const RecordView& rec, int offset);
[[noreturn]] void IllegalFunction(int funcNo, const char* where);
[[noreturn]] void IllegalFunctionNoNumber(const char* where);

}  // namespace kq::compile_detail
