// The JSON text of an import as a compact tree: nlohmann's parser reads it (so the text is
// accepted, refused and its faults named exactly as a JSON document would be), and its
// values land in two flat arrays instead of one allocation each. Members keep their order
// and a member given twice keeps its first place and its last value, as a JSON object
// would. Inside the text form only.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "textform/json_fields.h"

namespace kq::textform {

class JsonTree;

// One value of the tree.
class JsonNode {
 public:
  enum class Type : uint8_t { Null, Boolean, Integer, Unsigned, Float, String, Array, Object };

  bool is_object() const { return type_ == Type::Object; }
  bool is_array() const { return type_ == Type::Array; }
  bool is_string() const { return type_ == Type::String; }
  bool is_boolean() const { return type_ == Type::Boolean; }
  bool is_number_integer() const { return type_ == Type::Integer || type_ == Type::Unsigned; }
  bool is_number_unsigned() const { return type_ == Type::Unsigned; }

  bool Bool() const { return integer_ != 0; }
  int64_t Int64() const { return integer_; }  // an unsigned number cast as JSON's get does
  uint64_t Uint64() const { return static_cast<uint64_t>(integer_); }
  std::string_view Str() const { return text_; }

  // Of an array or object: the number of elements or members, and the i-th of them.
  size_t size() const { return count_; }
  const JsonNode& operator[](size_t i) const;
  // Of an object: the name of the i-th member, and the member named `key` or nullptr.
  std::string_view Key(size_t i) const;
  const JsonNode* Find(std::string_view key) const;

  // The value as the JSON library holds it, for the texts of faults.
  Json ToJson() const;
  std::string dump() const { return ToJson().dump(); }

 private:
  friend class JsonTree;
  const JsonTree* tree_ = nullptr;
  Type type_ = Type::Null;
  uint32_t first_ = 0;  // of an array or object: its first child in the tree's kids
  uint32_t count_ = 0;
  int64_t integer_ = 0;  // a boolean, an integer, or the bits of an unsigned or a float
  std::string_view text_;
};

class JsonTree {
 public:
  explicit JsonTree(std::string_view text);
  JsonTree(const JsonTree&) = delete;
  JsonTree& operator=(const JsonTree&) = delete;

  // Parses the text; false, with the JSON library's own words in `error`, for a text that
  // does not parse. A number too large for a double throws as the JSON library does.
  bool Parse(std::string& error);
  const JsonNode& Root() const { return nodes_.front(); }

 private:
  friend class JsonNode;
  class Builder;

  std::string_view text_;
  std::string chars_;                 // the strings' characters, never reallocated
  std::deque<std::string> overflow_;  // for strings beyond chars_'s room
  std::vector<JsonNode> nodes_;
  std::vector<uint32_t> kids_;           // the children of each container, together
  std::vector<std::string_view> names_;  // the member names beside kids_ (empty in arrays)
};

}  // namespace kq::textform
