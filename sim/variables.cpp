#include "sim/variables.h"

#include <cstring>

#include "document/field_empty.h"
#include "document/text.h"

namespace kq::sim {

size_t Variables::Hash(const char* p) {
  uint64_t h = 1469598103934665603ull;
  for (int i = 0; i < 32; ++i) {
    h ^= static_cast<uint8_t>(p[i]);
    h *= 1099511628211ull;
  }
  return static_cast<size_t>(h);
}

void Variables::Load(const ProgramHeader& header) {
  vars_.clear();
  std::fill(buckets_.begin(), buckets_.end(), -1);
  for (const VarRef& v : header.Variable) {
    if (EmptyField(v.VarRefName) || v.VarRefType < kVarLong || v.VarRefType > kVarString) {
      continue;
    }
    Var var;
    var.name = RTrim(std::string_view(v.VarRefName, 28));
    if (!var.name.empty() && var.name.back() == '\0') var.name.pop_back();
    std::memcpy(var.image.data(), &v, 32);
    switch (v.VarRefType) {
      case kVarLong:
        var.value = Value::OfLong(0);
        break;
      case kVarDouble:
        var.value = Value::OfDouble(0);
        break;
      default:
        var.value = Value::OfString({});
        break;
    }
    // A name declared twice keeps its first slot.
    if (Find(v) >= 0) continue;
    const int slot = static_cast<int>(vars_.size());
    vars_.push_back(std::move(var));
    size_t b = Hash(vars_.back().image.data()) % kBuckets;
    while (buckets_[b] >= 0) b = (b + 1) % kBuckets;
    buckets_[b] = static_cast<int16_t>(slot);
  }
}

int Variables::Find(const VarRef& ref) const {
  const char* image = reinterpret_cast<const char*>(&ref);
  size_t b = Hash(image) % kBuckets;
  while (buckets_[b] >= 0) {
    if (std::memcmp(vars_[buckets_[b]].image.data(), image, 32) == 0) return buckets_[b];
    b = (b + 1) % kBuckets;
  }
  // A record whose name field carries other bytes behind its NUL: by the trimmed name.
  std::string name = RTrim(std::string_view(ref.VarRefName, 28));
  const size_t nul = name.find('\0');
  if (nul != std::string::npos) name.resize(nul);
  const int slot = FindName(name);
  if (slot >= 0 && static_cast<int32_t>(vars_[slot].value.type) == ref.VarRefType) return slot;
  return -1;
}

int Variables::FindName(std::string_view name) const {
  for (size_t i = 0; i < vars_.size(); ++i) {
    if (vars_[i].name == name) return static_cast<int>(i);
  }
  return -1;
}

}  // namespace kq::sim
