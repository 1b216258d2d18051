// The scans that find the lines using a variable, a path variable or a label. The function
// table lists, per function, the fields that are compared; a field that is not listed for
// the scan is never looked at, even where it holds a reference of that kind (the pruning
// of a Save Part and the searches rely on these exact lists).
#include <cstring>

#include "document/document.h"
#include "document/field_empty.h"
#include "document/function_table.h"
#include "document/record_view.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

// Loads the line's block into its function's WorkRecord; false for an illegal number.
bool LoadWorkRecord(int line, int funcNo) {
  if (!IsLiveFunction(funcNo)) return false;
  std::memcpy(WorkRecord.Image(funcNo), FuncBlock[line], kCatalogueLength[funcNo]);
  return true;
}

[[noreturn]] void IllegalNumber(int funcNo, const char* where) {
  ui::ProgramError("Illegal Function Number " + Str(int64_t{funcNo}) + where);
}

// The key is compared over the field's whole width; a shorter key counts as padded with
// blanks, as a fixed-length assignment pads it.
bool Same(std::string_view field, std::string_view key) {
  if (key.size() > field.size()) key = key.substr(0, field.size());
  if (field.compare(0, key.size(), key) != 0) return false;
  for (size_t i = key.size(); i < field.size(); ++i) {
    if (field[i] != ' ') return false;
  }
  return true;
}

VarRef VarAt(const RecordView& rec, int offset) {
  VarRef v;
  std::memcpy(&v, rec.Field(offset, sizeof v).data(), sizeof v);
  return v;
}

bool Guarded(const RecordView& rec, int guard) {
  return guard < 0 || rec.I32(guard) != 0;
}

}  // namespace

bool FoundVarFunc(int line, const VarRef& v) {
  const int funcNo = LineTable[line].LineFuncNo;
  if (!LoadWorkRecord(line, funcNo)) IllegalNumber(funcNo, " in KQEditSub - FoundVarFunc");
  const RecordView rec(WorkRecord.Image(funcNo));
  for (const VarField& f : FunctionOf(funcNo)->vars) {
    if (f.scan == Look::Never || !Guarded(rec, f.guard)) continue;
    for (int i = 0; i < f.count; ++i) {
      const int at = f.offset + 32 * i;
      if (f.scan == Look::IfNamed && EmptyField(rec.VarName(at).data(), 28)) continue;
      if (VarRefEqual(VarAt(rec, at), v)) return true;
    }
  }
  return false;
}

bool FoundPathFunc(int line, int32_t pathType, std::string_view name28) {
  const int funcNo = LineTable[line].LineFuncNo;
  if (!LoadWorkRecord(line, funcNo)) IllegalNumber(funcNo, " in KQEditSub - FoundPathFunc");
  const RecordView rec(WorkRecord.Image(funcNo));
  for (const PathField& f : FunctionOf(funcNo)->paths) {
    const int32_t type = f.typeOffset >= 0 ? rec.I32(f.typeOffset) : f.type;
    if (type != pathType || !Guarded(rec, f.guard)) continue;
    for (int i = 0; i < f.count; ++i) {
      if (Same(rec.Field(f.offset + 28 * i, 28), name28)) return true;
    }
  }
  return false;
}

bool FoundLblFunc(int line, std::string_view label16) {
  const int funcNo = LineTable[line].LineFuncNo;
  if (!LoadWorkRecord(line, funcNo)) IllegalNumber(funcNo, " in KQEDIT1 - FoundLblFunc.");
  const RecordView rec(WorkRecord.Image(funcNo));
  for (const LabelField& f : FunctionOf(funcNo)->labels) {
    if (!f.scanned) continue;
    for (int i = 0; i < f.count; ++i) {
      if (Same(rec.Label(f.name + 16 * i), label16)) return true;
    }
  }
  return false;
}

}  // namespace kq
