// The JSON form of the record and header fields, both ways. Inside the text form only: the
// rest of the program never sees the JSON library.
//
// A text field of N bytes in its usual form (text, one NUL, blanks) is a JSON string;
// any other bytes are {"bytes": PREFIX, "fill": C}: the prefix, then C up to N bytes. A
// number is a JSON number. A variable reference is {"type", "name"}, the type by name
// ("Long", "Long constant", "none", ...) or as a number outside those; a label reference
// is {"name", "line"}.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "document/records.h"
#include "textform/fields.h"

namespace kq::textform {

using Json = nlohmann::ordered_json;
class JsonNode;  // a value of an imported text (json_tree.h)

// A place in the JSON, named as a JSON pointer ("/lines/3/record/Target") only when a
// fault needs the name: a place refers to its parent, which must outlive it.
class Place {
 public:
  Place() = default;  // the whole text, "/"
  Place(const Place& parent, std::string_view key) : parent_(&parent), key_(key) {}
  Place(const Place& parent, size_t index) : parent_(&parent), index_(index), isIndex_(true) {}
  std::string Str() const;

 private:
  const Place* parent_ = nullptr;
  std::string_view key_;
  size_t index_ = 0;
  bool isIndex_ = false;
};

// A fault of the JSON at a place.
struct Fault : std::runtime_error {
  Fault(const Place& where, const std::string& what)
      : std::runtime_error(what), place(where.Str()) {}
  std::string place;
};

// ---- To JSON
Json TextToJson(const char* field, size_t width);
Json DisplayToJson(const char* line, size_t width);  // trailing blanks left out
Json VarTypeToJson(int32_t type);
Json VarRefToJson(const VarRef& v);
Json LabelRefToJson(const LabelRef& l);
Json RecordToJson(const RecordLayout& layout, const uint8_t* record);

// ---- From JSON; each throws Fault naming `where`.
void TextFromJson(const JsonNode& j, const Place& where, char* field, size_t width);
void DisplayFromJson(const JsonNode& j, const Place& where, char* line, size_t width);
int32_t I32FromJson(const JsonNode& j, const Place& where, int64_t low = INT32_MIN,
                    int64_t high = INT32_MAX);
int32_t VarTypeFromJson(const JsonNode& j, const Place& where);
void VarRefFromJson(const JsonNode& j, const Place& where, VarRef& v);
void LabelRefFromJson(const JsonNode& j, const Place& where, LabelRef& l);
// Fields left out keep the bytes `record` holds already (the defaults).
void RecordFromJson(const JsonNode& j, const Place& where, const RecordLayout& layout,
                    uint8_t* record);

// The member of an object that must be one; throws for anything else.
const JsonNode& Member(const JsonNode& object, const char* key, const Place& where);
// Throws for a member not in `known`.
void OnlyKnown(const JsonNode& object, std::initializer_list<const char*> known,
               const Place& where);

}  // namespace kq::textform
