#include "textform/format.h"

#include "document/catalogue.h"
#include "document/state.h"
#include "document/text.h"
#include "textform/codec.h"
#include "textform/json_tree.h"

namespace kq::textform {

TableEntry BlankTableEntry() {
  TableEntry e;
  SetField(e.TableName, "");
  for (VarRef& c : e.Column) c = BlankVarRef;
  return e;
}

Json CompiledToJson(int16_t flag) {
  if (flag == -1) return true;
  if (flag == 0) return false;
  return flag;
}

int16_t CompiledFromJson(const JsonNode& j, const Place& where) {
  if (j.is_boolean()) return j.Bool() ? int16_t{-1} : int16_t{0};
  if (!j.is_number_integer()) throw Fault(where, "expected true, false or a whole number");
  return static_cast<int16_t>(I32FromJson(j, where, INT16_MIN, INT16_MAX));
}

std::string FunctionName(int funcNo) {
  return BytesToUtf8(RTrimZ(View(FuncNames[funcNo])));
}

int FunctionNumber(const std::string& name) {
  for (int no = 0; no < kFuncCount; ++no) {
    if (IsLiveFunction(no) && FunctionName(no) == name) return no;
  }
  return -1;
}

}  // namespace kq::textform
