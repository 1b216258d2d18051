// The document's own services: a new document, the copying of records between the
// records and the line blocks, and the scans that find the lines using a variable, a path
// variable or a label.
#pragma once

#include <cstdint>
#include <string_view>

#include "document/records.h"

namespace kq {

// Sets every table and every InitRecord to the state of a new document.
void InitDocument();

// The function's InitRecord image into the line's FuncBlock (RecordLength bytes).
void InitFuncParm(int line, int funcNo);
// The function's WorkRecord image into the line's FuncBlock.
void UpdateFuncParm(int line, int funcNo);
// RecordLength[funcNo] bytes of the source line's block into the target line's block;
// the bytes behind the record stay as they were.
void CopyFuncParm(int target, int source, int funcNo);

// Loads the line's block into its function's WorkRecord and tells whether the line uses
// the variable, the path variable (type code and 28-byte name) or the label (16 bytes).
// Only the fields of each function's fixed list are compared.
bool FoundVarFunc(int line, const VarRef& v);
bool FoundPathFunc(int line, int32_t pathType, std::string_view name28);
bool FoundLblFunc(int line, std::string_view label16);

}  // namespace kq
