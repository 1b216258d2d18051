// Compile, passes 5 and 6: no label stands on two lines, and every label reference is
// resolved to the line that carries the label, written into the line's block.
#include <string>

#include "document/document.h"
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

// A label array resolved in place: the first `mandatory` entries are looked up even when
// empty, and a missing label is reported without the title of GetLineNo.
bool ResolveInPlace(const LabelIndex& labels, int line, RecordView& rec, const LabelField& f) {
  for (int i = 0; i < f.count; ++i) {
    const std::string_view name = rec.Label(f.name + 16 * i);
    if (i >= f.mandatory && FieldEmpty(name)) continue;
    const int target = labels.LastLine(name);
    if (target < 0) {
      ShowFault(line, "Label '" + RTrimZ(name) + "' not found in line" + Str(int64_t{line}));
      return false;
    }
    rec.SetI32(f.line + 4 * i, target);
  }
  return true;
}

// Labels resolved through GetLineNo: empty entries keep their numbers.
bool ResolveThroughGetLineNo(const LabelIndex& labels, int line, RecordView& rec,
                             const LabelField& f) {
  for (int i = 0; i < f.count; ++i) {
    const std::string_view name = rec.Label(f.name + 16 * i);
    if (FieldEmpty(name)) continue;
    int32_t target = 0;
    if (!GetLineNo(labels, name, target, line)) return false;
    rec.SetI32(f.line + 4 * i, target);
  }
  return true;
}

// Resolves the labels of one line; false on the first label that is not found. A line
// whose function has labels is written back when all of them were found.
bool ResolveLine(const LabelIndex& labels, int line, int funcNo) {
  const FunctionInfo* fn = FunctionOf(funcNo);
  if (fn == nullptr || !fn->live()) IllegalFunctionNoNumber("UpdateLabels.");
  if (fn->labels.empty()) return true;  // no labels: nothing is written
  RecordView rec = LoadRecord(line, funcNo);
  for (const LabelField& f : fn->labels) {
    const bool ok = f.form == LabelForm::Branch ? ResolveInPlace(labels, line, rec, f)
                                                : ResolveThroughGetLineNo(labels, line, rec, f);
    if (!ok) return false;
  }
  UpdateFuncParm(line, funcNo);
  return true;
}

}  // namespace

bool GetLineNo(const LabelIndex& labels, std::string_view label16, int32_t& lineNo, int line) {
  const int target = labels.LastLine(label16);
  if (target >= 0) {
    lineNo = target;
    return true;
  }
  ShowFault(line, "Label '" + RTrimZ(label16) + "' not found in line" + Str(int64_t{line}),
            "Compilation Error - GetLineNo");
  return false;
}

bool DuplicatedLabels() {
  const LabelIndex labels(LineCount());
  int i = 0, j = 0;
  if (!labels.FirstDuplicate(i, j)) return false;
  ShowFault(i, "Label '" + Text(LineTable[i].LineLabel) + "' duplicated in line" + Str(int64_t{i}) +
                   " and" + Str(int64_t{j}));
  return true;
}

bool UpdateLabels() {
  const int count = LineCount();
  const LabelIndex labels(count);
  for (int line = 0; line < count; ++line) {
    if (!ResolveLine(labels, line, LineTable[line].LineFuncNo)) return false;
  }
  return true;
}

}  // namespace kq
