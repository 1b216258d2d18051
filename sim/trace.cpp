#include "sim/trace.h"

#include <charconv>

#include "ui/platform/codepage.h"

namespace kq::sim {

namespace {
constexpr size_t kFlushAt = 1 << 16;
}

void Trace::AppendString(std::string& out, std::string_view s) {
  out += '"';
  for (size_t i = 0; i < s.size(); ++i) {
    const unsigned char c = static_cast<unsigned char>(s[i]);
    if (c >= 0x80) {
      out += ui::Cp1252ToUtf8(std::string(1, static_cast<char>(c)));
    } else if (c == '"' || c == '\\') {
      out += '\\';
      out += static_cast<char>(c);
    } else if (c < 0x20) {
      static const char* hex = "0123456789abcdef";
      switch (c) {
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
          out += "\\u00";
          out += hex[c >> 4];
          out += hex[c & 15];
      }
    } else {
      out += static_cast<char>(c);
    }
  }
  out += '"';
}

void Trace::Line(int line, std::string_view function) {
  start_ = buf_.size();
  buf_ += "{\"event\":\"line\",\"line\":";
  char num[16];
  auto r = std::to_chars(num, num + sizeof num, line);
  buf_.append(num, r.ptr);
  buf_ += ",\"function\":";
  AppendString(buf_, function);
  buf_ += '}';
  Finish();
}

void Trace::Set(std::string_view name, const Value& v) {
  Begin("set");
  Field("variable", name);
  Field("value", v);
  End();
}

Trace& Trace::Begin(std::string_view event) {
  start_ = buf_.size();
  buf_ += "{\"event\":";
  AppendString(buf_, event);
  return *this;
}

void Trace::Key(std::string_view name) {
  buf_ += ',';
  AppendString(buf_, name);
  buf_ += ':';
}

Trace& Trace::Field(std::string_view name, std::string_view text) {
  Key(name);
  AppendString(buf_, text);
  return *this;
}

Trace& Trace::Field(std::string_view name, int64_t n) {
  Key(name);
  char num[24];
  auto r = std::to_chars(num, num + sizeof num, n);
  buf_.append(num, r.ptr);
  return *this;
}

Trace& Trace::Field(std::string_view name, bool b) {
  Key(name);
  buf_ += b ? "true" : "false";
  return *this;
}

Trace& Trace::Field(std::string_view name, const Value& v) {
  switch (v.type) {
    case VType::Long:
      return Field(name, static_cast<int64_t>(v.l));
    case VType::Double: {
      Key(name);
      std::string t = DoubleText(v.d);
      // JSON has no "inf" or "nan"; the engine never stores them, but keep the line valid.
      if (t.find_first_of("in") != std::string::npos) t = "null";
      buf_ += t;
      return *this;
    }
    case VType::String:
      return Field(name, std::string_view(v.s));
  }
  return *this;
}

Trace& Trace::Field(std::string_view name, const std::vector<std::string>& texts) {
  Key(name);
  buf_ += '[';
  for (size_t i = 0; i < texts.size(); ++i) {
    if (i) buf_ += ',';
    AppendString(buf_, texts[i]);
  }
  buf_ += ']';
  return *this;
}

void Trace::End() {
  buf_ += '}';
  Finish();
}

void Trace::Finish() {
  ++lines_;
  if (observer) observer(std::string_view(buf_).substr(start_));
  buf_ += '\n';
  if (out_ == nullptr) {
    buf_.clear();
  } else if (buf_.size() >= kFlushAt) {
    out_->write(buf_.data(), static_cast<std::streamsize>(buf_.size()));
    buf_.clear();
  }
}

void Trace::Flush() {
  if (out_ != nullptr && !buf_.empty()) {
    out_->write(buf_.data(), static_cast<std::streamsize>(buf_.size()));
    out_->flush();
  }
  buf_.clear();
}

}  // namespace kq::sim
