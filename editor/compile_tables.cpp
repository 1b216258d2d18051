// Compile, passes 3 and 4: the lines that name a database table, and that table declared.
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

bool DefinedTableMsgFunc(int line, std::string_view table16) {
  for (const TableEntry& t : PrgHdr.Table) {
    if (!FieldEmpty(View(t.TableName)) && View(t.TableName) == table16) return true;
  }
  ShowFault(line, "Database table name '" + RTrimZ(table16) + "' in line" + Str(int64_t{line}) +
                      " is not defined.");
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

}  // namespace kq
