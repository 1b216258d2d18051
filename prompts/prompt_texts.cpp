#include "prompts/prompt_texts.h"

#include <cctype>
#include <fstream>
#include <sstream>
#include <vector>

#include "text/csv.h"

namespace kq::prompts {

namespace {

bool IsLower(char c) {
  return std::islower(static_cast<unsigned char>(c)) != 0;
}
bool IsUpper(char c) {
  return std::isupper(static_cast<unsigned char>(c)) != 0;
}
bool IsDigit(char c) {
  return std::isdigit(static_cast<unsigned char>(c)) != 0;
}
bool IsAlpha(char c) {
  return std::isalpha(static_cast<unsigned char>(c)) != 0;
}

std::string Trimmed(std::string_view s) {
  size_t b = 0, e = s.size();
  while (b < e && (s[b] == ' ' || s[b] == '\t')) ++b;
  while (e > b && (s[e - 1] == ' ' || s[e - 1] == '\t' || s[e - 1] == '\r')) --e;
  return std::string(s.substr(b, e - b));
}

std::string Lower(std::string s) {
  for (char& c : s) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return s;
}

}  // namespace

std::string PromptKey(std::string_view fileName) {
  std::string key = Trimmed(fileName);
  for (char& c : key) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return key;
}

bool ParsePromptTexts(std::string_view csvText, PromptTexts& texts, std::string& error,
                      std::vector<std::string>* names) {
  const text::CsvRead csv = text::ReadCsv(csvText, {.trimUnquoted = true});
  if (csv.fault) {
    error = "line " + std::to_string(csv.fault->line) + ": a quoted field is not closed";
    return false;
  }
  PromptTexts read;
  std::vector<std::string> order;
  for (size_t r = 0; r < csv.rows.size(); ++r) {
    const auto& row = csv.rows[r].fields;
    const std::string at = "line " + std::to_string(csv.rows[r].line) + ": ";
    if (row.size() != 2) {
      error = at + "expected 2 columns (file name, text), found " + std::to_string(row.size());
      return false;
    }
    if (r == 0 && Lower(row[0]) == "file" && Lower(row[1]) == "text") continue;
    if (row[0].empty()) {
      error = at + "the file name is empty";
      return false;
    }
    if (read.emplace(PromptKey(row[0]), row[1]).second) order.push_back(row[0]);
  }
  texts = std::move(read);
  if (names != nullptr) *names = std::move(order);
  return true;
}

bool ReadPromptTextsFile(const std::string& path, PromptTexts& texts, std::string& error,
                         std::vector<std::string>* names) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    error = "cannot read " + path;
    return false;
  }
  std::ostringstream csv;
  csv << in.rdbuf();
  if (ParsePromptTexts(csv.str(), texts, error, names)) return true;
  error = path + " " + error;
  return false;
}

std::string WordsOfFileName(std::string_view fileName) {
  const size_t slash = fileName.find_last_of("/\\");
  if (slash != std::string_view::npos) fileName.remove_prefix(slash + 1);
  const size_t dot = fileName.rfind('.');
  if (dot != std::string_view::npos && dot > 0) fileName = fileName.substr(0, dot);
  std::string words;
  char prev = ' ';
  for (const char c : fileName) {
    const bool gap = c == '_' || c == '-' || c == '.' || c == ' ';
    const bool newWord = (IsUpper(c) && IsLower(prev)) || (IsDigit(c) && IsAlpha(prev)) ||
                         (IsAlpha(c) && IsDigit(prev));
    if (gap) {
      if (!words.empty() && words.back() != ' ') words += ' ';
    } else {
      if (newWord && !words.empty() && words.back() != ' ') words += ' ';
      words += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    prev = c;
  }
  while (!words.empty() && words.back() == ' ') words.pop_back();
  return words;
}

std::string PromptText(const PromptTexts& texts, std::string_view fileName) {
  const auto it = texts.find(PromptKey(fileName));
  if (it != texts.end() && !it->second.empty()) return it->second;
  return WordsOfFileName(fileName);
}

}  // namespace kq::prompts
