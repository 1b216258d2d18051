// Speed of the check of a whole application and of the call-flow layout: lint of a
// program of 9,999 lines (target: under 20 ms) and the layout of a diagram of 1,000 lines
// (target: under 2 s).
#include <benchmark/benchmark.h>

#include <cstring>
#include <memory>
#include <string>

#include "check/flow.h"
#include "check/lint.h"
#include "diagram/diagram.h"
#include "document/catalogue.h"
#include "document/document.h"
#include "document/edit_host.h"
#include "document/functions.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace {

using namespace kq;

using Host = EditHost;

struct Setup {
  ui::HeadlessPlatform platform;
  std::unique_ptr<Host> host;
  Setup() {
    ui::SetPlatform(&platform);
    host = std::make_unique<Host>();
    SetEditList(&host->lstEdit);
    GetFuncRecordLength();
    InitDocument();
  }
};

void SetVar(VarRef& v, int32_t type, const std::string& name) {
  v.VarRefType = type;
  SetField(v.VarRefName, name);
}
void SetLabel(LabelRef& l, const std::string& name) {
  SetField(l.LabelRefName, name);
  l.LabelRefLine = -1;
}

constexpr int kSubroutines = 20;
constexpr int kSubLines = 5;

// A menu-shaped program: blocks of ten lines (prompt, keys, branch, arithmetic, a call of
// one of twenty subroutines, a jump to the next block), then the subroutines.
void BuildProgram(ui::ListBox& list, int lines) {
  InitDocument();
  for (int i = 0; i < 60; ++i) SetVar(PrgHdr.Variable[i], i % 3, "Var" + std::to_string(i));
  SetField(PrgHdr.Path[0][kPathVoice - kPathExport].PathName, "Prompts");
  SetField(PrgHdr.Path[0][kPathVoice - kPathExport].PathText, "/nonexistent/prompts/");
  const int main = lines - kSubroutines * kSubLines;
  std::vector<std::string> texts;
  for (int line = 0; line < lines; ++line) {
    const int block = line / 10;
    const std::string here = "B" + std::to_string(block);
    const std::string next = "B" + std::to_string(block + 1 < main / 10 ? block + 1 : 0);
    std::string label;
    Fn f = Fn::Remark;
    RecordSet& w = WorkRecord;
    if (line < main) {
      switch (line % 10) {
        case 0:
          label = here;
          f = Fn::Voice;
          break;
        case 1:
          f = Fn::GetKeys;
          break;
        case 2:
          f = Fn::Condition;
          break;
        case 3:
        case 4:
          f = Fn::Assign;
          break;
        case 5:
          f = Fn::Calculate;
          break;
        case 6:
          f = Fn::Gosub;
          break;
        case 7:
          f = Fn::Delay;
          break;
        case 8:
          f = Fn::Remark;
          break;
        default:
          f = Fn::Goto;
      }
    } else {
      const int k = (line - main) / kSubLines;
      if ((line - main) % kSubLines == 0) label = "S" + std::to_string(k);
      f = (line - main) % kSubLines == kSubLines - 1 ? Fn::Return : Fn::Assign;
    }
    const int n = ToInt(f);
    std::memcpy(w.Image(n), InitRecord.Image(n), static_cast<size_t>(RecordLength[n]));
    const std::string var = "Var" + std::to_string(line % 60);
    const int32_t type = (line % 60) % 3;
    switch (f) {
      case Fn::Voice:
        SetField(w.Voice.VoicePath, "Prompts");
        SetField(w.Voice.VoiceFile[0], "menu.vox");
        SetLabel(w.Voice.HangupLabel, "B0");
        break;
      case Fn::GetKeys:
        SetVar(w.GetKeys.Target, type, var);
        SetLabel(w.GetKeys.TimeoutLabel, here);
        SetLabel(w.GetKeys.ErrorLabel, "B0");
        break;
      case Fn::Condition:
        SetVar(w.Condition.Left, type, var);
        SetVar(w.Condition.Right, type + 8, "1");
        SetField(w.Condition.ThenLabel, next);
        break;
      case Fn::Assign:
        SetVar(w.Assign.Target, type, var);
        SetVar(w.Assign.Source, type + 8, "2");
        break;
      case Fn::Calculate:
        SetVar(w.Calculate.Target, type, var);
        SetVar(w.Calculate.Left, type, var);
        SetVar(w.Calculate.Right, type + 8, "3");
        break;
      case Fn::Gosub:
        SetLabel(w.Gosub.Target, "S" + std::to_string(block % kSubroutines));
        break;
      case Fn::Goto:
        SetLabel(w.Goto.Target, next);
        break;
      default:
        break;
    }
    SetField(LineTable[line].LineLabel, label);
    LineTable[line].LineFuncNo = static_cast<int16_t>(n);
    std::memcpy(FuncBlock[line], w.Image(n), static_cast<size_t>(RecordLength[n]));
    texts.push_back(Format0000(line) + "\t" + label + "\t" + RTrim(Row(FuncNames[n])) + "\t");
  }
  list.ReplaceAll(std::move(texts));
}

void BM_Lint9999(benchmark::State& state) {
  Setup s;
  BuildProgram(s.host->lstEdit, 9999);
  size_t findings = 0;
  for (auto _ : state) {
    const check::Findings f = check::Lint(9999);
    findings = f.size();
    benchmark::DoNotOptimize(f.data());
  }
  state.counters["findings"] = static_cast<double>(findings);
}
BENCHMARK(BM_Lint9999)->Unit(benchmark::kMillisecond);

void BM_Layout1000(benchmark::State& state) {
  Setup s;
  BuildProgram(s.host->lstEdit, 1000);
  std::vector<std::string> texts;
  for (int i = 0; i < 1000; ++i) texts.push_back(s.host->lstEdit.List(i));
  const check::FlowGraph graph = check::BuildFlow(1000);
  for (auto _ : state) {
    std::string svg, error;
    if (!diagram::Render(graph, texts, diagram::Format::Svg, svg, error)) {
      state.SkipWithError(error.c_str());
      break;
    }
    benchmark::DoNotOptimize(svg.data());
  }
}
BENCHMARK(BM_Layout1000)->Unit(benchmark::kMillisecond)->Iterations(2);

}  // namespace

BENCHMARK_MAIN();
