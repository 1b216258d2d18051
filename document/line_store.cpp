// Copies between the function records and the line blocks.
#include <cstring>

#include "document/document.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

// The record length of a live function; an illegal number ends the program with the
// routine's own words.
int32_t LengthOrFault(int funcNo, const char* routine) {
  if (!IsLiveFunction(funcNo)) {
    ui::ProgramError("Illegal Function Number " + Str(int64_t{funcNo}) + " in " + routine + ".");
  }
  return RecordLength[funcNo] != 0 ? RecordLength[funcNo] : kCatalogueLength[funcNo];
}

}  // namespace

void InitFuncParm(int line, int funcNo) {
  const int32_t n = LengthOrFault(funcNo, "InitFuncParm");
  std::memcpy(FuncBlock[line], InitRecord.Image(funcNo), n);
}

void UpdateFuncParm(int line, int funcNo) {
  const int32_t n = LengthOrFault(funcNo, "UpdateFuncParm");
  std::memcpy(FuncBlock[line], WorkRecord.Image(funcNo), n);
}

void CopyFuncParm(int target, int source, int funcNo) {
  const int32_t n = LengthOrFault(funcNo, "CopyFuncParm");
  if (target != source) std::memmove(FuncBlock[target], FuncBlock[source], n);
}

}  // namespace kq
