// kqx export, import and diff: files through their text form and back, hand edits, and
// bad input to each command.
#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <sstream>

#include "cli/kqx.h"
#include "document/catalogue.h"
#include "document/document.h"
#include "document/functions.h"
#include "document/state.h"
#include "document/text.h"
#include "tests/support/doc_fixture.h"

namespace {

using namespace kq;

class KqxTextTest : public kqtest::DocTest {
 protected:
  int Run(std::vector<std::string> args) {
    out_.str("");
    err_.str("");
    const int status = kqx::RunKqx(args, out_, err_);
    ui::SetPlatform(&platform_);
    SetEditList(&host_.lstEdit);
    return status;
  }
  std::string Text(const std::string& path) {
    const auto bytes = kqtest::ReadBytes(path);
    return {bytes.begin(), bytes.end()};
  }
  void WriteText(const std::string& path, const std::string& text) {
    kqtest::WriteBytes(path, {text.begin(), text.end()});
  }
  // A Delay line first (its DelayMs at a known offset of the file), then mixed lines.
  std::string Sample(const std::string& name, int32_t delay) {
    kqtest::FillDeclarations();
    DelayRec d{delay};
    kqtest::AddLine(ToInt(Fn::Delay), "Pause", 1, reinterpret_cast<const uint8_t*>(&d));
    kqtest::AddMixedLines(120);
    const std::string path = TempPath(name);
    kqtest::SaveAll(path);
    return path;
  }
  std::ostringstream out_, err_;
};

TEST_F(KqxTextTest, ExportAndImportGiveTheFileBack) {
  const std::string app = Sample("app.kqx", 250);
  ASSERT_EQ(Run({"export", app, "-o", TempPath("app.json")}), 0) << err_.str();
  EXPECT_EQ(out_.str(), "");
  ASSERT_EQ(Run({"export", app}), 0);
  EXPECT_EQ(out_.str(), Text(TempPath("app.json")));  // standard output holds the same
  ASSERT_EQ(Run({"import", TempPath("app.json"), "-o", TempPath("back.kqx")}), 0) << err_.str();
  EXPECT_TRUE(kqtest::ReadBytes(app) == kqtest::ReadBytes(TempPath("back.kqx")));
  ASSERT_EQ(Run({"diff", app, TempPath("back.kqx")}), 0);
  EXPECT_EQ(out_.str(), "");
}

// Editing one field of the text changes exactly the bytes of that field in the file.
TEST_F(KqxTextTest, AHandEditChangesExactlyThatField) {
  const std::string app = Sample("app.kqx", 250);
  ASSERT_EQ(Run({"export", app, "-o", TempPath("app.json")}), 0);
  const std::string text = Text(TempPath("app.json"));
  const auto edit = [&](const std::string& from, const std::string& to) {
    const size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    EXPECT_EQ(text.find(from, at + 1), std::string::npos) << from;
    std::string edited = text;
    edited.replace(at, from.size(), to);
    WriteText(TempPath("edited.json"), edited);
    EXPECT_EQ(Run({"import", TempPath("edited.json"), "-o", TempPath("edited.kqx")}), 0)
        << err_.str();
    const auto before = kqtest::ReadBytes(app);
    const auto after = kqtest::ReadBytes(TempPath("edited.kqx"));
    std::vector<size_t> changed;
    for (size_t i = 0; i < std::min(before.size(), after.size()); ++i) {
      if (before[i] != after[i]) changed.push_back(i);
    }
    EXPECT_EQ(before.size(), after.size());
    return std::pair{changed, after};
  };
  const size_t lines = static_cast<size_t>(list().ListCount());
  const size_t firstRecord = 84009 + 180 * lines + 35;  // line 0's record

  const auto [delayBytes, delayFile] = edit("\"DelayMs\":250}", "\"DelayMs\":70000}");
  ASSERT_FALSE(delayBytes.empty());
  EXPECT_GE(delayBytes.front(), firstRecord);
  EXPECT_LT(delayBytes.back(), firstRecord + 4);
  int32_t now;
  std::memcpy(&now, delayFile.data() + firstRecord, 4);
  EXPECT_EQ(now, 70000);

  const auto [labelBytes, labelFile] = edit("\"label\":\"Pause\"", "\"label\":\"Wait\"");
  ASSERT_FALSE(labelBytes.empty());
  EXPECT_GE(labelBytes.front(), firstRecord - 35);  // line 0's LineLabel
  EXPECT_LT(labelBytes.back(), firstRecord - 35 + 16);

  ASSERT_EQ(Run({"diff", app, TempPath("edited.kqx")}), 0);
  EXPECT_EQ(out_.str(), "line 0: label: \"Pause\" -> \"Wait\"\n");
}

// Every refusal: a clear message naming the file and the place, status 1, no file.
TEST_F(KqxTextTest, BadInputIsRefusedAndWritesNothing) {
  const std::string app = Sample("app.kqx", 250);
  const std::string out = TempPath("out.kqx");

  EXPECT_EQ(Run({"export", TempPath("none.kqx")}), 1);
  EXPECT_EQ(out_.str(), "");  // the box goes to the error stream, not into the text
  EXPECT_NE(err_.str().find("File none.kqx doesn't exist."), std::string::npos) << err_.str();
  EXPECT_EQ(Run({"export", app, "-o", TempPath("no/such/dir/app.json")}), 1);
  EXPECT_NE(err_.str().find("can't write"), std::string::npos);

  WriteText(TempPath("broken.json"), "{\"format\": ");
  EXPECT_EQ(Run({"import", TempPath("broken.json"), "-o", out}), 1);
  EXPECT_NE(err_.str().find("broken.json: the JSON does not parse"), std::string::npos)
      << err_.str();
  ASSERT_EQ(Run({"export", app, "-o", TempPath("app.json")}), 0);
  std::string text = Text(TempPath("app.json"));
  text.replace(text.find("\"function\":\"Delay\""), 18, "\"function\":\"Dlay\"");
  WriteText(TempPath("unknown.json"), text);
  EXPECT_EQ(Run({"import", TempPath("unknown.json"), "-o", out}), 1);
  EXPECT_NE(err_.str().find("/lines/0/function: unknown function \"Dlay\""), std::string::npos)
      << err_.str();
  EXPECT_EQ(Run({"import", TempPath("none.json"), "-o", out}), 1);
  EXPECT_NE(err_.str().find("can't read"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(out));

  EXPECT_EQ(Run({"diff", app, TempPath("none.kqx")}), 1);
  EXPECT_NE(err_.str().find("File none.kqx doesn't exist."), std::string::npos);
  EXPECT_EQ(out_.str(), "");

  for (const std::vector<std::string>& wrong :
       {std::vector<std::string>{"export"}, {"import", TempPath("app.json")}, {"diff", app}}) {
    EXPECT_EQ(Run(wrong), kqx::kExitUsage) << wrong[0];
  }
  EXPECT_FALSE(std::filesystem::exists(out));
}

}  // namespace
