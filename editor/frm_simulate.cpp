#include "editor/frm_simulate.h"

#include <filesystem>

#include "document/state.h"
#include "editor/commands.h"
#include "editor/select_line.h"
#include "editor/simulate_prompts.h"
#include "ui/platform/codepage.h"
#include "ui/platform/platform.h"

namespace kq {

namespace fs = std::filesystem;

namespace {
std::unique_ptr<frmSimulate> g_window;
}  // namespace

// What the engine works with besides its line, made at load.
struct frmSimulate::Run {
  Run(ui::ListBox& traceList, ui::MMControl& media)
      : prompts(media, SpeechAudioFormat),
        trace(nullptr),
        sandbox(fs::temp_directory_path() / "kqedit-simulate",
                fs::path(ApplFileName.empty() ? "." : ApplFileName).parent_path()) {
    trace.observer = [&traceList](std::string_view line) {
      traceList.AddItem(ui::Utf8ToCp1252(std::string(line)));
    };
  }
  PromptPlayer prompts;
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
  Place(mciPrompt, 4, 0, 1, 3);
  Place(lblWatch, 5, 0, 1, 3);
  Place(lstWatch, 6, 0, 1, 3);
  Place(lblTables, 7, 0, 1, 3);
  Place(lstTables, 8, 0, 1, 3);
  Place(lblTrace, 5, 3, 1, 3);
  Place(lstTrace, 6, 3, 3, 3);
  Move(0, 0, 9000, 8400);
}

frmSimulate::~frmSimulate() = default;

void frmSimulate::Form_Load() {
  Start();
}

void frmSimulate::Start() {
  engine_.reset();
  line_ = sim::KeypadLine();
  lstTrace.Clear();
  if (run_) run_->prompts.Stop();
  run_ = std::make_unique<Run>(lstTrace, mciPrompt);
  std::string error;
  if (!run_->tables.Open(PrgHdr, "", "", error)) {
    ui::platform().MsgBox(error, ui::vbExclamation, "Simulate");
    Unload();
    return;
  }
  sim::EngineOptions options;
  options.speechFormat = SpeechAudioFormat;
  engine_ = std::make_unique<sim::Engine>(line_, run_->trace, run_->tables, run_->sandbox, options);
  engine_->onPlay = [this](const std::vector<std::string>& files) { run_->prompts.Play(files); };
  lineCount_ = PrgHdr.LineCount;
  Show(false);
}

void frmSimulate::cmdKey_Click(int index) {
  line_.PressKey(cmdKey[index].Caption()[0]);
}

bool frmSimulate::SameDocument() {
  // The engine reads the compiled lines as they are: an edit since the run began ends it.
  if (PrgHdr.CompiledFlag != 0 && PrgHdr.LineCount == lineCount_) return true;
  lblLine.SetCaption("The application has changed: open Simulate again.");
  ui::platform().Beep();
  return false;
}

void frmSimulate::cmdStep_Click() {
  if (!SameDocument()) return;
  engine_->Step();
  Show();
}

void frmSimulate::cmdContinue_Click() {
  // Runs until a breakpoint's line is next, the line waits for the keypad, or the end;
  // a loop that never waits stops after a million lines.
  if (!SameDocument()) return;
  for (int i = 0; i < 1'000'000; ++i) {
    if (engine_->Step() != sim::StepStatus::Ran) break;
    if (breakpoints_.count(engine_->CurrentLine()) != 0) break;
  }
  Show();
}

void frmSimulate::cmdStop_Click() {
  engine_->Stop();
  run_->prompts.Stop();
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

void frmSimulate::Form_Unload() {
  if (!run_) return;
  run_->prompts.Stop();
  mciPrompt.SetCommand("Close");
  // The window outlives the editor (it is let go with the program's statics): its player
  // goes now, while the application that made it still stands.
  mciPrompt.ReleaseDevice();
}

void frmSimulate::Show(bool selectLine) {
  if (engine_->Ended()) {
    lblLine.SetCaption(std::string("Ended: ") + sim::ReasonName(engine_->Reason()) + " " +
                       engine_->Message());
  } else {
    const int line = engine_->CurrentLine();
    lblLine.SetCaption("Line " + std::to_string(line) +
                       (breakpoints_.count(line) ? " (breakpoint)" : ""));
    if (selectLine && line >= 0 && line < EditList().ListCount()) SelectOnlyLine(line);
  }
  lstWatch.Clear();
  const sim::Variables& vars = engine_->Vars();
  for (size_t i = 0; i < vars.Count(); ++i) {
    const int slot = static_cast<int>(i);
    lstWatch.AddItem(vars.Name(slot) + " = " + sim::ToText(vars.Get(slot)));
  }
  lstTables.Clear();
  for (const sim::TableState& t : run_->tables.All()) {
    lstTables.AddItem(run_->tables.CurrentRowText(t));
  }
}

void ShowSimulate() {
  if (EditList().ListCount() == 0) {
    ui::platform().Beep();
    return;
  }
  if (PrgHdr.CompiledFlag == 0) CompileCommand();
  if (PrgHdr.CompiledFlag == 0) return;
  // The window of a form is let go after its unload, and its binding still reads the
  // form then: an open window starts a new run, a form is replaced only when long closed.
  if (g_window && g_window->Loaded()) {
    g_window->Start();
    return;
  }
  g_window = std::make_unique<frmSimulate>();
  ui::platform().ShowModeless(*g_window);
}

void CloseSimulate() {
  if (g_window && g_window->Loaded()) g_window->Unload();
}

frmSimulate* SimulateWindow() {
  return g_window && g_window->Loaded() ? g_window.get() : nullptr;
}

}  // namespace kq
