// Applications built from pieces: the declarations a Save Part keeps, and the merge of
// another application file into the open document (InsertFile, declared in file.h).
#pragma once

#include <cstdint>
#include <string_view>

#include "document/records.h"

namespace kq {

// True when a table column is bound to the variable, or a line of the range uses it.
bool VarUsedInLines(const VarRef& v, int firstLine, int lastLine);
// True when a line of the range uses the path variable (type code and 28-byte name).
bool PathUsedInLines(int32_t pathType, std::string_view name28, int firstLine, int lastLine);

// The variables and path variables of a Save Part into CopyHdr: only those used, kept
// compact and in their order.
void StagePartVariables(int firstLine, int lastLine);
void StagePartPaths(int firstLine, int lastLine);

}  // namespace kq
