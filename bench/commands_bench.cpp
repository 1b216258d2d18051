// Speed of the document-wide commands on a program of 9,999 lines with 3,333 labels and
// label references on most lines: compile (successful and failing on the last line),
// the listing, and a Next search that walks the whole program.
#include <benchmark/benchmark.h>

#include <cstring>
#include <memory>
#include <string>

#include "document/catalogue.h"
#include "document/document.h"
#include "document/edit_host.h"
#include "document/functions.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/compile.h"
#include "editor/listing.h"
#include "editor/navigation.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace {

using namespace kq;

constexpr int kLines = 9999;

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

std::string LabelOf(int line) {
  return "L" + std::to_string(line);
}

void SetVar(VarRef& v, int32_t type, const std::string& name) {
  v.VarRefType = type;
  SetField(v.VarRefName, name);
}
void SetLabel(LabelRef& l, const std::string& name) {
  SetField(l.LabelRefName, name);
  l.LabelRefLine = -1;
}

// Every third line carries a label; most lines refer to one or more labels.
void BuildProgram(ui::ListBox& list, bool failOnLastLine) {
  InitDocument();
  for (int i = 0; i < 200; ++i) SetVar(PrgHdr.Variable[i], i % 3, "Var" + std::to_string(i));
  std::vector<std::string> lines;
  lines.reserve(kLines);
  for (int line = 0; line < kLines; ++line) {
    const int target = (line * 7919) % kLines / 3 * 3;  // a labelled line
    const Fn fn = line % 5 == 0   ? Fn::Condition
                  : line % 5 == 1 ? Fn::GetKeys
                  : line % 5 == 2 ? Fn::Gosub
                  : line % 5 == 3 ? Fn::Goto
                                  : Fn::Assign;
    const int f = ToInt(fn);
    RecordSet& w = WorkRecord;
    std::memcpy(w.Image(f), InitRecord.Image(f), static_cast<size_t>(RecordLength[f]));
    switch (fn) {
      case Fn::Condition:
        SetVar(w.Condition.Left, kVarLong, "Var0");
        SetVar(w.Condition.Right, kConstLong, "5");
        SetField(w.Condition.ThenLabel, LabelOf(target));
        SetField(w.Condition.ElseLabel, LabelOf((target + 3) % kLines / 3 * 3));
        break;
      case Fn::GetKeys:
        SetVar(w.GetKeys.Target, kVarString, "Var2");
        SetLabel(w.GetKeys.HangupLabel, LabelOf(target));
        SetLabel(w.GetKeys.TimeoutLabel, LabelOf(target));
        break;
      case Fn::Gosub:
        SetLabel(w.Gosub.Target, LabelOf(target));
        SetLabel(w.Gosub.ErrorLabel, LabelOf(target));
        break;
      case Fn::Goto:
        SetLabel(w.Goto.Target, LabelOf(target));
        break;
      default:
        SetVar(w.Assign.Target, kVarDouble, "Var1");
        SetVar(w.Assign.Source, kVarDouble, "Var4");
        break;
    }
    if (failOnLastLine && line == kLines - 1) {
      SetLabel(w.Goto.Target, "Missing");
    }
    ProgramLine& pl = LineTable[line];
    SetField(pl.LineLabel, line % 3 == 0 ? LabelOf(line) : "");
    pl.LineFuncNo = static_cast<int16_t>(f);
    std::memcpy(pl.LineFuncName, FuncNames[f], 17);
    UpdateFuncParm(line, f);
    lines.push_back(Format0000(line) + "\t" + Text(pl.LineLabel) + "\t" + Text(FuncNames[f]));
  }
  list.ReplaceAll(std::move(lines));
  PrgHdr.LineCount = kLines;
}

void BM_CompileSuccess(benchmark::State& state) {
  Setup s;
  BuildProgram(s.host->lstEdit, false);
  for (auto _ : state) {
    s.platform.ClearEvents();
    if (!Compile()) state.SkipWithError("compile failed");
  }
}
BENCHMARK(BM_CompileSuccess)->Unit(benchmark::kMillisecond);

void BM_CompileFailingOnLastLine(benchmark::State& state) {
  Setup s;
  BuildProgram(s.host->lstEdit, true);
  for (auto _ : state) {
    s.platform.ClearEvents();
    if (Compile()) state.SkipWithError("compile succeeded");
  }
}
BENCHMARK(BM_CompileFailingOnLastLine)->Unit(benchmark::kMillisecond);

void BM_Listing(benchmark::State& state) {
  Setup s;
  BuildProgram(s.host->lstEdit, false);
  Compile();
  for (auto _ : state) {
    benchmark::DoNotOptimize(ListingText("2026-11-22 10:00:00"));
  }
}
BENCHMARK(BM_Listing)->Unit(benchmark::kMillisecond);

// A variable that only the first line uses, searched from the second line: the search
// walks every line behind it, wraps and finds line 0.
void BM_NextVariableWrapsAround(benchmark::State& state) {
  Setup s;
  BuildProgram(s.host->lstEdit, false);
  SetVar(PrgHdr.Variable[300], kVarLong, "OnlyHere");
  SetVar(WorkRecord.Condition.Left, kVarLong, "OnlyHere");
  std::memcpy(FuncBlock[0], &WorkRecord.Condition, sizeof(ConditionRec));
  std::memcpy(WorkRecord.Condition.Left.VarRefName, PrgHdr.Variable[300].VarRefName, 28);
  LineTable[0].LineFuncNo = 3;
  ResetSearchState();
  SearchVar = PrgHdr.Variable[300];
  for (auto _ : state) {
    s.host->lstEdit.SetSelected(0, false);
    s.host->lstEdit.SetSelected(1, true);
    NextSearch(SearchKind::Variable);
    if (!s.host->lstEdit.Selected(0)) state.SkipWithError("not found");
  }
}
BENCHMARK(BM_NextVariableWrapsAround)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
