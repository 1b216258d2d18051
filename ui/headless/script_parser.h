// The script runner's parser: a line split into words and quoted strings, targets
// (form, form.control, form.control(index)), numbers and the names of message box answers.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ui {

struct Token {
  std::string text;  // in Windows-1252; a quoted string is unescaped
  bool quoted = false;
};

// Splits a line (already in Windows-1252) into words and quoted strings; nullopt with the
// problem set when the line cannot be split.
std::optional<std::vector<Token>> Tokenize(std::string_view line, std::string& problem);

// form, form.control or form.control(index).
struct Target {
  std::string form;
  std::string control;  // empty: the form itself
  int index = -1;
};
std::optional<Target> ParseTarget(const std::string& text);

// A whole decimal number within +-10^9.
std::optional<int> ParseInt(const std::string& s);

// The answer code of OK, Cancel, Yes, No, Retry, Abort and Ignore.
std::optional<int> AnswerCode(const std::string& name);

}  // namespace ui
