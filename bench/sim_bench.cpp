// The simulator's speed: a compiled application of 9,999 lines run headless (prompts not
// decoded), and the trace of a million lines written to a file.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "document/catalogue.h"
#include "document/document.h"
#include "document/functions.h"
#include "document/state.h"
#include "document/text.h"
#include "sim/engine.h"
#include "sim/scripted_line.h"

namespace {

using namespace kq;

template <typename R>
void Put(int line, Fn fn, const R& r) {
  LineTable[line].LineFuncNo = static_cast<int16_t>(ToInt(fn));
  std::memcpy(LineTable[line].LineFuncName, FuncNames[ToInt(fn)], 17);
  SetField(LineTable[line].LineLabel, "");
  std::memcpy(FuncBlock[line], &r, sizeof r);
}

void Var(VarRef& v, int32_t type, const char* name) {
  v.VarRefType = type;
  SetField(v.VarRefName, name);
}

// 9,999 compiled lines: counting, comparing, converting and a remark, then back to line 0.
void BuildApplication() {
  GetFuncRecordLength();
  InitDocument();
  Var(PrgHdr.Variable[0], kVarLong, "N");
  Var(PrgHdr.Variable[1], kVarString, "S");
  constexpr int kLines = 9999;
  for (int line = 0; line < kLines - 1; ++line) {
    switch (line % 4) {
      case 0: {
        CalculateRec r = WorkRecord.Calculate;
        std::memset(&r, 0, sizeof r);
        Var(r.Target, kVarLong, "N");
        Var(r.Left, kVarLong, "N");
        Var(r.Right, kConstLong, "1");
        r.Operator = 0;
        SetField(r.ErrorLabel.LabelRefName, "");
        Put(line, Fn::Calculate, r);
        break;
      }
      case 1: {
        ConditionRec r;
        std::memset(&r, 0, sizeof r);
        Var(r.Left, kVarLong, "N");
        Var(r.Right, kConstLong, "2000000000");
        r.Operator = 3;
        SetField(r.ThenLabel, "END");
        SetField(r.ElseLabel, "");
        r.ThenLine = kLines - 1;
        r.ElseLine = -1;
        Put(line, Fn::Condition, r);
        break;
      }
      case 2: {
        AssignRec r;
        std::memset(&r, 0, sizeof r);
        Var(r.Target, kVarString, "S");
        Var(r.Source, kVarLong, "N");
        SetField(r.ErrorLabel.LabelRefName, "");
        Put(line, Fn::Assign, r);
        break;
      }
      default: {
        RemarkRec r;
        SetField(r.RemarkText, "a remark");
        Put(line, Fn::Remark, r);
      }
    }
  }
  GotoRec g;
  SetField(g.Target.LabelRefName, "START");
  g.Target.LabelRefLine = 0;
  Put(kLines - 1, Fn::Goto, g);
  SetField(LineTable[0].LineLabel, "START");
  PrgHdr.LineCount = kLines;
  PrgHdr.CompiledFlag = -1;
}

// A million lines of the application with the whole trace formatted and thrown away.
void BM_RunMillionLines(benchmark::State& state) {
  BuildApplication();
  std::ofstream devnull("/dev/null");
  for (auto _ : state) {
    sim::ScriptedLine line(sim::CallScript{}, {});
    sim::Trace trace(&devnull);
    sim::Tables tables;
    std::string error;
    tables.Open(PrgHdr, "", "", error);
    sim::Sandbox box("/nonexistent-sandbox", "/");
    sim::EngineOptions o;
    o.maxSteps = 1'000'000;
    sim::Engine engine(line, trace, tables, box, o);
    engine.Run();
    if (engine.Steps() != o.maxSteps) state.SkipWithError("the run ended early");
  }
  state.SetItemsProcessed(state.iterations() * 1'000'000);
}
BENCHMARK(BM_RunMillionLines)->Unit(benchmark::kMillisecond);

// The trace of a million lines, each with its variable change, written to a file.
void BM_TraceMillionLinesToFile(benchmark::State& state) {
  const auto path = std::filesystem::temp_directory_path() / "kq_sim_bench_trace.jsonl";
  for (auto _ : state) {
    std::ofstream out(path, std::ios::binary);
    {
      sim::Trace trace(&out);
      for (int i = 0; i < 1'000'000; ++i) {
        trace.Line(i % 9999, "Calculate");
        trace.Set("N", sim::Value::OfLong(i));
      }
    }
    out.close();
  }
  std::filesystem::remove(path);
  state.SetItemsProcessed(state.iterations() * 1'000'000);
}
BENCHMARK(BM_TraceMillionLinesToFile)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
