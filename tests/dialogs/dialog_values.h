// Values the dialog tests compare with: a function name as the DisplayLine pads it, a
// variable or label reference, and a combo's items as a person reads them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "document/records.h"
#include "document/text.h"
#include "ui/model/list_controls.h"

namespace kqtest {

// The start of a DisplayLine: the label and the function name padded to 17 characters.
inline std::string Head(const std::string& label, const std::string& name) {
  return "\t" + label + "\t" + name + std::string(17 - name.size(), ' ') + "\t";
}
// A text field of N bytes as it stands in a record, and a 32-bit number's bytes.
template <size_t N>
std::string Field(const std::string& text) {
  char f[N];
  kq::SetField(f, text);
  return std::string(f, N);
}
inline std::string Int(int32_t n) {
  return std::string(reinterpret_cast<const char*>(&n), 4);
}
// A function name as the DisplayLine shows it: 17 characters.
inline std::string Name17(const std::string& name) {
  return name + std::string(17 - name.size(), ' ');
}
inline kq::VarRef Var(int32_t type, const std::string& name) {
  kq::VarRef v;
  v.VarRefType = type;
  kq::SetField(v.VarRefName, name);
  return v;
}
inline kq::LabelRef Label(const std::string& name, int32_t line = -1) {
  kq::LabelRef l;
  kq::SetField(l.LabelRefName, name);
  l.LabelRefLine = line;
  return l;
}
// A combo's items as a person reads them: variable names stand padded in the list.
inline std::vector<std::string> Items(const ui::ComboBox& c) {
  std::vector<std::string> out;
  for (int i = 0; i < c.ListCount(); ++i) out.push_back(kq::RTrim(c.List(i)));
  return out;
}

}  // namespace kqtest
