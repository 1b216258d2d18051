// Every menu command of the main window acts the same when a script clicks it as when the
// program calls its handler: the same events in the same order, the same document and
// window state at the end, the same settings written.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "cli/cmd_script.h"
#include "dialogs/frm_def_var.h"
#include "dialogs/frm_func.h"
#include "dialogs/frm_remark.h"
#include "editor/frm_edit.h"
#include "editor/frm_goto_func.h"
#include "ui/headless/headless_platform.h"
#include "ui/headless/script_runner.h"

namespace fs = std::filesystem;

namespace kq::test {
namespace {

using Direct = std::function<void(FrmEdit&, ui::HeadlessPlatform&)>;

// One command: the script lines a person's actions make, and the same command called
// directly with its dialogs driven from the queue.
struct Step {
  std::string script;
  Direct direct;
};

// A Remark line through the picker (or, for Modify, without it).
std::string RemarkLines(const std::string& text, bool picker) {
  std::string s;
  if (picker) s += "  frmFunc.lstFunc.Select \"Remark\"\n  frmFunc.cmdOk.Click\n";
  return s + "  frmRemark.txtRemark.Text \"" + text + "\"\n  frmRemark.cmdOk.Click\n";
}

void QueueRemark(ui::HeadlessPlatform& p, const std::string& text, bool picker) {
  if (picker) {
    p.QueueModal("frmFunc", [](ui::Form& f) {
      auto& d = static_cast<frmFunc&>(f);
      for (int i = 0; i < d.lstFunc.ListCount(); ++i) {
        if (d.lstFunc.List(i) == "Remark") d.lstFunc.UserSelect(i);
      }
      d.cmdOk.UserClick();
    });
  }
  p.QueueModal("frmRemark", [text](ui::Form& f) {
    auto& d = static_cast<frmRemark&>(f);
    d.txtRemark.SetText(text);
    d.cmdOk.UserClick();
  });
}

std::vector<Step> Steps(const std::string& home) {
  const std::string a = home + "/a.kqx";
  const std::string part = home + "/part.kqx";
  return {
      {"frmEdit.mnuFileItem(0).Click\n", [](FrmEdit& f, auto&) { f.mnuFileItem_Click(0); }},
      {"frmEdit.mnuDefineItem(0).Click\n  frmDefVar.cmdOk.Click\n",
       [](FrmEdit& f, ui::HeadlessPlatform& p) {
         p.QueueModal("frmDefVar",
                      [](ui::Form& d) { static_cast<frmDefVar&>(d).cmdOk.UserClick(); });
         f.mnuDefineItem_Click(0);
       }},
      {"frmEdit.mnuEditItem(0).Click\n" + RemarkLines("one", true),
       [](FrmEdit& f, ui::HeadlessPlatform& p) {
         QueueRemark(p, "one", true);
         f.mnuEditItem_Click(0);
       }},
      {"frmEdit.mnuEditItem(0).Click\n" + RemarkLines("two", true),
       [](FrmEdit& f, ui::HeadlessPlatform& p) {
         QueueRemark(p, "two", true);
         f.mnuEditItem_Click(0);
       }},
      {"frmEdit.mnuSpeechItem(2).Click\n", [](FrmEdit& f, auto&) { f.mnuSpeechItem_Click(2); }},
      {"file \"" + a + "\"\nfrmEdit.mnuFileItem(3).Click\n",
       [a](FrmEdit& f, ui::HeadlessPlatform& p) {
         p.QueueFile(a);
         f.mnuFileItem_Click(3);
       }},
      {"frmEdit.lstEdit.Select 0\nfrmEdit.mnuEditItem(1).Click\n" + RemarkLines("zero", true),
       [](FrmEdit& f, ui::HeadlessPlatform& p) {
         f.lstEdit.UserSelect(0);
         QueueRemark(p, "zero", true);
         f.mnuEditItem_Click(1);
       }},
      {"frmEdit.lstEdit.DblClick\n" + RemarkLines("changed", false),
       [](FrmEdit& f, ui::HeadlessPlatform& p) {
         QueueRemark(p, "changed", false);
         f.lstEdit_DblClick();
       }},
      {"answer OK\nfrmEdit.mnuCompile.Click\n",
       [](FrmEdit& f, ui::HeadlessPlatform& p) {
         p.QueueAnswer(ui::vbOK);
         f.mnuCompile_Click();
       }},
      {"frmEdit.mnuFileItem(2).Click\n", [](FrmEdit& f, auto&) { f.mnuFileItem_Click(2); }},
      {"printdialog cancel\nfrmEdit.mnuPrint.Click\n",
       [](FrmEdit& f, ui::HeadlessPlatform& p) {
         p.QueuePrint(std::nullopt);
         f.mnuPrint_Click();
       }},
      {"frmEdit.mnuGotoItem(3).Click\n  frmGotoFunc.cmdCancel.Click\n",
       [](FrmEdit& f, ui::HeadlessPlatform& p) {
         p.QueueModal("frmGotoFunc",
                      [](ui::Form& d) { static_cast<frmGotoFunc&>(d).cmdCancel.UserClick(); });
         f.mnuGotoItem_Click(3);
       }},
      {"frmEdit.lstEdit.Selected 2 true\nfile \"" + part + "\"\nfrmEdit.mnuFileItem(4).Click\n",
       [part](FrmEdit& f, ui::HeadlessPlatform& p) {
         f.lstEdit.SetSelected(2, true);
         p.QueueFile(part);
         f.mnuFileItem_Click(4);
       }},
      {"frmEdit.mnuEditItem(3).Click\n", [](FrmEdit& f, auto&) { f.mnuEditItem_Click(3); }},
      {"answer No\nanswer Yes\nfrmEdit.mnuFileItem(6).Click\n",
       [](FrmEdit& f, ui::HeadlessPlatform& p) {
         p.QueueAnswer(ui::vbNo);
         p.QueueAnswer(ui::vbYes);
         f.mnuFileItem_Click(6);
       }},
      {"frmEdit.mnuFileArray(2).Click\n", [](FrmEdit& f, auto&) { f.mnuFileArray_Click(2); }},
      {"frmEdit.lstEdit.Select 1\nfile \"" + part + "\"\nfrmEdit.mnuFileItem(5).Click\n",
       [part](FrmEdit& f, ui::HeadlessPlatform& p) {
         f.lstEdit.UserSelect(1);
         p.QueueFile(part);
         f.mnuFileItem_Click(5);
       }},
      {"answer No\nanswer No\nfrmEdit.mnuFileItem(9).Click\n",
       [](FrmEdit& f, ui::HeadlessPlatform& p) {
         p.QueueAnswer(ui::vbNo);
         p.QueueAnswer(ui::vbNo);
         f.mnuFileItem_Click(9);
       }},
      {"frmEdit.lstEdit.KeyDown 46\n",
       [](FrmEdit& f, auto&) {
         int key = ui::vbKeyDelete;
         f.lstEdit_KeyDown(key, 0);
       }},
      {"frmEdit.mnuEditItem(4).Click\n", [](FrmEdit& f, auto&) { f.mnuEditItem_Click(4); }},
      {"frmEdit.mnuHelpItem(0).Click\n", [](FrmEdit& f, auto&) { f.mnuHelpItem_Click(0); }},
      {"frmEdit.mnuFileItem(9).Click\n", [](FrmEdit& f, auto&) { f.mnuFileItem_Click(9); }},
      {"answer OK\nfrmEdit.mnuFileItem(7).Click\n",
       [](FrmEdit& f, ui::HeadlessPlatform& p) {
         p.QueueAnswer(ui::vbOK);
         f.mnuFileItem_Click(7);
       }},
  };
}

class ScriptEquivalence : public ::testing::Test {
 protected:
  void SetUp() override {
    home_ = (fs::temp_directory_path() / ("kq-script-equivalence-" + std::to_string(::getpid())))
                .string();
    Fresh();
  }
  void TearDown() override {
    ui::SetPlatform(nullptr);
    fs::remove_all(home_);
  }
  void Fresh() {
    fs::remove_all(home_);
    fs::create_directories(home_);
  }
  void Prepare(ui::HeadlessPlatform& p, std::ostream& out) {
    p.SetUserDirectory(home_);
    p.SetDataDirectory(home_);
    p.SetTempDirectory(home_);
    p.SetEventStream(&out);
  }
  std::string home_;
};

TEST_F(ScriptEquivalence, EveryMenuCommandActsAsItsHandlerDoes) {
  const std::vector<Step> steps = Steps(home_);

  std::string script;
  for (const Step& s : steps) script += s.script;
  script += "dump\nfrmEdit.Close\n";
  ui::HeadlessPlatform scripted;
  std::ostringstream scriptOut;
  Prepare(scripted, scriptOut);
  std::istringstream in(script);
  ASSERT_EQ(ui::kScriptOk, ui::RunScriptOn(scripted, in, kqx::EditorScriptHooks()))
      << scriptOut.str();
  ui::SetPlatform(nullptr);

  Fresh();
  ui::HeadlessPlatform direct;
  std::ostringstream directOut;
  Prepare(direct, directOut);
  ui::SetPlatform(&direct);
  {
    FrmEdit f;
    direct.Show(f);
    for (const Step& s : steps) s.direct(f, direct);
    ui::Json state;
    state.Set("event", "state");
    const ui::Json dumped = kqx::EditorDump();
    for (const auto& [key, value] : dumped.Obj()) state.Set(key, value);
    direct.Record(std::move(state));
    f.Close();
  }

  EXPECT_EQ(0, scripted.CountOf("refused"));
  EXPECT_GT(scripted.CountOf("msgbox"), 5);
  EXPECT_EQ(directOut.str(), scriptOut.str());
  EXPECT_EQ(direct.SettingsOf("KQEdit", "Settings"), scripted.SettingsOf("KQEdit", "Settings"));
}

}  // namespace
}  // namespace kq::test
