#include "ui/headless/json.h"

#include <nlohmann/json.hpp>

#include "ui/platform/codepage.h"

namespace ui {

namespace {

const Json kNull;
const std::string kEmptyString;
const Json::Array kEmptyArray;
const Json::Object kEmptyObject;

// The value as the JSON library holds it: keys in insertion order, text as UTF-8.
nlohmann::ordered_json ToLibrary(const Json& value);

}  // namespace

const std::string& Json::Str() const {
  const auto* s = std::get_if<std::string>(&v_);
  return s ? *s : kEmptyString;
}
int64_t Json::Int() const {
  const auto* i = std::get_if<int64_t>(&v_);
  return i ? *i : 0;
}
bool Json::Bool() const {
  const auto* b = std::get_if<bool>(&v_);
  return b && *b;
}
const Json::Array& Json::Arr() const {
  const auto* a = std::get_if<Array>(&v_);
  return a ? *a : kEmptyArray;
}
const Json::Object& Json::Obj() const {
  const auto* o = std::get_if<Object>(&v_);
  return o ? *o : kEmptyObject;
}

Json& Json::Set(const std::string& key, Json value) {
  if (!std::holds_alternative<Object>(v_)) v_ = Object{};
  auto& o = std::get<Object>(v_);
  for (auto& [k, v] : o) {
    if (k == key) {
      v = std::move(value);
      return *this;
    }
  }
  o.emplace_back(key, std::move(value));
  return *this;
}

const Json& Json::operator[](const std::string& key) const {
  for (const auto& [k, v] : Obj()) {
    if (k == key) return v;
  }
  return kNull;
}

namespace {

nlohmann::ordered_json ToLibrary(const Json& value) {
  if (value.IsNull()) return nullptr;
  if (value.IsString()) return Cp1252ToUtf8(value.Str());
  if (value.IsBool()) return value.Bool();
  if (value.IsInt()) return value.Int();
  if (value.IsArray()) {
    nlohmann::ordered_json a = nlohmann::ordered_json::array();
    for (const Json& item : value.Arr()) a.push_back(ToLibrary(item));
    return a;
  }
  nlohmann::ordered_json o = nlohmann::ordered_json::object();
  // Object keys are set one by one so that a key repeated in the value keeps its place.
  for (const auto& [key, item] : value.Obj()) o[Cp1252ToUtf8(key)] = ToLibrary(item);
  return o;
}

}  // namespace

std::string Json::Dump() const {
  return ToLibrary(*this).dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

}  // namespace ui
