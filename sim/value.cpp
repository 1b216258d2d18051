#include "sim/value.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace kq::sim {

Value Value::OfString(std::string v) {
  if (v.size() > kMaxString) v.resize(kMaxString);
  Value r;
  r.type = VType::String;
  r.s = std::move(v);
  return r;
}

bool operator==(const Value& a, const Value& b) {
  if (a.type != b.type) return false;
  switch (a.type) {
    case VType::Long:
      return a.l == b.l;
    case VType::Double:
      return a.d == b.d;
    case VType::String:
      return a.s == b.s;
  }
  return false;
}

std::string DoubleText(double d) {
  char buf[64];
  auto r = std::to_chars(buf, buf + sizeof buf, d);
  return std::string(buf, r.ptr);
}

std::string ToText(const Value& v) {
  switch (v.type) {
    case VType::Long:
      return std::to_string(v.l);
    case VType::Double:
      return DoubleText(v.d);
    case VType::String:
      return v.s;
  }
  return {};
}

std::optional<double> ParseNumber(std::string_view t) {
  while (!t.empty() && (t.front() == ' ' || t.front() == '\t')) t.remove_prefix(1);
  while (!t.empty() && (t.back() == ' ' || t.back() == '\t')) t.remove_suffix(1);
  if (!t.empty() && t.front() == '+') t.remove_prefix(1);
  if (t.empty()) return std::nullopt;
  double d = 0;
  auto r = std::from_chars(t.data(), t.data() + t.size(), d);
  if (r.ec != std::errc() || r.ptr != t.data() + t.size() || !std::isfinite(d)) {
    return std::nullopt;
  }
  return d;
}

namespace {

std::optional<int32_t> WholeLong(double d) {
  if (!std::isfinite(d) || d != std::floor(d)) return std::nullopt;
  if (d < std::numeric_limits<int32_t>::min() || d > std::numeric_limits<int32_t>::max()) {
    return std::nullopt;
  }
  return static_cast<int32_t>(d);
}

}  // namespace

std::optional<int32_t> ParseLong(std::string_view text) {
  auto d = ParseNumber(text);
  if (!d) return std::nullopt;
  return WholeLong(*d);
}

std::optional<double> ToNumber(const Value& v) {
  switch (v.type) {
    case VType::Long:
      return v.l;
    case VType::Double:
      return v.d;
    case VType::String:
      return ParseNumber(v.s);
  }
  return std::nullopt;
}

std::optional<Value> Convert(const Value& v, VType to) {
  if (v.type == to) return v;
  switch (to) {
    case VType::String:
      return Value::OfString(ToText(v));
    case VType::Double: {
      auto d = ToNumber(v);
      if (!d) return std::nullopt;
      return Value::OfDouble(*d);
    }
    case VType::Long: {
      auto d = ToNumber(v);
      if (!d) return std::nullopt;
      auto l = WholeLong(*d);
      if (!l) return std::nullopt;
      return Value::OfLong(*l);
    }
  }
  return std::nullopt;
}

}  // namespace kq::sim
