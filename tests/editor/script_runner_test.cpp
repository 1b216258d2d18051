// The script runner on forms of its own: the grammar, the refusals, the modal dialogs that
// the following lines drive, the text encodings and the exit statuses.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>

#include "tests/support/test_text.h"
#include "ui/headless/headless_platform.h"
#include "ui/headless/script_runner.h"
#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"
#include "ui/model/menu.h"
#include "ui/platform/codepage.h"
#include "ui/platform/platform.h"

namespace {

class frmAsk : public ui::Form {
 public:
  frmAsk() : ui::Form("frmAsk", "Ask") {
    cmdBrowse.OnClick = [this] {
      txtValue.SetText(ui::platform().FileDialog({}).value_or("(cancelled)"));
    };
    cmdOk.OnClick = [this] {
      answered = txtValue.Text();
      Unload();
    };
  }
  ui::TextBox txtValue{*this, "txtValue"};
  ui::CommandButton cmdOk{*this, "cmdOk", "&Ok"};
  ui::CommandButton cmdBrowse{*this, "cmdBrowse", "&Browse"};
  std::string answered;
};

class frmMain : public ui::Form {
 public:
  frmMain() : ui::Form("frmMain", "Main") {
    txtDigits.SetMaxLength(4);
    txtDigits.OnKeyPress = [](int& k) {
      if (k != 8 && (k < '0' || k > '9')) k = 0;
    };
    cboKind.SetStyle(ui::ComboBox::Style::DropdownList);
    cboKind.AddItem("Long");
    cboKind.AddItem("String");
    lstItems.SetMultiSelect(ui::ListBox::MultiSelect::Extended);
    lstItems.AddItem("one  ");
    lstItems.AddItem("two");
    lstItems.OnDblClick = [this] { ++doubleClicks; };
    lstItems.OnKeyDown = [this](int& k, int) { lastKeyDown = k; };
    cmdOff.SetEnabled(false);
    cmdHidden.SetVisible(false);
    cmdAsk.OnClick = [this] {
      frmAsk ask;
      ask.ShowModal();
      asked = ask.answered;
      ui::platform().MsgBox("Asked " + asked, ui::vbYesNo | ui::vbQuestion, "Result");
    };
    cmdOpen.OnClick = [this] {
      opened = ui::platform().FileDialog({}).value_or("(cancelled)");
      if (ui::platform().MsgBox("Open " + opened + "?", ui::vbYesNoCancel, "Open") == ui::vbNo) {
        opened.clear();
      }
    };
    mnuTools.SetEnabled(false);
    mnuTools.Append(mnuToolsItem);
    AddMenu(mnuTools);
  }
  ui::TextBox txtDigits{*this, "txtDigits"};
  ui::TextBox txtName{*this, "txtName"};
  ui::ComboBox cboKind{*this, "cboKind"};
  ui::ListBox lstItems{*this, "lstItems"};
  ui::CheckBox chkFlag{*this, "chkFlag", "Flag"};
  ui::OptionButton optA[2]{{*this, "optA", "A", 0}, {*this, "optA", "B", 1}};
  ui::CommandButton cmdOff{*this, "cmdOff", "Off"};
  ui::CommandButton cmdHidden{*this, "cmdHidden", "Hidden"};
  ui::CommandButton cmdAsk{*this, "cmdAsk", "Ask"};
  ui::CommandButton cmdOpen{*this, "cmdOpen", "Open"};
  ui::Menu mnuTools{*this, "mnuTools", "&Tools"};
  ui::Menu mnuToolsItem{*this, "mnuToolsItem", "&Run", 0};
  std::string asked;
  std::string opened;
  int doubleClicks = 0;
  int lastKeyDown = 0;
};

class ScriptRunner : public ::testing::Test {
 protected:
  int Run(const std::string& script) {
    ui::ScriptHooks hooks;
    hooks.start = [this] {
      form_ = std::make_unique<frmMain>();
      ui::platform().Show(*form_);
    };
    hooks.dump = [] {
      ui::Json j;
      j.Set("program", "test");
      return j;
    };
    std::istringstream in(script);
    // A fresh platform for each run, as each run of kqx has its own.
    form_.reset();
    platform_ = std::make_unique<ui::HeadlessPlatform>();
    platform_->SetEventStream(&out_);
    return ui::RunScriptOn(*platform_, in, hooks);
  }
  std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    std::istringstream in(out_.str());
    std::string l;
    while (std::getline(in, l)) lines.push_back(l);
    return lines;
  }
  void TearDown() override {
    form_.reset();
    ui::SetPlatform(nullptr);
    platform_.reset();
  }

  std::unique_ptr<ui::HeadlessPlatform> platform_;
  std::ostringstream out_;
  std::unique_ptr<frmMain> form_;
};

TEST_F(ScriptRunner, TypingGoesThroughKeyPressAndMaxLength) {
  EXPECT_EQ(0, Run("\xEF\xBB\xBF"
                   "frmMain.txtDigits.Type \"1a2b345\"\n"
                   "frmMain.txtDigits.Key 8\n"
                   "frmMain.txtName.Type \"Zoë \\\"q\\\"\"\n"
                   "show frmMain.txtName\n"));
  EXPECT_EQ("123", form_->txtDigits.Text());
  EXPECT_EQ(std::string("Zo\xEB \"q\""), form_->txtName.Text());
  EXPECT_EQ(
      "{\"event\":\"state\",\"form\":\"frmMain\",\"control\":\"txtName\",\"index\":null,"
      "\"text\":\"Zoë \\\"q\\\"\",\"enabled\":true,\"visible\":true}",
      Lines().back());
}

TEST_F(ScriptRunner, ListsCombosChecksAndOptions) {
  EXPECT_EQ(0, Run("frmMain.cboKind.Text \"String\"\n"
                   "frmMain.lstItems.Select \"one\"\n"
                   "frmMain.lstItems.Selected 1 true\n"
                   "frmMain.lstItems.DblClick\n"
                   "frmMain.lstItems.KeyDown 46\n"
                   "frmMain.chkFlag.Value 1\n"
                   "frmMain.optA(1).Value 1\n"
                   "frmMain.lstItems.Select \"three\"\n"
                   "show frmMain.lstItems\n"));
  EXPECT_EQ(1, form_->cboKind.ListIndex());
  EXPECT_EQ((std::vector<int>{0, 1}), form_->lstItems.SelectedIndexes());
  EXPECT_EQ(1, form_->doubleClicks);
  EXPECT_EQ(46, form_->lastKeyDown);
  EXPECT_EQ(1, form_->chkFlag.Value());
  EXPECT_TRUE(form_->optA[1].Value());
  const auto refused = platform_->EventsOf("refused");
  ASSERT_EQ(1u, refused.size());
  EXPECT_EQ(8, refused[0].fields["line"].Int());
  EXPECT_NE(std::string::npos, Lines().back().find("\"items\":[\"one  \",\"two\"]"));
}

// The fields of a control's state come in one order for every kind: caption, text, enabled,
// visible, value, then those of lists.
TEST_F(ScriptRunner, ShowOfAControlGivesItsFieldsInTheirOrder) {
  EXPECT_EQ(0, Run("frmMain.chkFlag.Value 1\n"
                   "show frmMain.chkFlag\n"
                   "show frmMain.optA(1)\n"
                   "show frmMain.cboKind\n"));
  const auto lines = Lines();
  ASSERT_EQ(4u, lines.size());
  EXPECT_EQ(
      "{\"event\":\"state\",\"form\":\"frmMain\",\"control\":\"chkFlag\",\"index\":null,"
      "\"caption\":\"Flag\",\"enabled\":true,\"visible\":true,\"value\":1}",
      lines[1]);
  EXPECT_EQ(
      "{\"event\":\"state\",\"form\":\"frmMain\",\"control\":\"optA\",\"index\":1,"
      "\"caption\":\"B\",\"enabled\":true,\"visible\":true,\"value\":false}",
      lines[2]);
  EXPECT_EQ(
      "{\"event\":\"state\",\"form\":\"frmMain\",\"control\":\"cboKind\",\"index\":null,"
      "\"text\":\"\",\"enabled\":true,\"visible\":true,\"ListIndex\":-1,"
      "\"items\":[\"Long\",\"String\"]}",
      lines[3]);
}

TEST_F(ScriptRunner, WhatAPersonCouldNotUseIsRefusedAndTheScriptGoesOn) {
  EXPECT_EQ(0, Run("frmMain.cmdOff.Click\n"
                   "frmMain.cmdHidden.Click\n"
                   "frmMain.mnuToolsItem(0).Click\n"
                   "frmAsk.cmdOk.Click\n"
                   "frmMain.txtName.Text \"done\"\n"));
  const auto refused = platform_->EventsOf("refused");
  ASSERT_EQ(4u, refused.size());
  EXPECT_EQ("cmdOff is disabled", refused[0].fields["reason"].Str());
  EXPECT_EQ("cmdHidden is not visible", refused[1].fields["reason"].Str());
  EXPECT_EQ("mnuToolsItem(0) is under a menu that is disabled", refused[2].fields["reason"].Str());
  EXPECT_EQ("form frmAsk is not shown", refused[3].fields["reason"].Str());
  EXPECT_EQ("done", form_->txtName.Text());
}

TEST_F(ScriptRunner, TheLinesAfterAModalDialogActInItUntilItUnloads) {
  EXPECT_EQ(0, Run("answer No\n"
                   "frmMain.cmdAsk.Click\n"
                   "  frmMain.txtName.Text \"behind\"\n"
                   "  frmAsk.txtValue.Type \"42\"\n"
                   "  frmAsk.cmdOk.Click\n"
                   "frmMain.cmdAsk.Click\n"
                   "  frmAsk.cmdOk.Click\n"));
  const auto boxes = platform_->EventsOf("msgbox");
  ASSERT_EQ(2u, boxes.size());
  EXPECT_EQ("Asked 42", boxes[0].fields["text"].Str());
  EXPECT_EQ("No", boxes[0].fields["answer"].Str());
  EXPECT_FALSE(boxes[0].fields["default"].Bool());
  EXPECT_EQ("Yes", boxes[1].fields["answer"].Str());  // no answer queued: the first button
  EXPECT_TRUE(boxes[1].fields["default"].Bool());
  EXPECT_EQ("", form_->txtName.Text());  // the main form was behind the dialog
  EXPECT_EQ("form frmMain is behind frmAsk",
            platform_->EventsOf("refused")[0].fields["reason"].Str());
}

TEST_F(ScriptRunner, WrongLinesStopTheScriptWithTheirLineNumber) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"frmMain.txtName.Text \"open", "string without its closing quote"},
      {"answer Maybe", "unknown answer Maybe"},
      {"launch", "unknown command launch"},
      {"frmMain.txtName.Fly", "unknown action Fly"},
      {"frmMain.chkFlag.Text \"x\"", "chkFlag has no Text"},
      {"frmMain.txtName.Text \"a\\q\"", "unknown escape \\q"},
  };
  for (const auto& [line, message] : cases) {
    out_.str("");
    EXPECT_EQ(ui::kScriptWrong, Run("# a comment\n\n" + line + "\nfrmMain.txtName.Text \"x\"\n"))
        << line;
    const auto errors = platform_->EventsOf("error");
    ASSERT_EQ(1u, errors.size()) << line;
    EXPECT_EQ(3, errors[0].fields["line"].Int()) << line;
    EXPECT_EQ(message, errors[0].fields["message"].Str()) << line;
    EXPECT_EQ("", form_->txtName.Text()) << line;
  }
}

// Words outside quotes are UTF-8 too: a wrong one comes back in the error as it was written,
// and an escape of a letter outside ASCII names that one letter.
TEST_F(ScriptRunner, WordsOutsideQuotesAreTurnedIntoTheCodePageToo) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"answer Peut-\xC3\xAAtre", "unknown answer Peut-\xC3\xAAtre"},
      {"frmMain.txtName.Text \"a\\\xC3\xA9\"", "unknown escape \\\\\xC3\xA9"},
  };
  for (const auto& [line, message] : cases) {
    out_.str("");
    EXPECT_EQ(ui::kScriptWrong, Run(line + "\n")) << line;
    EXPECT_EQ("{\"event\":\"error\",\"line\":1,\"message\":\"" + message + "\"}", Lines().back())
        << line;
  }
}

// Replies and targets that fit nothing the program did are not guessed at: the run stops
// naming the line, with its own exit status.
TEST_F(ScriptRunner, RepliesAndTargetsThatFitNothingStopTheScript) {
  struct Case {
    std::string script;
    int line;
    std::string message;
  };
  const std::vector<Case> cases = {
      {"answer OK\nfrmMain.cmdAsk.Click\n  frmAsk.cmdOk.Click\n", 1,
       "answer OK names no button of the box \"Result\" (YesNo)"},
      {"file \"a.kqx\"\nanswer Retry\nfrmMain.cmdOpen.Click\n", 2,
       "answer Retry names no button of the box \"Open\" (YesNoCancel)"},
      {"frmMain.txtName.Text \"x\"\nfile \"a.kqx\"\nshow frmMain\nfrmMain.txtName.Text \"y\"\n", 2,
       "no file dialog came for this reply (line 4 opened none)"},
      // a line that is refused opens no dialog either
      {"file cancel\nfrmMain.cmdOff.Click\n", 1,
       "no file dialog came for this reply (line 2 opened none)"},
      {"file \"a.kqx\"\nfile \"b.kqx\"\nfrmMain.cmdOpen.Click\n", 2,
       "no file dialog came for this reply (line 3 opened none)"},
      {"frmMain.txtName.Text \"x\"\nfile cancel\n", 2, "no file dialog came for this reply"},
      {"frmMain.cmdNone.Click\n", 1, "unknown control frmMain.cmdNone"},
      {"show frmMain.optA(2)\n", 1, "unknown control frmMain.optA(2)"},
      {"frmMain.txt\xC3\x9C.Click\n", 1, "unknown control frmMain.txt\xC3\x9C"},
  };
  for (const Case& c : cases) {
    out_.str("");
    EXPECT_EQ(ui::kScriptMismatch, Run(c.script)) << c.script;
    const auto errors = platform_->EventsOf("error");
    ASSERT_EQ(1u, errors.size()) << c.script;
    EXPECT_EQ(c.line, errors[0].fields["line"].Int()) << c.script;
    EXPECT_EQ(c.message, ui::Cp1252ToUtf8(errors[0].fields["message"].Str())) << c.script;
  }
}

// A reply is for the next line that acts and for the dialogs that line opens, however
// many lines act inside those dialogs before the file dialog comes.
TEST_F(ScriptRunner, RepliesFitTheDialogsTheirLineOpens) {
  EXPECT_EQ(0, Run("file \"first.kqx\"\n"
                   "answer Cancel\n"
                   "frmMain.cmdOpen.Click\n"
                   "file \"second.kqx\"\n"
                   "answer No\n"
                   "frmMain.cmdAsk.Click\n"
                   "  frmAsk.txtValue.Type \"1\"\n"
                   "  frmAsk.cmdBrowse.Click\n"
                   "  frmAsk.cmdOk.Click\n"));
  EXPECT_EQ("first.kqx", form_->opened);
  EXPECT_EQ("second.kqx", form_->asked);
  const auto boxes = platform_->EventsOf("msgbox");
  ASSERT_EQ(2u, boxes.size());
  EXPECT_EQ("Cancel", boxes[0].fields["answer"].Str());
  EXPECT_EQ("No", boxes[1].fields["answer"].Str());
  EXPECT_TRUE(platform_->PendingFileLines().empty());
  // Without the runner, a platform takes any queued answer as it is.
  ui::HeadlessPlatform plain;
  plain.QueueAnswer(ui::vbRetry);
  EXPECT_EQ(ui::vbRetry, plain.MsgBox("text", ui::vbOKOnly, "title"));
}

TEST_F(ScriptRunner, ShowAndDumpPrintStates) {
  EXPECT_EQ(0, Run("frmMain.txtName.Focus\nshow frmMain\nshow frmAsk\ndump\n"));
  const auto lines = Lines();
  ASSERT_EQ(5u, lines.size());
  EXPECT_EQ(
      "{\"event\":\"state\",\"form\":\"frmMain\",\"caption\":\"Main\",\"visible\":true,"
      "\"active\":\"txtName\"}",
      lines[2]);
  EXPECT_EQ("{\"event\":\"state\",\"form\":\"frmAsk\",\"visible\":false}", lines[3]);
  EXPECT_EQ("{\"event\":\"state\",\"program\":\"test\"}", lines[4]);
}

TEST(ScriptRun, SettingsFileIsReadBeforeAndWrittenAfter) {
  const auto path = std::filesystem::temp_directory_path() /
                    ("kq-runner-settings.ini-" + std::to_string(::getpid()));
  std::ofstream(path) << "Greeting=hello\n";
  std::unique_ptr<frmMain> form;
  std::string seen;
  ui::ScriptHooks hooks;
  hooks.start = [&] {
    seen = ui::platform().GetSetting("KQEdit", "Settings", "Greeting", "");
    form = std::make_unique<frmMain>();
    ui::platform().Show(*form);
  };
  hooks.stop = [&] { form.reset(); };
  ui::ScriptOptions options;
  options.settingsFile = path.string();
  std::istringstream in("setting \"Answer\" \"Æ42\"\n");
  std::ostringstream out;
  EXPECT_EQ(0, ui::RunScript(in, out, options, hooks));
  EXPECT_EQ("hello", seen);
  EXPECT_EQ(
      "Answer=\xC6"
      "42\nGreeting=hello\n",
      kq::test::ReadText(path.string()));
  EXPECT_EQ("{\"event\":\"show\",\"form\":\"frmMain\"}\n", out.str());
  std::filesystem::remove(path);
}

}  // namespace
