#include <gtest/gtest.h>

#include "ui/headless/headless_platform.h"
#include "ui/model/controls.h"
#include "ui/model/form.h"

namespace {

class Dialog : public ui::Form {
 public:
  Dialog() : Form("frmDialog", "Dialog") {}
  ui::CommandButton cmdOk{*this, "cmdOk", "&Ok"};

 protected:
  void Form_Load() override { cmdOk.SetFocus(); }
};

TEST(HeadlessPlatform, MessageBoxesTakeQueuedAnswersElseTheirFirstButton) {
  ui::HeadlessPlatform p;
  p.QueueAnswer(ui::vbNo);
  EXPECT_EQ(p.MsgBox("Save?", ui::vbYesNoCancel | ui::vbExclamation, "Confirm Exit"), ui::vbNo);
  EXPECT_EQ(p.MsgBox("Retry?", ui::vbRetryCancel, "Save"), ui::vbRetry);
  ASSERT_EQ(p.Events().size(), 2u);
  EXPECT_EQ(p.Events()[0].ToJson(),
            R"({"event":"msgbox","title":"Confirm Exit","text":"Save?","icon":"exclamation",)"
            R"("buttons":"YesNoCancel","answer":"No","default":false})");
  EXPECT_TRUE(p.Events()[1].fields["default"].Bool());
}

TEST(HeadlessPlatform, ProgramErrorShowsCriticalBoxAndEnds) {
  ui::HeadlessPlatform p;
  ui::SetPlatform(&p);
  EXPECT_THROW(ui::ProgramError("Illegal Function Number  22 in Global SaveFile."),
               ui::ProgramEnded);
  ASSERT_EQ(p.CountOf("msgbox"), 1);
  EXPECT_EQ(p.Events()[0].fields["title"].Str(), "Program Error");
  EXPECT_EQ(p.Events()[0].fields["icon"].Str(), "critical");
  ui::SetPlatform(nullptr);
}

TEST(HeadlessPlatform, ModalFormsAreDrivenAndLogged) {
  ui::HeadlessPlatform p;
  ui::SetPlatform(&p);
  Dialog d;
  p.QueueModal("frmDialog", [](ui::Form& f) { f.Unload(); });
  d.ShowModal();
  EXPECT_FALSE(d.Loaded());
  std::vector<std::string> kinds;
  for (const auto& e : p.Events()) kinds.push_back(e.kind);
  EXPECT_EQ(kinds, (std::vector<std::string>{"show", "focus", "unload"}));
  Dialog undriven;
  EXPECT_THROW(undriven.ShowModal(), ui::ModalNotDriven);
  ui::SetPlatform(nullptr);
}

TEST(Json, ConvertsWindows1252ToUtf8AndBack) {
  const std::string cp = "\xC6\x80\x93x\"";  // Æ € “ x "
  EXPECT_EQ(ui::Json(cp).Dump(), "\"\xC3\x86\xE2\x82\xAC\xE2\x80\x9Cx\\\"\"");
  EXPECT_EQ(ui::Utf8ToCp1252(ui::Cp1252ToUtf8(cp)), cp);
}

// The event log's bytes: keys in the order they were set (a key set again keeps its
// place), no blanks, control characters escaped, numbers and nulls as JSON writes them.
TEST(Json, WritesKeysInOrderOnOneLine) {
  ui::Json j;
  j.Set("zeta", 1);
  j.Set("alpha", ui::Json::Array{ui::Json(), true, false, int64_t{-9000000000}});
  j.Set("mid", ui::Json::Object{{"b", "x"}, {"a", ui::Json::Array{}}});
  j.Set("zeta", "tab\tline\nret\r\x01\\");
  j.Set("empty", ui::Json::Object{});
  EXPECT_EQ(j.Dump(), R"({"zeta":"tab\tline\nret\r\u0001\\","alpha":[null,true,false,-9000000000],)"
                      R"("mid":{"b":"x","a":[]},"empty":{}})");
  EXPECT_EQ(ui::Json().Dump(), "null");
  EXPECT_EQ(j["mid"]["b"].Str(), "x");
  EXPECT_TRUE(j["absent"].IsNull());
}

}  // namespace
