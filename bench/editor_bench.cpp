// Speed of the line stores on a full program: Delete of 1,000 scattered selected lines out
// of 9,999 (target: 20 ms) and Insert in front of line 0 of 9,998 lines (target: 2 ms).
#include <benchmark/benchmark.h>

#include <memory>
#include <random>
#include <string>
#include <vector>

#include "document/catalogue.h"
#include "document/document.h"
#include "document/edit_host.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/line_editing.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace {

struct Program {
  ui::HeadlessPlatform platform;
  kq::EditHost host;
  ui::ListBox& list = host.lstEdit;
  std::vector<std::string> texts;

  explicit Program(int lines) {
    ui::SetPlatform(&platform);
    kq::GetFuncRecordLength();
    kq::InitDocument();
    list.SetMultiSelect(ui::ListBox::MultiSelect::Extended);
    std::vector<int> live;
    for (int f = 0; f < kq::kFuncCount; ++f) {
      if (kq::IsLiveFunction(f)) live.push_back(f);
    }
    std::mt19937 rng(7);
    for (int i = 0; i < lines; ++i) {
      const int f = live[rng() % live.size()];
      kq::SetField(kq::LineTable[i].LineLabel, "L" + std::to_string(i));
      kq::LineTable[i].LineFuncNo = static_cast<int16_t>(f);
      kq::AssignField(kq::LineTable[i].LineFuncName, std::string(kq::FuncNames[f], 17));
      kq::InitFuncParm(i, f);
      texts.push_back(kq::Format0000(i) + "\tL" + std::to_string(i) + "\t" +
                      kq::NulToBlank(kq::View(kq::FuncNames[f])) + "\tparameters of the line");
    }
  }
  void Reset() {
    list.ReplaceAll(texts);
    kq::PrgHdr.LineCount = static_cast<int16_t>(texts.size());
  }
};

void BM_DeleteScatteredSelection(benchmark::State& state) {
  Program program(kq::kUserLines);
  std::mt19937 rng(11);
  std::vector<int> selection;
  while (selection.size() < 1000) {
    const int i = static_cast<int>(rng() % kq::kUserLines);
    if (std::find(selection.begin(), selection.end(), i) == selection.end()) {
      selection.push_back(i);
    }
  }
  for (auto _ : state) {
    state.PauseTiming();
    program.Reset();
    for (int i : selection) program.list.SetSelected(i, true);
    state.ResumeTiming();
    benchmark::DoNotOptimize(kq::DeleteSelectedFromStores(program.list));
  }
}
BENCHMARK(BM_DeleteScatteredSelection)->Unit(benchmark::kMillisecond);

void BM_InsertAtLineZero(benchmark::State& state) {
  Program program(kq::kUserLines - 1);
  kq::FuncNo = 44;
  kq::FuncName = std::string(kq::FuncNames[44], 17);
  kq::FuncLabel = std::string(1, '\0');
  kq::FuncLine = "\t\t" + kq::NulToBlank(kq::View(kq::FuncNames[44])) + "\tnew line";
  for (auto _ : state) {
    state.PauseTiming();
    program.Reset();
    program.list.SetSelected(0, true);
    state.ResumeTiming();
    kq::InsertLineInStores(program.list, 0);
  }
}
BENCHMARK(BM_InsertAtLineZero)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
