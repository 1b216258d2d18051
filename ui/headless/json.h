// A small JSON value for the event log: objects keep their keys in insertion order.
// Strings hold Windows-1252 text; Dump writes the value through the JSON library, as UTF-8
// on one line.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "ui/platform/codepage.h"

namespace ui {

class Json {
 public:
  using Array = std::vector<Json>;
  using Object = std::vector<std::pair<std::string, Json>>;

  Json() = default;  // null
  Json(std::nullptr_t) {}
  Json(bool b) : v_(b) {}
  Json(int i) : v_(static_cast<int64_t>(i)) {}
  Json(int64_t i) : v_(i) {}
  Json(const char* s) : v_(std::string(s)) {}
  Json(std::string s) : v_(std::move(s)) {}
  Json(Array a) : v_(std::move(a)) {}
  Json(Object o) : v_(std::move(o)) {}

  bool IsNull() const { return std::holds_alternative<std::monostate>(v_); }
  bool IsString() const { return std::holds_alternative<std::string>(v_); }
  bool IsBool() const { return std::holds_alternative<bool>(v_); }
  bool IsInt() const { return std::holds_alternative<int64_t>(v_); }
  bool IsArray() const { return std::holds_alternative<Array>(v_); }
  const std::string& Str() const;  // "" when not a string
  int64_t Int() const;             // 0 when not a number
  bool Bool() const;
  const Array& Arr() const;
  const Object& Obj() const;

  // Object access: adds or replaces a key; lookup returns null for an absent key.
  Json& Set(const std::string& key, Json value);
  const Json& operator[](const std::string& key) const;

  std::string Dump() const;

 private:
  std::variant<std::monostate, bool, int64_t, std::string, Array, Object> v_;
};

}  // namespace ui
