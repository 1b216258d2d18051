// Fuzz target of the script runner's parser: every input is a script run against a small
// form of each kind of control on a headless platform of its own. A wrong script ends
// with an error event and its status; a crash, a sanitizer report or a hang is a fault.
// Built with libFuzzer under clang; with replay_main.cpp an ordinary program that replays
// the files it is given.
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>

#include "ui/headless/headless_platform.h"
#include "ui/headless/script_runner.h"
#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace {

class Probe : public ui::Form {
 public:
  Probe() : Form("frmProbe", "Probe") {
    lstItems.AddItem("one");
    lstItems.AddItem("two");
    cboKind.AddItem("alpha");
    cboKind.AddItem("beta");
    txtName.SetMaxLength(20);
    cmdOK.SetDefault(true);
    cmdCancel.SetCancel(true);
  }
  ui::Label lblName{*this, "lblName", "&Name:"};
  ui::TextBox txtName{*this, "txtName"};
  ui::TextBox txtArr0{*this, "txtArr", 0};
  ui::TextBox txtArr1{*this, "txtArr", 1};
  ui::ListBox lstItems{*this, "lstItems"};
  ui::ComboBox cboKind{*this, "cboKind"};
  ui::CheckBox chkFlag{*this, "chkFlag", "&Flag"};
  ui::OptionButton optA{*this, "optWhich", "A", 0};
  ui::OptionButton optB{*this, "optWhich", "B", 1};
  ui::CommandButton cmdOK{*this, "cmdOK", "OK"};
  ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  ui::HeadlessPlatform platform;
  // KQ_FUZZ_EVENTS=1 shows what a replayed script did.
  static const bool showEvents = std::getenv("KQ_FUZZ_EVENTS") != nullptr;
  if (showEvents) platform.SetEventStream(&std::cerr);
  Probe probe;
  ui::ScriptHooks hooks;
  hooks.start = [&] { platform.Show(probe); };
  hooks.knownForm = [](const std::string& name) { return name == "frmProbe"; };
  hooks.stop = [&] {
    if (probe.Loaded()) probe.Unload();
  };
  std::istringstream script(std::string(reinterpret_cast<const char*>(data), size));
  ui::RunScriptOn(platform, script, hooks);
  ui::SetPlatform(nullptr);
  return 0;
}
