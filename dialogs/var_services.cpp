// Combos of variables and constants: filling them from the variable table and reading
// them back into a VarRef.
#include <cmath>
#include <limits>

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

// The typed text of a combo read as a number; false when the conversion
// fails (a value out of range), which only makes the result false.
bool ReadNumber(const std::string& text, double& value) {
  value = Val(text);
  return std::isfinite(value);
}

}  // namespace

void GetListBoxVar(bool showLong, bool showDouble, bool showString, ListControl combo,
                   const VarRef& v) {
  combo.Clear();
  const bool shown[3] = {showLong, showDouble, showString};
  int selected = -1;
  for (const VarRef& entry : PrgHdr.Variable) {
    if (FieldEmpty(View(entry.VarRefName))) continue;
    if (entry.VarRefType < 0 || entry.VarRefType > 2) {
      ui::ProgramError("Illegal PrgHdr_Variable.Type " + Str(int64_t{entry.VarRefType}) +
                       " in Global GetListBoxVar.");
    }
    if (!shown[entry.VarRefType]) continue;
    combo.AddItem(NulToBlank(View(entry.VarRefName)));
    if (entry.VarRefType == v.VarRefType && View(entry.VarRefName) == View(v.VarRefName)) {
      selected = combo.NewIndex();
    }
  }
  switch (v.VarRefType) {
    case kVarNone:
      combo.SetListIndex(combo.ListCount() > 0 ? 0 : -1);
      break;
    case kVarLong:
    case kVarDouble:
    case kVarString:
      combo.SetListIndex(selected >= 0 ? selected : (combo.ListCount() > 0 ? 0 : -1));
      break;
    case kConstLong:
    case kConstDouble:
    case kConstString:
      combo.SetText(FieldText(View(v.VarRefName)));
      break;
    default:
      ui::ProgramError("Illegal Variable.Type " + Str(int64_t{v.VarRefType}) +
                       " in Global GetListBoxVar.");
  }
}

int16_t GetListboxVarNo(ListControl combo) {
  const std::string wanted = RTrim(combo.Text()) + '\0';
  int found = -1;
  for (int i = 0; i < kMaxVariables; ++i) {
    if (RTrim(View(PrgHdr.Variable[i].VarRefName)) == wanted) found = i;
  }
  if (found < 0) {
    ui::ProgramError("Variable name '" + combo.Text() + "' not found in Global GetListboxVarNo.");
  }
  return static_cast<int16_t>(found);
}

bool AssignListBoxVar(ListControl combo, int dataType, VarRef& v) {
  const char* parameter = nullptr;
  switch (dataType) {
    case -1:
      v = PrgHdr.Variable[GetListboxVarNo(combo)];
      return true;
    case kVarLong:
      parameter = "LONG";
      break;
    case kVarDouble:
      parameter = "DOUBLE";
      break;
    case kVarString:
      parameter = "STRING";
      break;
    default:
      ui::ProgramError("Illegal datatype " + Str(int64_t{dataType}) +
                       " in Global AssignListBoxVar.");
  }
  const std::string text = combo.Text();
  const int index = combo.ListIndex();
  if (!RTrim(text).empty() && index >= 0 && index < combo.ListCount()) {
    v = PrgHdr.Variable[GetListboxVarNo(combo)];
    return true;
  }
  if (index != -1) {
    ui::ProgramError(std::string("Illegal parameter ") + parameter +
                     " in Global AssignListBoxVar.");
  }
  if (dataType == kVarString) {
    v.VarRefType = kConstString;
    SetField(v.VarRefName, text);
    return true;
  }
  double value = 0;
  if (Trim(text).empty() || !ReadNumber(text, value)) return false;
  if (dataType == kVarLong) {
    // Integral and within a Long: the integer value must equal the floating value.
    if (value < std::numeric_limits<int32_t>::min() ||
        value > std::numeric_limits<int32_t>::max()) {
      return false;
    }
    const auto whole = static_cast<int32_t>(value);
    if (static_cast<double>(whole) != value) return false;
    v.VarRefType = kConstLong;
    SetField(v.VarRefName, Num(whole));
    return true;
  }
  if (value == 0) value = 0;  // a typed "-0" is plain 0
  v.VarRefType = kConstDouble;
  SetField(v.VarRefName, Trim(Str(value)));
  return true;
}

}  // namespace kq
