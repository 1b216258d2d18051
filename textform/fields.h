// The fields of every function record by name, offset and size, taken from the record
// structs of document/records.h, so that the text form names each byte of a record.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "document/functions.h"

namespace kq::textform {

enum class Kind : uint8_t {
  I32,       // a 32-bit signed number
  Text,      // a fixed text field of `width` bytes
  VarRef,    // a variable or constant reference (32 bytes)
  LabelRef,  // a label name and its line (20 bytes)
};

struct Field {
  const char* name;  // as the record struct names it
  uint16_t offset;   // of the first element
  uint16_t count;    // elements; 1 for a single field
  uint16_t width;    // bytes of one element
  Kind kind;
  bool array;  // written as a JSON array, also when count is 1
  constexpr size_t Size() const { return static_cast<size_t>(count) * width; }
};

struct RecordLayout {
  const char* type;  // the struct's name
  uint16_t size;
  std::span<const Field> fields;  // in the order of their offsets
};

// The layout of function fn's record; nullptr for an empty slot.
const RecordLayout* LayoutOf(Fn fn);

}  // namespace kq::textform
