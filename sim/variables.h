// The application's variables during a run: every declared variable with its type and
// value, found by the 32-byte image of a VarRef as the records hold it.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "document/header.h"
#include "sim/value.h"

namespace kq::sim {

class Variables {
 public:
  // Every declared variable of the header, Long and Double 0, String empty.
  void Load(const ProgramHeader& header);

  // The slot of the variable a VarRef names (type 0 to 2), or -1.
  int Find(const VarRef& ref) const;
  // The slot of a name (without its NUL), or -1.
  int FindName(std::string_view name) const;

  size_t Count() const { return vars_.size(); }
  const std::string& Name(int slot) const { return vars_[slot].name; }
  VType Type(int slot) const { return vars_[slot].value.type; }
  const Value& Get(int slot) const { return vars_[slot].value; }
  // The value, already of the variable's type.
  void Set(int slot, Value v) { vars_[slot].value = std::move(v); }

 private:
  struct Var {
    std::string name;
    std::array<char, 32> image;  // the VarRef image of the declaration
    Value value;
  };
  static constexpr size_t kBuckets = 2048;
  std::vector<Var> vars_;
  std::vector<int16_t> buckets_ = std::vector<int16_t>(kBuckets, -1);
  static size_t Hash(const char* image32);
};

}  // namespace kq::sim
