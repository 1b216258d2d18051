#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>

#include "document/catalogue.h"
#include "document/functions.h"
#include "document/state.h"
#include "document/text.h"
#include "tests/support/doc_fixture.h"
#include "tests/textform/odd_doc.h"
#include "textform/fields.h"
#include "textform/text_form.h"

namespace {

using namespace kq;
using kq::textform::ImportError;
using kq::textform::StagedDocument;

class TextFormTest : public kqtest::DocTest {
 protected:
  // Export, import and install: true when the open document came back.
  bool RoundTrip(std::string* error = nullptr) {
    const std::string text = textform::ExportDocument();
    StagedDocument doc;
    ImportError e;
    const bool ok = textform::ParseDocument(text, doc, e) && textform::InstallDocument(doc, e);
    if (!ok && error != nullptr) *error = e.Text();
    return ok;
  }
  ImportError Refusal(const std::string& json) {
    StagedDocument doc;
    ImportError e;
    EXPECT_FALSE(textform::ParseDocument(json, doc, e)) << json;
    return e;
  }
};

// Every live function has the layout of its record: the catalogue's length, every byte
// covered by exactly one field, in the order of the offsets.
TEST(TextFormFields, EveryRecordByteHasOneField) {
  for (int no = 0; no < kFuncCount; ++no) {
    const textform::RecordLayout* layout = textform::LayoutOf(ToFn(no));
    if (!IsLiveFunction(no)) {
      EXPECT_EQ(layout, nullptr) << no;
      continue;
    }
    ASSERT_NE(layout, nullptr) << no;
    EXPECT_EQ(layout->size, kCatalogueLength[no]) << layout->type;
    size_t next = 0;
    for (const textform::Field& f : layout->fields) {
      EXPECT_EQ(f.offset, next) << layout->type << "." << f.name;
      EXPECT_TRUE(f.array || f.count == 1) << layout->type << "." << f.name;
      next = f.offset + f.Size();
    }
    EXPECT_EQ(next, layout->size) << layout->type;
  }
}

TEST_F(TextFormTest, OddDocumentsComeBackByteForByte) {
  std::mt19937 rng(20261124);
  for (int n = 0; n < 300; ++n) {
    kqtest::BuildOddDocument(list(), rng, 12);
    const std::string before = kqtest::DocumentBytes(list());
    std::string error;
    ASSERT_TRUE(RoundTrip(&error)) << "document " << n << ": " << error;
    ASSERT_EQ(kqtest::DocumentBytes(list()), before) << "document " << n;
  }
}

// One line of text for each line of the application, and the header's entries one a
// line: a change of one field is a change of one text line.
TEST_F(TextFormTest, OneTextLinePerApplicationLine) {
  kqtest::AddLine(ToInt(Fn::Remark), "Start", 1);
  kqtest::AddLine(ToInt(Fn::Delay), "", 2);
  SetField(PrgHdr.Variable[7].VarRefName, "Caller");
  PrgHdr.Variable[7].VarRefType = kVarString;
  const std::string text = textform::ExportDocument();
  EXPECT_NE(text.find("\n    {\"at\":7,\"type\":\"String\",\"name\":\"Caller\"}\n"),
            std::string::npos)
      << text;
  const size_t lines = text.find("\"lines\": [\n");
  ASSERT_NE(lines, std::string::npos);
  const std::string rest = text.substr(lines);
  EXPECT_EQ(std::count(rest.begin(), rest.end(), '\n'), 5) << rest;  // [, 2 lines, ], }
  EXPECT_NE(rest.find("\"label\":\"Start\",\"function\":\"Remark\",\"record\":{\"RemarkText\":"),
            std::string::npos)
      << rest;
}

TEST_F(TextFormTest, FieldsLeftOutTakeTheDefaults) {
  const std::string json =
      R"({"format":"KQEdit application text 1","version":"3.10","compiled":false,)"
      R"("variables":[],"paths":[],"tables":[],)"
      R"("lines":[{"display":"0000\t\tDelay\t","function":"Delay","record":{}},)"
      R"({"display":"0001","function":"Goto","record":{"Target":{"name":"Top","line":0}}}]})";
  StagedDocument doc;
  ImportError e;
  ASSERT_TRUE(textform::ParseDocument(json, doc, e)) << e.Text();
  ASSERT_EQ(doc.lines.size(), 2u);
  EXPECT_EQ(0, std::memcmp(doc.lines[0].record.data(), InitRecord.Image(ToInt(Fn::Delay)),
                           static_cast<size_t>(RecordLength[ToInt(Fn::Delay)])));
  GotoRec go;
  std::memcpy(&go, doc.lines[1].record.data(), sizeof go);
  EXPECT_EQ(RTrimZ(View(go.Target.LabelRefName)), "Top");
  EXPECT_EQ(go.Target.LabelRefLine, 0);
  EXPECT_EQ(RTrimZ(View(doc.lines[1].entry.LineLabel)), "");
  EXPECT_EQ(doc.lines[1].display->size(), 180u);
}

// Each fault names its place in the JSON and says what is wrong.
TEST_F(TextFormTest, FaultsNameTheirPlace) {
  const std::string head =
      R"({"format":"KQEdit application text 1","version":"3.10","compiled":false,)";
  const std::string noDecl = R"("variables":[],"paths":[],"tables":[],)";
  const auto line = [&](const std::string& l) { return head + noDecl + "\"lines\":[" + l + "]}"; };
  struct Case {
    std::string json, place, words;
  };
  const Case cases[] = {
      {"{\"format\":", "", "does not parse"},
      {"{\"format\":1e99999}", "", "number overflow"},
      {"[]", "/", "expected an object"},
      {R"({"format":"other","version":"3.10"})", "/format", "expected"},
      {head + R"("variables":[],"paths":[],"tables":[]})", "/", "\"lines\" is missing"},
      {line(R"({"function":"Fly"})"), "/lines/0/function", "unknown function \"Fly\""},
      {line(R"({"function":"Delay","record":{"DelayMs":2147483648}})"), "/lines/0/record/DelayMs",
       "out of range"},
      {line(R"({"function":"Delay","record":{"Delay":1}})"), "/lines/0/record/Delay",
       "unknown field"},
      {line(R"({"function":"Goto","label":"SixteenLetters16"})"), "/lines/0/label",
       "holds at most 15"},
      {line(R"({"function":"Voice","record":{"VoiceFile":["a"]}})"), "/lines/0/record/VoiceFile",
       "an array of 5"},
      {line(R"({"function":"Assign","record":{"Target":{"type":"Lng","name":"x"}}})"),
       "/lines/0/record/Target/type", "unknown variable type"},
      {line(R"({"function":"Remark","record":{"RemarkText":"中"}})"), "/lines/0/record/RemarkText",
       "U+4E2D has no Windows-1252"},
      {line(R"({"function":"Remark","record":{"RemarkText":{"bytes":"a","fill":"ab"}}})"),
       "/lines/0/record/RemarkText/fill", "one character"},
      {line(R"({"function":"Delay","display":")" + std::string(181, 'x') + "\"}"),
       "/lines/0/display", "at most 180"},
      {line(R"({"function":"Delay","colour":"red"})"), "/lines/0/colour", "unknown member"},
      {head +
           R"("variables":[{"at":3,"type":"Long","name":"A"},{"at":3,"type":"Long","name":"B"}],)"
           R"("paths":[],"tables":[],"lines":[]})",
       "/variables/1/at", "given twice"},
      {head +
           R"("variables":[{"at":500,"type":"Long","name":"A"}],"paths":[],"tables":[],"lines":[]})",
       "/variables/0/at", "from 0 to 499"},
      {head + R"("variables":[],"paths":[{"row":0,"type":"F","name":"a","path":"b"}],)"
              R"("tables":[],"lines":[]})",
       "/paths/0/type", "\"A\""},
  };
  for (const Case& c : cases) {
    const ImportError e = Refusal(c.json);
    EXPECT_EQ(e.place, c.place) << c.json << "\n" << e.Text();
    EXPECT_NE(e.message.find(c.words), std::string::npos) << c.json << "\n" << e.Text();
  }
}

// A line without its DisplayLine gets the one its dialog builds from the record, as
// Modify would; a record its dialog refuses stops the import.
TEST_F(TextFormTest, MissingDisplayLinesComeFromTheDialogs) {
  const std::string json =
      R"({"format":"KQEdit application text 1","version":"3.10","compiled":false,)"
      R"("variables":[],"paths":[],"tables":[],"lines":[)"
      R"({"display":"0000 as written","function":"Remark"},)"
      R"({"label":"Wait","function":"Delay","record":{"DelayMs":2500}},)"
      R"({"function":"Remark","record":{"RemarkText":"hello there"}}]})";
  StagedDocument doc;
  ImportError e;
  ASSERT_TRUE(textform::ParseDocument(json, doc, e)) << e.Text();
  ASSERT_TRUE(textform::InstallDocument(doc, e)) << e.Text();
  ASSERT_EQ(list().ListCount(), 3);
  EXPECT_EQ(RTrim(list().List(0)), "0000 as written");
  EXPECT_EQ(RTrim(list().List(1)).rfind("0001\tWait\tDelay", 0), 0u) << list().List(1);
  EXPECT_NE(list().List(1).find("2500"), std::string::npos) << list().List(1);
  EXPECT_EQ(RTrim(list().List(2)).rfind("0002\t\tRemark", 0), 0u) << list().List(2);
  EXPECT_NE(list().List(2).find("hello there"), std::string::npos);
  EXPECT_EQ(list().List(1).size(), 180u);

  // Voice needs a declared voice path before its dialog opens.
  const std::string voice =
      R"({"format":"KQEdit application text 1","version":"3.10","compiled":false,)"
      R"("variables":[],"paths":[],"tables":[],"lines":[{"function":"Voice"}]})";
  StagedDocument refused;
  ASSERT_TRUE(textform::ParseDocument(voice, refused, e)) << e.Text();
  EXPECT_FALSE(textform::InstallDocument(refused, e));
  EXPECT_EQ(e.place, "/lines/0");
  EXPECT_NE(e.message.find("Voice dialog refuses"), std::string::npos) << e.Text();
  EXPECT_EQ(list().ListCount(), 0);
}

TEST_F(TextFormTest, DiffNamesTheChangedFields) {
  kqtest::AddLine(ToInt(Fn::Delay), "", 1);
  kqtest::AddLine(ToInt(Fn::Goto), "Top", 2);
  const std::string first = textform::ExportDocument();
  EXPECT_TRUE(textform::DiffTexts(first, first).empty());
  DelayRec d;
  std::memcpy(&d, FuncBlock[0], sizeof d);
  const int32_t old = d.DelayMs;
  d.DelayMs = old + 5;
  std::memcpy(FuncBlock[0], &d, sizeof d);
  SetField(LineTable[1].LineLabel, "Bottom");
  PrgHdr.CompiledFlag = -1;
  const auto changes = textform::DiffTexts(first, textform::ExportDocument());
  ASSERT_EQ(changes.size(), 3u);
  EXPECT_EQ(changes[0], "compiled: false -> true");
  EXPECT_EQ(changes[1],
            "line 0: record.DelayMs: " + std::to_string(old) + " -> " + std::to_string(old + 5));
  EXPECT_EQ(changes[2], "line 1: label: \"Top\" -> \"Bottom\"");
}

}  // namespace
