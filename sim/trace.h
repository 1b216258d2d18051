// The run's trace: one JSON object a line, written by hand into a buffer so that a run of
// a million lines costs little. Texts are Windows-1252 in the run and UTF-8 in the trace.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "sim/value.h"

namespace kq::sim {

class Trace {
 public:
  // `out` may be null: nothing is written (the observer still sees each line).
  explicit Trace(std::ostream* out) : out_(out) {}
  ~Trace() { Flush(); }

  // Sees every finished line, without its newline (the Simulate window's trace list).
  std::function<void(std::string_view)> observer;

  // {"event":"line","line":N,"function":"NAME"}
  void Line(int line, std::string_view function);
  // {"event":"set","variable":"NAME","value":V}
  void Set(std::string_view name, const Value& v);

  // A general event: fields added in order, then End().
  Trace& Begin(std::string_view event);
  Trace& Field(std::string_view name, std::string_view text);
  Trace& Field(std::string_view name, const char* text) {
    return Field(name, std::string_view(text));
  }
  Trace& Field(std::string_view name, int64_t n);
  Trace& Field(std::string_view name, int n) { return Field(name, static_cast<int64_t>(n)); }
  Trace& Field(std::string_view name, bool b);
  Trace& Field(std::string_view name, const Value& v);
  Trace& Field(std::string_view name, const std::vector<std::string>& texts);
  void End();

  void Flush();
  uint64_t LinesWritten() const { return lines_; }

  // JSON string text of Windows-1252 bytes, quotes included.
  static void AppendString(std::string& out, std::string_view cp1252);

 private:
  void Key(std::string_view name);
  void Finish();
  std::ostream* out_;
  std::string buf_;
  size_t start_ = 0;  // where the line being built begins
  uint64_t lines_ = 0;
};

}  // namespace kq::sim
