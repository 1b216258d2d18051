#include "editor/compile_index.h"

#include "document/state.h"
#include "document/text.h"

namespace kq {

VariableIndex::VariableIndex() {
  entries_.reserve(kMaxVariables * 2);
  for (const VarRef& v : PrgHdr.Variable) {
    if (FieldEmpty(View(v.VarRefName))) continue;
    entries_.insert(FieldKey<32>(std::string_view(reinterpret_cast<const char*>(&v), 32)));
  }
}

bool VariableIndex::Defined(const VarRef& ref) const {
  return entries_.count(FieldKey<32>(std::string_view(reinterpret_cast<const char*>(&ref), 32))) >
         0;
}

LabelIndex::LabelIndex(int lineCount) {
  lines_.reserve(static_cast<size_t>(lineCount) * 2);
  for (int line = 0; line < lineCount; ++line) {
    const std::string_view label = View(LineTable[line].LineLabel);
    if (FieldEmpty(label)) continue;
    auto [it, added] = lines_.try_emplace(FieldKey<16>(label), Lines{line, -1, line});
    if (!added) {
      if (it->second.second < 0) it->second.second = line;
      it->second.last = line;
    }
  }
}

int LabelIndex::LastLine(std::string_view label16) const {
  const auto it = lines_.find(FieldKey<16>(label16));
  return it == lines_.end() ? -1 : it->second.last;
}

bool LabelIndex::FirstDuplicate(int& i, int& j) const {
  bool found = false;
  for (const auto& [key, l] : lines_) {
    if (l.second < 0) continue;
    if (!found || l.first < i) {
      i = l.first;
      j = l.second;
      found = true;
    }
  }
  return found;
}

}  // namespace kq
