// Applications built from pieces: the declarations a Save Part keeps, and the merge of
// another application file into the open document (InsertFile, declared in file.h).
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

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

// The same for a set of lines that need not be one range (ascending indexes).
bool VarUsedInLines(const VarRef& v, const std::vector<int>& lines);
bool PathUsedInLines(int32_t pathType, std::string_view name28, const std::vector<int>& lines);
void StagePartVariables(const std::vector<int>& lines);
void StagePartPaths(const std::vector<int>& lines);
// True when a line of the set names the table (16-byte name) in its record.
bool TableUsedInLines(std::string_view name16, const std::vector<int>& lines);

// The application image of a set of lines, as a part that carries only what they use:
// the variables and path variables (as Save Part keeps them) and the tables the lines
// name; the DisplayLines numbered from 0000, then their entries and records. The lines
// are lines of the list; an illegal function number is a program error, as in a save.
std::vector<uint8_t> LinesImage(const std::vector<int>& lines);

}  // namespace kq
