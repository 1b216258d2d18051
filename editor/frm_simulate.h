// The Simulate window: runs the open application as one call on a keypad line, with a
// telephone keypad, Ring and Hang up, Step, Continue and Stop, breakpoints on lines of
// lstEdit, the current line selected there, the variables and the current records of the
// tables watched, the trace, and the prompts heard through a media control.
#pragma once

#include <memory>
#include <set>

#include "sim/engine.h"
#include "sim/keypad_line.h"
#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"
#include "ui/model/media_control.h"

namespace kq {

class frmSimulate : public ui::Form {
 public:
  frmSimulate();
  ~frmSimulate() override;

  static constexpr int kKeys = 12;
  ui::Label lblLine{*this, "lblLine", ""};
  ui::CommandButton cmdKey[kKeys]{
      {*this, "cmdKey", "1", 0}, {*this, "cmdKey", "2", 1},  {*this, "cmdKey", "3", 2},
      {*this, "cmdKey", "4", 3}, {*this, "cmdKey", "5", 4},  {*this, "cmdKey", "6", 5},
      {*this, "cmdKey", "7", 6}, {*this, "cmdKey", "8", 7},  {*this, "cmdKey", "9", 8},
      {*this, "cmdKey", "*", 9}, {*this, "cmdKey", "0", 10}, {*this, "cmdKey", "#", 11}};
  ui::CommandButton cmdRing{*this, "cmdRing", "&Ring"};
  ui::CommandButton cmdHangUp{*this, "cmdHangUp", "&Hang up"};
  ui::CommandButton cmdStep{*this, "cmdStep", "&Step"};
  ui::CommandButton cmdContinue{*this, "cmdContinue", "C&ontinue"};
  ui::CommandButton cmdStop{*this, "cmdStop", "S&top"};
  ui::CommandButton cmdBreakpoint{*this, "cmdBreakpoint", "&Breakpoint"};
  ui::CommandButton cmdClose{*this, "cmdClose", "&Close"};
  ui::Label lblWatch{*this, "lblWatch", "Variables:"};
  ui::ListBox lstWatch{*this, "lstWatch"};
  ui::Label lblTables{*this, "lblTables", "Tables:"};
  ui::ListBox lstTables{*this, "lstTables"};
  ui::Label lblTrace{*this, "lblTrace", "Trace:"};
  ui::ListBox lstTrace{*this, "lstTrace"};
  ui::MMControl mciPrompt{*this, "mciPrompt"};

  const std::set<int>& Breakpoints() const { return breakpoints_; }
  const sim::Engine* Engine() const { return engine_.get(); }
  // A new run of the application as it is now, the breakpoints kept.
  void Start();

 private:
  void Form_Load() override;
  void cmdKey_Click(int index);
  void cmdStep_Click();
  void cmdContinue_Click();
  void cmdStop_Click();
  void cmdBreakpoint_Click();
  void Form_Unload() override;
  // False, with the caption saying so, when lines were changed since the run began.
  bool SameDocument();
  // Shows the run's state; `selectLine` selects the current line in lstEdit (not at load,
  // where the line a person chose stays, for a breakpoint).
  void Show(bool selectLine = true);

  struct Run;
  std::unique_ptr<Run> run_;
  sim::KeypadLine line_;
  std::unique_ptr<sim::Engine> engine_;
  std::set<int> breakpoints_;
  int lineCount_ = 0;  // the application's lines when the run began
};

// Run > Simulate: compiles the application when it is not compiled (the Compile menu's
// boxes), then shows the window beside the editor (a new run each time it opens).
void ShowSimulate();
// The Simulate window while it is open; null otherwise.
frmSimulate* SimulateWindow();
// Unloads the window when it is open (the editor is closing).
void CloseSimulate();

}  // namespace kq
