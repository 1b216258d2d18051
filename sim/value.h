// The values of the simulator: a variable's or a table field's content, typed as the
// declarations type it (Long 32-bit, Double, String), and the conversions between them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kq::sim {

enum class VType : uint8_t { Long = 0, Double = 1, String = 2 };

// A String holds at most this many characters; a longer value is cut.
inline constexpr size_t kMaxString = 255;

struct Value {
  VType type = VType::Long;
  int32_t l = 0;
  double d = 0;
  std::string s;

  static Value OfLong(int32_t v) { return {VType::Long, v, 0, {}}; }
  static Value OfDouble(double v) { return {VType::Double, 0, v, {}}; }
  static Value OfString(std::string v);
};

bool operator==(const Value& a, const Value& b);

// The text of a value: a Long in plain decimal, a Double in its shortest exact form.
std::string ToText(const Value& v);
// A number's value as a double; nullopt for a String that is not wholly a number.
std::optional<double> ToNumber(const Value& v);
// The value converted to the type, or nullopt when it does not fit: a text that is not
// wholly a number, or for a Long a fraction or a number outside 32 bits.
std::optional<Value> Convert(const Value& v, VType to);

// Reads a whole text as a number: blanks around it allowed, nothing else.
std::optional<double> ParseNumber(std::string_view text);
std::optional<int32_t> ParseLong(std::string_view text);

// The shortest decimal text that reads back as the same double.
std::string DoubleText(double d);

}  // namespace kq::sim
