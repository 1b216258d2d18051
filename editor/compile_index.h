// Indexes over the declarations and the line labels that compile builds at the start of
// a pass. They answer the same questions as the walks of the tables (is this variable
// declared, which line carries this label last) in constant time, so that a program of
// 9,999 lines with thousands of labels compiles without quadratic work.
//
// Names are compared over their whole fixed fields: two fields of equal width that are
// equal after right-trimming blanks are equal as whole fields, so the byte image is the key.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "document/records.h"

namespace kq {

template <size_t N>
struct FieldKey {
  std::array<char, N> bytes;
  explicit FieldKey(std::string_view field) { std::memcpy(bytes.data(), field.data(), N); }
  bool operator==(const FieldKey&) const = default;
};

struct FieldKeyHash {
  template <size_t N>
  size_t operator()(const FieldKey<N>& k) const {
    uint64_t h = 1469598103934665603ull;  // FNV-1a
    for (char c : k.bytes) {
      h ^= static_cast<uint8_t>(c);
      h *= 1099511628211ull;
    }
    return static_cast<size_t>(h);
  }
};

// The declared variables: type and name of every entry whose name is not empty.
class VariableIndex {
 public:
  VariableIndex();  // reads PrgHdr.Variable
  bool Defined(const VarRef& ref) const;

 private:
  std::unordered_set<FieldKey<32>, FieldKeyHash> entries_;
};

// The line labels: for each label that is not empty, the last line that carries it, and
// the first duplicate pair of the program.
class LabelIndex {
 public:
  explicit LabelIndex(int lineCount);  // reads LineTable
  // The last line whose label equals the 16-byte field; -1 when none does.
  int LastLine(std::string_view label16) const;
  // The smallest line i whose label stands again on a later line, and the first such
  // later line j; false when no label is used twice.
  bool FirstDuplicate(int& i, int& j) const;

 private:
  struct Lines {
    int first;
    int second;  // -1 while the label stands on one line only
    int last;
  };
  std::unordered_map<FieldKey<16>, Lines, FieldKeyHash> lines_;
};

}  // namespace kq
