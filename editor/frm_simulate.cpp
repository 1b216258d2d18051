#include "editor/frm_simulate.h"

#include <filesystem>

#include "document/state.h"
#include "editor/commands.h"
#include "editor/select_line.h"
#include "ui/platform/codepage.h"
#include "ui/platform/platform.h"

namespace kq {

namespace fs = std::filesystem;

// What the engine works with besides its line, made at load.
struct frmSimulate::Run {
  explicit Run(ui::ListBox& traceList)
      : trace(nullptr),
        sandbox(fs::temp_directory_path() / "kqedit-simulate",
                fs::path(ApplFileName.empty() ? "." : ApplFileName).parent_path()) {
    trace.observer = [&traceList](std::string_view line) {
      traceList.AddItem(ui::Utf8ToCp1252(std::string(line)));
    };
  }
  sim::Trace trace;
  sim::Tables tables;
  sim::Sandbox sandbox;
};

frmSimulate::frmSimulate() : ui::Form("frmSimulate", "Simulate") {
  for (int i = 0; i < kKeys; ++i) {
    cmdKey[i].OnClick = [this, i] { cmdKey_Click(i); };
    Place(cmdKey[i], 1 + i / 3, i % 3);
  }
  cmdRing.OnClick = [this] { line_.Ring(); };
  cmdHangUp.OnClick = [this] { line_.CallerHangsUp(); };
  cmdStep.OnClick = [this] { cmdStep_Click(); };
  cmdContinue.OnClick = [this] { cmdContinue_Click(); };
  cmdStop.OnClick = [this] { cmdStop_Click(); };
  cmdBreakpoint.OnClick = [this] { cmdBreakpoint_Click(); };
  cmdClose.OnClick = [this] { Unload(); };
  cmdClose.SetCancel(true);
  Place(lblLine, 0, 0, 1, 6);
  Place(cmdRing, 1, 3);
  Place(cmdHangUp, 2, 3);
  Place(cmdStep, 1, 4);
  Place(cmdContinue, 2, 4);
  Place(cmdStop, 3, 4);
  Place(cmdBreakpoint, 3, 3);
  Place(cmdClose, 4, 4);
  Place(lblWatch, 5, 0, 1, 3);
  Place(lstWatch, 6, 0, 1, 3);
  Place(lblTrace, 5, 3, 1, 3);
  Place(lstTrace, 6, 3, 1, 3);
  Move(0, 0, 9000, 6600);
}

frmSimulate::~frmSimulate() = default;

void frmSimulate::Form_Load() {
  run_ = std::make_unique<Run>(lstTrace);
  std::string error;
  if (!run_->tables.Open(PrgHdr, "", "", error)) {
    ui::platform().MsgBox(error, ui::vbExclamation, "Simulate");
    Unload();
    return;
  }
  sim::EngineOptions options;
  options.speechFormat = SpeechAudioFormat;
  engine_ = std::make_unique<sim::Engine>(line_, run_->trace, run_->tables, run_->sandbox, options);
  Show();
}

void frmSimulate::cmdKey_Click(int index) {
  line_.PressKey(cmdKey[index].Caption()[0]);
}

void frmSimulate::cmdStep_Click() {
  engine_->Step();
  Show();
}

void frmSimulate::cmdContinue_Click() {
  // Runs until a breakpoint's line is next, the line waits for the keypad, or the end;
  // a loop that never waits stops after a million lines.
  for (int i = 0; i < 1'000'000; ++i) {
    if (engine_->Step() != sim::StepStatus::Ran) break;
    if (breakpoints_.count(engine_->CurrentLine()) != 0) break;
  }
  Show();
}

void frmSimulate::cmdStop_Click() {
  engine_->Stop();
  Show();
}

void frmSimulate::cmdBreakpoint_Click() {
  const int line = EditList().ListIndex();
  if (line < 0) {
    ui::platform().Beep();
    return;
  }
  if (!breakpoints_.erase(line)) breakpoints_.insert(line);
  Show();
}

void frmSimulate::Show() {
  if (engine_->Ended()) {
    lblLine.SetCaption(std::string("Ended: ") + sim::ReasonName(engine_->Reason()) + " " +
                       engine_->Message());
  } else {
    const int line = engine_->CurrentLine();
    lblLine.SetCaption("Line " + std::to_string(line) +
                       (breakpoints_.count(line) ? " (breakpoint)" : ""));
    if (line >= 0 && line < EditList().ListCount()) SelectOnlyLine(line);
  }
  lstWatch.Clear();
  const sim::Variables& vars = engine_->Vars();
  for (size_t i = 0; i < vars.Count(); ++i) {
    const int slot = static_cast<int>(i);
    lstWatch.AddItem(vars.Name(slot) + " = " + sim::ToText(vars.Get(slot)));
  }
}

void ShowSimulate() {
  if (EditList().ListCount() == 0) {
    ui::platform().Beep();
    return;
  }
  if (PrgHdr.CompiledFlag == 0) CompileCommand();
  if (PrgHdr.CompiledFlag == 0) return;
  frmSimulate form;
  form.ShowModal();
}

}  // namespace kq
