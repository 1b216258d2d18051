// The declarations a record names, read from the record structs: the variables, path
// variables and table name of each function, in the order compile checks them.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace kq::check {

// The offsets of the VarRef fields that compile checks, in its order, with its conditions
// (a Variable Export entry only when named, the caller-id variables only when asked for).
// The condition rows of Delete Record, SELECT Records and Update Record are not included:
// they name a table column first (see WhereRows).
void CheckedVarOffsets(int funcNo, const uint8_t* record, std::vector<int>& out);
// Every VarRef field that names a variable, checked by compile or not: the uses of a
// declaration.
void UsedVarOffsets(int funcNo, const uint8_t* record, std::vector<int>& out);

// The used condition rows of Delete Record, SELECT Records, Update Record: the column
// number (from 1) and the offset of the value compared with it.
struct WhereRow {
  int32_t column;
  int valueOffset;
};
bool HasWhereRows(int funcNo);
void WhereRows(const uint8_t* record, std::vector<WhereRow>& out);

// A path variable a record names: its type code and the offset of its 28-byte name.
struct PathField {
  int32_t type;
  int offset;
};
void PathFields(int funcNo, const uint8_t* record, std::vector<PathField>& out);

// The offset of the table name; -1 for a function that names no table.
int TableNameOffset(int funcNo);

int32_t I32At(const uint8_t* record, int offset);
inline std::string_view FieldAt(const uint8_t* record, int offset, int width) {
  return {reinterpret_cast<const char*>(record + offset), static_cast<size_t>(width)};
}

}  // namespace kq::check
