#include "cli/cmd_script.h"

#include <cstdlib>
#include <iostream>

#include <fstream>
#include <functional>
#include <memory>
#include <string_view>

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
    "frmRun", "frmSayFile", "frmSayNo", "frmSelectRec",
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

// kqx script FILE|- [--settings FILE] [--data DIR] [--home DIR] [--screen W H]
int CmdScript(CliContext& ctx) {
  const std::vector<std::string>& args = ctx.args;
  static constexpr const char* kUsage =
      "usage: kqx script FILE|- [--settings FILE] [--data DIR] [--home DIR] [--screen W H]\n";
  std::string settingsFile;
  std::string dataDir = ".";
  std::string homeDir = ".";
  int screenWidth = 28800;
  int screenHeight = 16200;
  std::string file;
  for (size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    const bool hasValue = i + 1 < args.size();
    if (a == "--settings" && hasValue) {
      settingsFile = args[++i];
    } else if (a == "--data" && hasValue) {
      dataDir = args[++i];
    } else if (a == "--home" && hasValue) {
      homeDir = args[++i];
    } else if (a == "--screen" && i + 2 < args.size()) {
      char* end1 = nullptr;
      char* end2 = nullptr;
      const long w = std::strtol(args[i + 1].c_str(), &end1, 10);
      const long h = std::strtol(args[i + 2].c_str(), &end2, 10);
      if (*end1 != '\0' || *end2 != '\0' || w <= 0 || h <= 0 || w > 1000000 || h > 1000000) {
        ctx.err << "kqx script: --screen takes two positive numbers\n" << kUsage;
        return kExitRefused;
      }
      screenWidth = static_cast<int>(w);
      screenHeight = static_cast<int>(h);
      i += 2;
    } else if (file.empty() && (a == "-" || a.rfind("--", 0) != 0)) {
      file = a;
    } else {
      ctx.err << "kqx script: unexpected argument " << a << "\n" << kUsage;
      return kExitRefused;
    }
  }
  if (file.empty()) {
    ctx.err << kUsage;
    return kExitRefused;
  }
  std::ifstream script;
  if (file != "-") {
    script.open(file, std::ios::binary);
    if (!script) {
      ctx.err << "kqx script: cannot read " << file << "\n";
      return kExitRefused;
    }
  }
  ui::HeadlessPlatform& platform = ctx.platform;
  platform.SetScreen(screenWidth, screenHeight);
  platform.SetDataDirectory(ui::Utf8ToCp1252(dataDir));
  platform.SetUserDirectory(ui::Utf8ToCp1252(homeDir));
  platform.SetTempDirectory(ui::Utf8ToCp1252(homeDir));
  platform.SettingsOf("KQEdit", "Settings").clear();
  if (!settingsFile.empty()) platform.LoadSettingsFile(settingsFile);
  const int status =
      ui::RunScriptOn(platform, file == "-" ? std::cin : script, EditorScriptHooks());
  if (!settingsFile.empty() && !platform.SaveSettingsFile(settingsFile)) {
    ctx.err << "kqx script: cannot write " << settingsFile << "\n";
  }
  return status;
}

}  // namespace kqx
