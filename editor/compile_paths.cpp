// Compile, pass 2: every path variable a line names is declared with its path type.
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

}  // namespace

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

bool UnDefinedPathMsgVariables() {
  const int count = LineCount();
  for (int line = 0; line < count; ++line) {
    if (!LinePathsDefined(line, LineTable[line].LineFuncNo)) return true;
  }
  return false;
}

}  // namespace kq
