#include "cli/cmd_script.h"

#include <fstream>
#include <functional>
#include <memory>

#include "document/state.h"
#include "editor/frm_edit.h"
#include "ui/model/menu.h"
#include "ui/platform/platform.h"

namespace kq::cli {

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
  hooks.stop = [holder] { holder->reset(); };
  return hooks;
}

int CmdScript(const std::vector<std::string>& args, std::istream& in, std::ostream& out,
              std::ostream& err) {
  static constexpr const char* kUsage =
      "usage: kqx script FILE|- [--settings FILE] [--data DIR] [--home DIR] [--screen W H]\n";
  ui::ScriptOptions options;
  options.homeDir = ".";
  options.dataDir = ".";
  std::string file;
  for (size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    auto value = [&](size_t n) -> bool {
      if (i + n >= args.size()) return false;
      return true;
    };
    if (a == "--settings" && value(1)) {
      options.settingsFile = args[++i];
    } else if (a == "--data" && value(1)) {
      options.dataDir = args[++i];
    } else if (a == "--home" && value(1)) {
      options.homeDir = args[++i];
    } else if (a == "--screen" && value(2)) {
      try {
        options.screenWidth = std::stoi(args[i + 1]);
        options.screenHeight = std::stoi(args[i + 2]);
      } catch (const std::exception&) {
        err << "kqx script: --screen takes two numbers\n" << kUsage;
        return 1;
      }
      if (options.screenWidth <= 0 || options.screenHeight <= 0) {
        err << "kqx script: --screen takes two positive numbers\n" << kUsage;
        return 1;
      }
      i += 2;
    } else if (file.empty() && (a == "-" || a.rfind("--", 0) != 0)) {
      file = a;
    } else {
      err << "kqx script: unexpected argument " << a << "\n" << kUsage;
      return 1;
    }
  }
  if (file.empty()) {
    err << kUsage;
    return 1;
  }
  if (file == "-") return ui::RunScript(in, out, options, EditorScriptHooks());
  std::ifstream script(file, std::ios::binary);
  if (!script) {
    err << "kqx script: cannot read " << file << "\n";
    return 1;
  }
  return ui::RunScript(script, out, options, EditorScriptHooks());
}

}  // namespace kq::cli
