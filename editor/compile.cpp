// Compile: the passes in order, and the Compile menu. Each pass stands in a file of its
// own (compile_variables, compile_paths, compile_tables, compile_labels).
#include "editor/compile.h"

#include <cstring>
#include <string>

#include "document/catalogue.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/commands.h"
#include "editor/compile_pass.h"
#include "editor/select_line.h"
#include "ui/model/list_controls.h"
#include "ui/platform/platform.h"

namespace kq {

namespace compile_detail {

int LineCount() {
  return EditList().ListCount();
}

void ShowFault(int line, const std::string& text, const char* title) {
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

[[noreturn]] void IllegalFunction(int funcNo, const char* where) {
  ui::ProgramError("Illegal Function Number" + Str(int64_t{funcNo}) + " in frmEdit - " + where);
}
[[noreturn]] void IllegalFunctionNoNumber(const char* where) {
  ui::ProgramError(std::string("Illegal Function Number in frmEdit - ") + where);
}

}  // namespace compile_detail

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
