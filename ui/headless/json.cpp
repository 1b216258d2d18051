#include "ui/headless/json.h"

#include <cstdio>

#include "ui/platform/codepage.h"

namespace ui {

namespace {

const Json kNull;
const std::string kEmptyString;
const Json::Array kEmptyArray;
const Json::Object kEmptyObject;

void DumpString(std::string& out, const std::string& s) {
  out += '"';
  const std::string utf8 = Cp1252ToUtf8(s);
  for (unsigned char c : utf8) {
    switch (c) {
      case '"':
        out += "\\\"";
        break;
      case '\\':
        out += "\\\\";
        break;
      case '\n':
        out += "\\n";
        break;
      case '\r':
        out += "\\r";
        break;
      case '\t':
        out += "\\t";
        break;
      default:
        if (c < 0x20) {
          char buf[8];
          std::snprintf(buf, sizeof buf, "\\u%04x", c);
          out += buf;
        } else {
          out += static_cast<char>(c);
        }
    }
  }
  out += '"';
}

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

std::string Json::Dump() const {
  std::string out;
  std::visit(
      [&out](const auto& v) {
        using T = std::decay_t<decltype(v)>;
        if constexpr (std::is_same_v<T, std::monostate>) {
          out += "null";
        } else if constexpr (std::is_same_v<T, bool>) {
          out += v ? "true" : "false";
        } else if constexpr (std::is_same_v<T, int64_t>) {
          out += std::to_string(v);
        } else if constexpr (std::is_same_v<T, std::string>) {
          DumpString(out, v);
        } else if constexpr (std::is_same_v<T, Array>) {
          out += '[';
          for (size_t i = 0; i < v.size(); ++i) {
            if (i) out += ',';
            out += v[i].Dump();
          }
          out += ']';
        } else {
          out += '{';
          for (size_t i = 0; i < v.size(); ++i) {
            if (i) out += ',';
            DumpString(out, v[i].first);
            out += ':';
            out += v[i].second.Dump();
          }
          out += '}';
        }
      },
      v_);
  return out;
}

}  // namespace ui
