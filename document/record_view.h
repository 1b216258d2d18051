// Read and write access to a function record by byte offset, as the record tables give
// the offsets. Compile and the listing walk records by these tables, so that one table
// row in the code is one row of the record layout.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "document/records.h"

namespace kq {

class RecordView {
 public:
  explicit RecordView(uint8_t* bytes) : bytes_(bytes) {}

  int32_t I32(int offset) const {
    int32_t v;
    std::memcpy(&v, bytes_ + offset, sizeof v);
    return v;
  }
  void SetI32(int offset, int32_t v) { std::memcpy(bytes_ + offset, &v, sizeof v); }
  // A fixed text field of the given width, as stored.
  std::string_view Field(int offset, int width) const {
    return std::string_view(reinterpret_cast<const char*>(bytes_ + offset), width);
  }
  // The type and the 28-byte name of the VarRef at the offset.
  int32_t VarType(int offset) const { return I32(offset); }
  std::string_view VarName(int offset) const { return Field(offset + 4, 28); }
  // The 16-byte label name of a label field (a LabelRef's name or an entry of a label array).
  std::string_view Label(int offset) const { return Field(offset, 16); }

 private:
  uint8_t* bytes_;
};

}  // namespace kq
