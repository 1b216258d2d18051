// The comparison of two text forms, member by member, so that a change shows as the one
// field it touched.
#include <map>

#include "textform/json_fields.h"
#include "textform/text_form.h"

namespace kq::textform {

namespace {

std::string Show(const Json& j) {
  return j.dump(-1, ' ', false, Json::error_handler_t::replace);
}

// Every difference below `name`: objects member by member, arrays of equal length element
// by element, anything else as a whole.
void Compare(const std::string& name, const Json& a, const Json& b, std::vector<std::string>& out) {
  if (a == b) return;
  if (a.is_object() && b.is_object()) {
    for (const auto& [key, value] : a.items()) {
      const std::string below = name.empty() ? key : name + "." + key;
      const auto other = b.find(key);
      if (other == b.end()) {
        out.push_back(below + ": " + Show(value) + " -> (none)");
      } else {
        Compare(below, value, *other, out);
      }
    }
    for (const auto& [key, value] : b.items()) {
      if (!a.contains(key)) {
        out.push_back((name.empty() ? key : name + "." + key) + ": (none) -> " + Show(value));
      }
    }
    return;
  }
  if (a.is_array() && b.is_array() && a.size() == b.size()) {
    for (size_t i = 0; i < a.size(); ++i) {
      Compare(name + "[" + std::to_string(i) + "]", a[i], b[i], out);
    }
    return;
  }
  out.push_back(name + ": " + Show(a) + " -> " + Show(b));
}

// Entries of a header list by their place ("at", or "row" and "type").
std::map<std::string, Json> ByPlace(const Json& list) {
  std::map<std::string, Json> entries;
  if (!list.is_array()) return entries;
  for (const Json& e : list) {
    std::string key;
    if (e.contains("row")) {
      key = "row " + Show(e["row"]) + " type " + e.value("type", "");
    } else {
      key = Show(e.value("at", Json()));
    }
    entries.emplace(std::move(key), e);
  }
  return entries;
}

void CompareList(const char* what, const Json& a, const Json& b, std::vector<std::string>& out) {
  const auto first = ByPlace(a), second = ByPlace(b);
  for (const auto& [key, entry] : first) {
    const auto other = second.find(key);
    std::vector<std::string> changes;
    if (other == second.end()) {
      out.push_back(std::string(what) + " " + key + ": only in the first: " + Show(entry));
      continue;
    }
    Compare("", entry, other->second, changes);
    for (const std::string& c : changes) out.push_back(std::string(what) + " " + key + ": " + c);
  }
  for (const auto& [key, entry] : second) {
    if (!first.contains(key)) {
      out.push_back(std::string(what) + " " + key + ": only in the second: " + Show(entry));
    }
  }
}

}  // namespace

std::vector<std::string> DiffTexts(std::string_view first, std::string_view second) {
  const Json a = Json::parse(first.begin(), first.end(), nullptr, false);
  const Json b = Json::parse(second.begin(), second.end(), nullptr, false);
  std::vector<std::string> out;
  if (a.is_discarded() || b.is_discarded() || !a.is_object() || !b.is_object()) {
    out.push_back("the texts are not both text forms of a document");
    return out;
  }
  for (const char* key : {"format", "version", "compiled"}) {
    Compare(key, a.value(key, Json()), b.value(key, Json()), out);
  }
  CompareList("variable", a.value("variables", Json()), b.value("variables", Json()), out);
  CompareList("path", a.value("paths", Json()), b.value("paths", Json()), out);
  CompareList("table", a.value("tables", Json()), b.value("tables", Json()), out);
  const Json none = Json::array();
  const Json& la = a.contains("lines") ? a["lines"] : none;
  const Json& lb = b.contains("lines") ? b["lines"] : none;
  const size_t common = std::min(la.size(), lb.size());
  for (size_t i = 0; i < common; ++i) {
    std::vector<std::string> changes;
    Compare("", la[i], lb[i], changes);
    for (const std::string& c : changes) out.push_back("line " + std::to_string(i) + ": " + c);
  }
  for (size_t i = common; i < la.size(); ++i) {
    out.push_back("line " + std::to_string(i) +
                  ": only in the first: " + Show(la[i].value("display", Json())));
  }
  for (size_t i = common; i < lb.size(); ++i) {
    out.push_back("line " + std::to_string(i) +
                  ": only in the second: " + Show(lb[i].value("display", Json())));
  }
  return out;
}

}  // namespace kq::textform
