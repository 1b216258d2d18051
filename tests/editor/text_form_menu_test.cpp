// File > Export as Text and File > Import Text in the main window.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "document/state.h"
#include "tests/editor/editor_fixture.h"
#include "textform/text_form.h"

namespace kq::test {
namespace {

namespace fs = std::filesystem;

std::string Read(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream text;
  text << in.rdbuf();
  return text.str();
}

class TextFormMenuTest : public EditorTest {
 protected:
  void SetUp() override {
    EditorTest::SetUp();
    dir_ = fs::temp_directory_path() / ("kq-textmenu-" + std::to_string(::getpid()));
    fs::create_directories(dir_);
    fs::copy_file(fs::path(KQ_SCRIPTS_DIR) / "goto_paths.kqx", dir_ / "app.kqx",
                  fs::copy_options::overwrite_existing);
  }
  void TearDown() override {
    EditorTest::TearDown();
    fs::remove_all(dir_);
  }
  void OpenApp(FrmEdit& form) {
    platform_.QueueFile((dir_ / "app.kqx").string());
    form.mnuFileItem[1].UserClick();
    ASSERT_EQ(form.lstEdit.ListCount(), 5);
  }
  fs::path dir_;
};

TEST_F(TextFormMenuTest, ExportWritesTheOpenDocumentAndImportReadsItBack) {
  FrmEdit& form = Start();
  OpenApp(form);
  const std::vector<std::string> items = form.lstEdit.Items();
  platform_.QueueFile((dir_ / "copy.json").string());
  form.mnuFileExportText.UserClick();
  const std::string text = Read(dir_ / "copy.json");
  EXPECT_EQ(text, textform::ExportDocument());

  // A document with lines is open: Import refuses as Open does, and nothing changes.
  form.mnuFileImportText.UserClick();
  EXPECT_EQ(BoxTexts(), std::vector<std::string>{"File app.kqx is already open."});
  EXPECT_EQ(form.lstEdit.Items(), items);

  form_.reset();
  FrmEdit& fresh = Start();
  platform_.QueueFile((dir_ / "copy.json").string());
  fresh.mnuFileImportText.UserClick();
  EXPECT_TRUE(BoxTexts().empty()) << BoxTexts()[0];
  EXPECT_EQ(fresh.lstEdit.Items(), items);
  EXPECT_EQ(ApplFileTitle, "copy.kqx");
  EXPECT_TRUE(ChangedFlag);  // not saved yet
  EXPECT_TRUE(fresh.mnuCompile.Enabled());
  fresh.mnuFileItem[2].UserClick();  // Save
  EXPECT_EQ(Read(dir_ / "copy.kqx"), Read(dir_ / "app.kqx"));
}

TEST_F(TextFormMenuTest, AWrongTextIsRefusedWithItsPlace) {
  FrmEdit& form = Start();
  std::string text = "{\"format\":\"KQEdit application text 1\",\"version\":\"3.10\",";
  text += "\"compiled\":false,\"variables\":[],\"paths\":[],\"tables\":[],";
  text += "\"lines\":[{\"function\":\"Delay\",\"record\":{\"DelayMs\":\"long\"}}]}";
  std::ofstream(dir_ / "bad.json", std::ios::binary) << text;
  platform_.QueueFile((dir_ / "bad.json").string());
  form.mnuFileImportText.UserClick();
  ASSERT_EQ(BoxTitles(), std::vector<std::string>{"File Error"});
  EXPECT_NE(BoxTexts()[0].find("/lines/0/record/DelayMs: expected a whole number"),
            std::string::npos)
      << BoxTexts()[0];
  EXPECT_EQ(form.lstEdit.ListCount(), 0);
  EXPECT_EQ(ApplFileTitle, "Untitled");
}

}  // namespace
}  // namespace kq::test
