#include "ui/headless/script_parser.h"

#include <cstdlib>

#include "ui/platform/platform.h"

namespace ui {

std::optional<std::vector<Token>> Tokenize(std::string_view line, std::string& problem) {
  std::vector<Token> tokens;
  size_t i = 0;
  while (i < line.size()) {
    const char c = line[i];
    if (c == ' ' || c == '\t' || c == '\r') {
      ++i;
      continue;
    }
    Token t;
    if (c == '"') {
      t.quoted = true;
      std::string raw;
      ++i;
      bool closed = false;
      while (i < line.size()) {
        char d = line[i++];
        if (d == '"') {
          closed = true;
          break;
        }
        if (d == '\\') {
          if (i >= line.size()) break;
          const char e = line[i++];
          switch (e) {
            case '"':
              d = '"';
              break;
            case '\\':
              d = '\\';
              break;
            case 't':
              d = '\t';
              break;
            case 'r':
              d = '\r';
              break;
            case 'n':
              d = '\n';
              break;
            default:
              problem = std::string("unknown escape \\") + e;
              return std::nullopt;
          }
        }
        raw += d;
      }
      if (!closed) {
        problem = "string without its closing quote";
        return std::nullopt;
      }
      t.text = std::move(raw);
    } else {
      while (i < line.size() && line[i] != ' ' && line[i] != '\t' && line[i] != '\r') {
        if (line[i] == '"') {
          problem = "quote inside a word";
          return std::nullopt;
        }
        t.text += line[i++];
      }
    }
    tokens.push_back(std::move(t));
  }
  return tokens;
}

std::optional<int> ParseInt(const std::string& s) {
  if (s.empty()) return std::nullopt;
  char* end = nullptr;
  const long v = std::strtol(s.c_str(), &end, 10);
  if (*end != '\0' || v < -1000000000L || v > 1000000000L) return std::nullopt;
  return static_cast<int>(v);
}

std::optional<Target> ParseTarget(const std::string& text) {
  Target t;
  const auto dot = text.find('.');
  t.form = text.substr(0, dot);
  if (t.form.empty()) return std::nullopt;
  if (dot == std::string::npos) return t;
  std::string rest = text.substr(dot + 1);
  if (rest.empty() || rest.find('.') != std::string::npos) return std::nullopt;
  const auto open = rest.find('(');
  if (open != std::string::npos) {
    if (rest.back() != ')') return std::nullopt;
    const auto index = ParseInt(rest.substr(open + 1, rest.size() - open - 2));
    if (!index || *index < 0) return std::nullopt;
    t.index = *index;
    rest = rest.substr(0, open);
  }
  if (rest.empty()) return std::nullopt;
  t.control = rest;
  return t;
}

std::optional<int> AnswerCode(const std::string& name) {
  if (name == "OK") return vbOK;
  if (name == "Cancel") return vbCancel;
  if (name == "Yes") return vbYes;
  if (name == "No") return vbNo;
  if (name == "Retry") return vbRetry;
  if (name == "Abort") return vbAbort;
  if (name == "Ignore") return vbIgnore;
  return std::nullopt;
}

}  // namespace ui
