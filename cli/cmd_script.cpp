#include "cli/cmd_script.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <memory>
#include <string_view>

#include <CLI/CLI.hpp>

#include "cli/commands.h"
#include "document/state.h"
#include "editor/frm_edit.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/menu.h"
#include "ui/platform/codepage.h"
#include "ui/platform/platform.h"

namespace kqx {

using namespace kq;

namespace {

std::string ControlKey(const ui::Control& c) {
  return c.Index() < 0 ? c.Name() : c.Name() + "(" + std::to_string(c.Index()) + ")";
}

// The version field as text: its bytes up to the first NUL or blank.
std::string VersionText() {
  std::string v(PrgHdr.Version, sizeof PrgHdr.Version);
  const auto end = v.find_first_of(std::string("\0 ", 2));
  return end == std::string::npos ? v : v.substr(0, end);
}

// Every form of the program, shown or not.
// clang-format off
constexpr std::string_view kProgramForms[] = {
    "frmAbout", "frmAddRec", "frmAssign", "frmAssignPa",
    "frmCTBusCon", "frmCalculate", "frmCallOut", "frmCheckFile",
    "frmCheckPath", "frmCondition", "frmConnectTbl", "frmConvert",
    "frmDefDBTbl", "frmDefPath", "frmDefVar", "frmDelay",
    "frmDeleteFile", "frmDeleteRec", "frmDialNo", "frmDisconnectTbl",
    "frmEdit", "frmEmptyTbl", "frmFunc", "frmGetChNo",
    "frmGetDate", "frmGetDayOfWeek", "frmGetFirstRec", "frmGetKey",
    "frmGetLastRec", "frmGetNextRec", "frmGetNoRec", "frmGetPrevRec",
    "frmGetRecNo", "frmGetTime", "frmGosub", "frmGoto",
    "frmGotoFunc", "frmGotoLabel", "frmGotoPath", "frmGotoVar",
    "frmInStr", "frmInsertRec", "frmLabel", "frmLeftStr",
    "frmLenStr", "frmLineNo", "frmListen", "frmOnOffHook",
    "frmPrompts", "frmPrototype", "frmRSwitch", "frmRandom", "frmRecordSound",
    "frmRecordingWave", "frmRemark", "frmReturn", "frmRightStr",
    "frmRun", "frmSayFile", "frmSayNo", "frmSelectRec", "frmSimulate",
    "frmSoundFileCounter", "frmTrimStr", "frmUpdateRec", "frmVarExp",
    "frmVoice", "frmWaitForCall", "frmWaitForKey",
};
// clang-format on

bool IsProgramForm(const std::string& name) {
  for (std::string_view form : kProgramForms) {
    if (form == name) return true;
  }
  return false;
}

}  // namespace

ui::Json EditorDump() {
  ui::Json j;
  FrmEdit* form = EditorWindow();
  j.Set("caption", form ? ui::Json(form->Caption()) : ui::Json());
  j.Set("ApplFileTitle", ApplFileTitle);
  j.Set("ApplFileName", ApplFileName);
  j.Set("ChangedFlag", ChangedFlag);
  j.Set("CompiledFlag", PrgHdr.CompiledFlag != 0);
  j.Set("LineCount", static_cast<int>(PrgHdr.LineCount));
  j.Set("Version", VersionText());
  ui::Json::Array lines, selected;
  ui::Json::Object menus;
  int listIndex = -1;
  if (form != nullptr) {
    for (const auto& text : form->lstEdit.Items()) lines.emplace_back(text);
    for (int i : form->lstEdit.SelectedIndexes()) selected.emplace_back(i);
    listIndex = form->lstEdit.ListIndex();
    // The menus in the order of the bar and of each menu's items.
    std::function<void(const ui::Menu&)> add = [&](const ui::Menu& m) {
      ui::Json entry;
      entry.Set("caption", m.Caption());
      entry.Set("enabled", m.Enabled());
      entry.Set("checked", m.Checked());
      entry.Set("visible", m.Visible());
      menus.emplace_back(ControlKey(m), std::move(entry));
      for (const ui::Menu* item : m.Items()) add(*item);
    };
    for (const ui::Menu* m : form->MenuBar()) add(*m);
  }
  j.Set("lines", std::move(lines));
  j.Set("selected", std::move(selected));
  j.Set("ListIndex", listIndex);
  j.Set("menus", std::move(menus));
  return j;
}

ui::ScriptHooks EditorScriptHooks() {
  auto holder = std::make_shared<std::unique_ptr<FrmEdit>>();
  ui::ScriptHooks hooks;
  hooks.start = [holder] {
    *holder = std::make_unique<FrmEdit>();
    ui::platform().Show(**holder);
  };
  hooks.dump = [] { return EditorDump(); };
  hooks.knownForm = IsProgramForm;
  hooks.stop = [holder] { holder->reset(); };
  return hooks;
}

namespace {

struct ScriptArgs {
  std::string file;
  std::string settingsFile;
  std::string dataDir = ".";
  std::string homeDir = ".";
  std::vector<int> screen{28800, 16200};
};

int Script(Session& session, const ScriptArgs& a) {
  std::ifstream script;
  if (a.file != "-") {
    script.open(a.file, std::ios::binary);
    if (!script) {
      session.err << "kqx script: cannot read " << a.file << "\n";
      return kExitRefused;
    }
  }
  ui::HeadlessPlatform& platform = session.platform;
  platform.SetScreen(a.screen[0], a.screen[1]);
  platform.SetDataDirectory(ui::Utf8ToCp1252(a.dataDir));
  platform.SetUserDirectory(ui::Utf8ToCp1252(a.homeDir));
  platform.SetTempDirectory(ui::Utf8ToCp1252(a.homeDir));
  platform.SettingsOf("KQEdit", "Settings").clear();
  // The dialogs move the working folder: the settings go back to the file that was named.
  const std::string settingsFile =
      a.settingsFile.empty() ? std::string() : std::filesystem::absolute(a.settingsFile).string();
  if (!settingsFile.empty()) platform.LoadSettingsFile(settingsFile);
  const int status =
      ui::RunScriptOn(platform, a.file == "-" ? std::cin : script, EditorScriptHooks());
  if (!settingsFile.empty() && !platform.SaveSettingsFile(settingsFile)) {
    session.err << "kqx script: cannot write " << a.settingsFile << "\n";
  }
  return status;
}

}  // namespace

void AddScriptCommand(CLI::App& app, Session& session) {
  auto a = std::make_shared<ScriptArgs>();
  CLI::App* cmd = app.add_subcommand("script",
                                     "Drive the editor without a window from a script (- reads "
                                     "standard input) and print what a person would see");
  cmd->add_option("FILE", a->file, "the script, or - for standard input")->required();
  cmd->add_option("--settings", a->settingsFile, "the settings file, read and written back");
  cmd->add_option("--data", a->dataDir, "the program's data folder")->type_name("DIR");
  cmd->add_option("--home", a->homeDir, "the user's folder and the temporary folder")
      ->type_name("DIR");
  cmd->add_option("--screen", a->screen, "the screen's width and height in twips")
      ->expected(2)
      ->type_name("W H")
      ->check(CLI::Range(1, 1000000));
  OnRun(*cmd, session, [a, &session] { return Script(session, *a); });
}

}  // namespace kqx
