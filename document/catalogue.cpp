#include "document/catalogue.h"

#include <cstring>

#include "document/function_table.h"
#include "document/records.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

bool IsLiveFunction(int funcNo) {
  return funcNo >= 0 && funcNo < kFuncCount && kCatalogueLength[funcNo] != 0;
}

void GetFuncRecordLength() {
  for (int i = 0; i < kFuncCount; ++i) {
    if (RecordLength[i] > kBlockSize) {
      ui::ProgramError("Too large record in procedure GetFuncRecordLength " +
                       Str(static_cast<int64_t>(RecordLength[i])) + "bytes.");
    }
  }
}

std::string StringArithmeticOpr(int32_t op) {
  static const char* const kText[] = {" + ", " - ", " * ", " / ", " ^ ", " & "};
  if (op < 0 || op > 5) {
    ui::ProgramError("Illegal Operator " + Str(static_cast<int64_t>(op)) +
                     " in Global StringArithmeticOpr.");
  }
  return kText[op];
}

std::string StringRelationalOpr(int32_t op) {
  static const char* const kText[] = {" = ", " <> ", " < ", " > ", " <= ", " >= "};
  if (op < 0 || op > 5) {
    ui::ProgramError("Illegal operator " + Str(static_cast<int64_t>(op)) +
                     " in Global StringRelationalOpr.");
  }
  return kText[op];
}

// ---- The byte image of each function's record in a RecordSet.

uint8_t* RecordSet::Image(int funcNo) {
  const FunctionInfo* f = FunctionOf(funcNo);
  if (f == nullptr || !f->live()) return nullptr;
  return reinterpret_cast<uint8_t*>(this) + f->at;
}

const uint8_t* RecordSet::Image(int funcNo) const {
  return const_cast<RecordSet*>(this)->Image(funcNo);
}

}  // namespace kq
