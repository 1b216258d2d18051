// The text form against the schema that ships in docs/: a validator of the part of JSON
// Schema that the schema uses, and the output of export checked with it.
#include <gtest/gtest.h>

#include <fstream>
#include <random>
#include <sstream>

#include <nlohmann/json.hpp>

#include "document/catalogue.h"
#include "document/functions.h"
#include "tests/support/doc_fixture.h"
#include "tests/textform/odd_doc.h"
#include "textform/text_form.h"

namespace {

using Json = nlohmann::json;

class Validator {
 public:
  explicit Validator(Json schema) : root_(std::move(schema)) {}
  // The first place where `value` breaks the schema; empty when it holds.
  std::string Check(const Json& value) const { return Check(root_, value, ""); }

 private:
  const Json& Resolve(const Json& s) const {
    if (!s.contains("$ref")) return s;
    const std::string ref = s["$ref"];
    EXPECT_EQ(ref.rfind("#/$defs/", 0), 0u) << ref;
    return Resolve(root_["$defs"][ref.substr(8)]);
  }
  static bool HasType(const Json& v, const std::string& type) {
    if (type == "object") return v.is_object();
    if (type == "array") return v.is_array();
    if (type == "string") return v.is_string();
    if (type == "integer") return v.is_number_integer();
    if (type == "boolean") return v.is_boolean();
    ADD_FAILURE() << "type " << type << " is not in the validator";
    return false;
  }
  std::string Check(const Json& schemaIn, const Json& v, const std::string& at) const {
    const Json& s = Resolve(schemaIn);
    for (const auto& [key, rule] : s.items()) {
      static const char* kKnown[] = {"$schema",
                                     "$id",
                                     "title",
                                     "description",
                                     "type",
                                     "const",
                                     "enum",
                                     "oneOf",
                                     "properties",
                                     "required",
                                     "additionalProperties",
                                     "items",
                                     "maxItems",
                                     "minimum",
                                     "maximum",
                                     "$defs"};
      bool known = false;
      for (const char* k : kKnown) known = known || key == k;
      if (!known) return at + ": the validator does not know \"" + key + "\"";
    }
    if (s.contains("type") && !HasType(v, s["type"])) return at + ": not " + s["type"].dump();
    if (s.contains("const") && v != s["const"]) return at + ": not " + s["const"].dump();
    if (s.contains("enum")) {
      bool found = false;
      for (const Json& e : s["enum"]) found = found || e == v;
      if (!found) return at + ": " + v.dump() + " is not one of the enumeration";
    }
    if (s.contains("minimum") && v.is_number() && v < s["minimum"]) return at + ": below minimum";
    if (s.contains("maximum") && v.is_number() && v > s["maximum"]) return at + ": above maximum";
    if (s.contains("oneOf")) {
      int matches = 0;
      for (const Json& option : s["oneOf"]) matches += Check(option, v, at).empty() ? 1 : 0;
      if (matches != 1) return at + ": matches " + std::to_string(matches) + " of oneOf";
    }
    if (v.is_array()) {
      if (s.contains("maxItems") && v.size() > s["maxItems"].get<size_t>()) {
        return at + ": too many items";
      }
      if (s.contains("items")) {
        for (size_t i = 0; i < v.size(); ++i) {
          const std::string e = Check(s["items"], v[i], at + "/" + std::to_string(i));
          if (!e.empty()) return e;
        }
      }
    }
    if (v.is_object()) {
      if (s.contains("required")) {
        for (const Json& r : s["required"]) {
          if (!v.contains(r.get<std::string>())) return at + ": " + r.dump() + " is missing";
        }
      }
      for (const auto& [key, member] : v.items()) {
        const std::string below = at + "/" + key;
        if (s.contains("properties") && s["properties"].contains(key)) {
          const std::string e = Check(s["properties"][key], member, below);
          if (!e.empty()) return e;
        } else if (s.contains("additionalProperties")) {
          const Json& extra = s["additionalProperties"];
          if (extra.is_boolean()) {
            if (!extra.get<bool>()) return below + ": not allowed";
          } else {
            const std::string e = Check(extra, member, below);
            if (!e.empty()) return e;
          }
        }
      }
    }
    return "";
  }
  Json root_;
};

Json LoadSchema() {
  std::ifstream in(KQ_SCHEMA_FILE);
  std::stringstream text;
  text << in.rdbuf();
  return Json::parse(text.str());
}

class TextSchemaTest : public kqtest::DocTest {};

TEST_F(TextSchemaTest, ExportOutputHoldsToTheSchema) {
  const Validator schema(LoadSchema());
  std::mt19937 rng(7);
  for (int n = 0; n < 60; ++n) {
    kqtest::BuildOddDocument(list(), rng, 30);
    const Json text = Json::parse(kq::textform::ExportDocument());
    ASSERT_EQ(schema.Check(text), "") << "document " << n;
  }
}

// The validator is no formality: it finds what the import would refuse, too.
TEST_F(TextSchemaTest, TheSchemaRefusesWhatImportRefuses) {
  const Validator schema(LoadSchema());
  kqtest::AddLine(kq::ToInt(kq::Fn::Delay), "", 1);
  const Json good = Json::parse(kq::textform::ExportDocument());
  ASSERT_EQ(schema.Check(good), "");
  Json bad = good;
  bad["lines"][0]["function"] = "Fly";
  EXPECT_EQ(schema.Check(bad), "/lines/0/function: \"Fly\" is not one of the enumeration");
  bad = good;
  bad["variables"] = Json::parse(R"([{"at":500,"type":"Long","name":"A"}])");
  EXPECT_EQ(schema.Check(bad), "/variables/0/at: above maximum");
  bad = good;
  bad["lines"][0]["record"]["DelayMs"] = Json::parse(R"({"bytes":"a"})");
  EXPECT_EQ(schema.Check(bad), "/lines/0/record/DelayMs: matches 0 of oneOf");
  bad = good;
  bad.erase("compiled");
  EXPECT_EQ(schema.Check(bad), ": \"compiled\" is missing");
}

// The schema's function names are the catalogue's live functions.
TEST(TextSchema, FunctionNamesAreTheCatalogues) {
  const Json schema = LoadSchema();
  std::vector<std::string> names;
  for (const Json& n : schema["$defs"]["functionName"]["enum"]) names.push_back(n);
  std::vector<std::string> live;
  for (int no = 0; no < kq::kFuncCount; ++no) {
    if (!kq::IsLiveFunction(no)) continue;
    std::string name(kq::FuncNames[no], sizeof kq::FuncNames[no]);
    live.push_back(name.substr(0, name.find('\0')));
  }
  EXPECT_EQ(names, live);
}

}  // namespace
