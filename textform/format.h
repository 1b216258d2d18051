// What export and import share: the name of the format, the blank header entries, the
// compiled flag and the function names as JSON.
#pragma once

#include <cstdint>
#include <string>

#include "document/header.h"
#include "textform/json_fields.h"

namespace kq::textform {

inline constexpr const char* kFormatName = "KQEdit application text 1";

// A free table entry: an empty name and 24 free columns.
TableEntry BlankTableEntry();

// CompiledFlag: true for -1, false for 0, any other value as a number.
Json CompiledToJson(int16_t flag);
int16_t CompiledFromJson(const JsonNode& j, const Place& where);

// The catalogue name of a live function ("Say File"), and back; -1 for no such name.
std::string FunctionName(int funcNo);
int FunctionNumber(const std::string& name);

}  // namespace kq::textform
