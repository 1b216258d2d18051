// The import's own tree of the JSON text against the JSON library's document: the same
// values in the same order, and the same words for a text that does not parse.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>

#include "textform/json_tree.h"
#include "textform/text_form.h"

namespace {

using kq::textform::Json;
using kq::textform::JsonTree;

// What a text that does not parse was refused with when it went through the library's
// document: its words after the exception's name.
std::string LibraryRefusal(const std::string& text) {
  try {
    const Json parsed = Json::parse(text);
    return "parsed: " + parsed.dump();
  } catch (const Json::parse_error& e) {
    const std::string what = e.what();
    return "the JSON does not parse: " + what.substr(what.find("] ") + 2);
  }
}

TEST(JsonTree, HoldsWhatTheLibraryReads) {
  const char* texts[] = {
      R"({"b":1,"a":[true,false,null,-7,18446744073709551615,2.5e3,-0.0,"x\u00e9\n"]})",
      R"({"a":1,"b":{"c":[]},"a":{"d":[1,{"e":2}]},"b":3})",  // a member given twice
      R"([[],{},[[1]],{"":""}])",
      R"(  "just a string"  )",
      "\xEF\xBB\xBF{\"after a byte order mark\":1}",
      R"({"n":-9223372036854775808,"u":9223372036854775808,"f":1e-400})",
  };
  for (const char* text : texts) {
    JsonTree tree(text);
    std::string error;
    ASSERT_TRUE(tree.Parse(error)) << text << ": " << error;
    const Json expected = Json::parse(text);
    EXPECT_EQ(tree.Root().ToJson(), expected) << text;
    EXPECT_EQ(tree.Root().dump(), expected.dump()) << text;
  }
}

TEST(JsonTree, RefusesAsTheLibraryDoes) {
  const std::string texts[] = {"",
                               "{",
                               "{\"a\":1,}",
                               "[1 2]",
                               "{\"a\":tru}",
                               "\"\\ud800\"",
                               "\"\x01\"",
                               "{} x",
                               "\xFF",
                               "{\"a\" 1}",
                               "[01]",
                               "{\"a\":\"\xC0\xAF\"}",
                               "[1.]",
                               "// note\n{}",
                               "{'a':1}",
                               "[\"\\x\"]",
                               "{\"format\":[1,2,"};
  for (const std::string& text : texts) {
    kq::textform::StagedDocument doc;
    kq::textform::ImportError error;
    EXPECT_FALSE(kq::textform::ParseDocument(text, doc, error)) << text;
    EXPECT_EQ(error.place, "") << text;
    EXPECT_EQ(error.message, LibraryRefusal(text)) << text;
  }
  // A number beyond a double is refused like a syntax fault, never thrown past import.
  kq::textform::StagedDocument doc;
  kq::textform::ImportError error;
  EXPECT_FALSE(kq::textform::ParseDocument("[1e999]", doc, error));
  EXPECT_EQ(error.message, "the JSON does not parse: number overflow parsing '1e999'");
}

// A fault that shows a value shows it as the library writes it.
TEST(JsonTree, FaultsShowValuesAsTheLibraryWritesThem) {
  const std::string value = R"({"z":[1,2.5,"\u00e9"],"a":null})";
  const std::string text =
      R"({"format":"KQEdit application text 1","version":"3.10","compiled":false,)"
      R"("variables":[],"paths":[],"tables":[],"lines":[{"function":)" +
      value + "}]}";
  kq::textform::StagedDocument doc;
  kq::textform::ImportError error;
  ASSERT_FALSE(kq::textform::ParseDocument(text, doc, error));
  EXPECT_EQ(error.place, "/lines/0/function");
  EXPECT_EQ(error.message.substr(0, error.message.find(';')),
            "unknown function " + Json::parse(value).dump());
}

}  // namespace
