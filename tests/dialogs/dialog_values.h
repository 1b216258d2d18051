// Values the dialog tests compare with: a function name as the DisplayLine pads it, a
// variable or label reference, and a combo's items as a person reads them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "document/records.h"
#include "document/text.h"
#include "ui/model/list_controls.h"

namespace kqtest {

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
