// The fields of every live function's record by kind and offset, for building default and
// random records in tests.
#pragma once

#include <vector>

namespace kq::test {

struct FieldSpec {
  enum Kind { Var, LabelRef, LabelArray, Text, Number, PathType, Flag } kind;
  int offset;
  int count = 1;       // entries of an array (Var, Text, LabelArray, Number, Flag)
  int width = 0;       // Text: bytes per entry
  int lineOffset = 0;  // LabelArray: offset of the line numbers
};

const std::vector<FieldSpec>& RecordFields(int funcNo);

}  // namespace kq::test
