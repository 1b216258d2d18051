// The memory and the time of the edit history on a full program: 1,000 recorded steps
// (modify, insert, delete of scattered lines, declarations, insert of a part) on a
// document of 9,999 lines, then all of them undone and done again. Target: the history,
// its shadow of the document included, within 64 MiB.
#include <benchmark/benchmark.h>

#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "document/catalogue.h"
#include "document/document.h"
#include "document/edit_host.h"
#include "document/file.h"
#include "document/merge.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/line_editing.h"
#include "editor/undo_history.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace {

constexpr double kMiB = 1024.0 * 1024.0;

// Resident memory of the process, from the kernel's account.
double ResidentMiB() {
  std::ifstream status("/proc/self/status");
  std::string key;
  while (status >> key) {
    if (key == "VmRSS:") {
      double kib = 0;
      status >> kib;
      return kib / 1024.0;
    }
    status.ignore(1 << 12, '\n');
  }
  return 0;
}

struct Program {
  ui::HeadlessPlatform platform;
  kq::EditHost host;
  ui::ListBox& list = host.lstEdit;
  std::vector<int> live;
  std::mt19937 rng{17};

  Program() {
    ui::SetPlatform(&platform);
    kq::GetFuncRecordLength();
    kq::InitDocument();
    kq::SetEditList(&list);
    list.SetMultiSelect(ui::ListBox::MultiSelect::Extended);
    for (int f = 0; f < kq::kFuncCount; ++f) {
      if (kq::IsLiveFunction(f)) live.push_back(f);
    }
    std::vector<std::string> texts;
    for (int i = 0; i < kq::kUserLines; ++i) {
      HandOver();
      kq::LineTable[i].LineFuncNo = kq::FuncNo;
      kq::AssignField(kq::LineTable[i].LineFuncName, kq::FuncName);
      kq::UpdateFuncParm(i, kq::FuncNo);
      texts.push_back(kq::Format0000(i) + kq::FuncLine);
    }
    list.ReplaceAll(std::move(texts));
    kq::PrgHdr.LineCount = kq::kUserLines;
  }
  ~Program() {
    kq::SetEditList(nullptr);
    ui::SetPlatform(nullptr);
  }

  int Pick(int n) { return static_cast<int>(rng() % static_cast<unsigned>(n)); }

  void HandOver() {
    kq::FuncNo =
        static_cast<int16_t>(live[static_cast<size_t>(Pick(static_cast<int>(live.size())))]);
    kq::FuncName = std::string(kq::FuncNames[kq::FuncNo], 17);
    kq::FuncLabel = "L" + std::to_string(Pick(5000)) + std::string(1, '\0');
    kq::FuncLine = "\tL\t" + kq::NulToBlank(kq::View(kq::FuncNames[kq::FuncNo])) + "\tparameters " +
                   std::to_string(Pick(100000));
    uint8_t* image = kq::WorkRecord.Image(kq::FuncNo);
    for (int b = 0; b < kq::RecordLength[kq::FuncNo]; ++b) image[b] = static_cast<uint8_t>(rng());
  }

  void SelectOnly(const std::vector<int>& lines) {
    for (int i : list.SelectedIndexes()) list.SetSelected(i, false);
    for (int i : lines) list.SetSelected(i, true);
  }

  // One command of a round of ten that leaves the document a few lines shorter, so that
  // it never outgrows the stores: four Modify, an Insert, Deletes of one, three and five
  // scattered lines, a declaration, and an Insert file of five lines.
  void Step(kq::EditHistory& history, int s) {
    const int n = list.ListCount();
    switch (s % 10) {
      case 0:
      case 1:
      case 2:
      case 3: {
        const int k = Pick(n);
        const kq::EditScope scope(history, "Modify", kq::LineMoves::None);
        HandOver();
        list.SetList(k, kq::Format0000(k) + kq::FuncLine);
        kq::LineTable[k].LineFuncNo = kq::FuncNo;
        kq::UpdateFuncParm(k, kq::FuncNo);
        break;
      }
      case 4: {
        SelectOnly({Pick(n)});
        const kq::EditScope scope(history, "Insert", kq::LineMoves::InsertAtCurrent);
        HandOver();
        kq::InsertLineInStores(list, list.ListIndex());
        ++kq::PrgHdr.LineCount;
        break;
      }
      case 5:
      case 6:
      case 9: {
        std::vector<int> lines;
        const int count = s % 10 == 5 ? 1 : s % 10 == 6 ? 3 : 5;
        for (int c = 0; c < count; ++c) lines.push_back(c * (n / count) + Pick(n / count));
        SelectOnly(lines);
        const kq::EditScope scope(history, "Delete", kq::LineMoves::DeleteSelected);
        kq::PrgHdr.LineCount =
            static_cast<int16_t>(kq::PrgHdr.LineCount - kq::DeleteSelectedFromStores(list));
        break;
      }
      case 7: {
        const kq::EditScope scope(history, "Variables", kq::LineMoves::None);
        kq::VarRef& v = kq::PrgHdr.Variable[Pick(kq::kMaxVariables)];
        v.VarRefType = Pick(3);
        kq::SetField(v.VarRefName, "V" + std::to_string(Pick(100000)));
        break;
      }
      default: {
        const int first = Pick(n - 5);
        const std::vector<uint8_t> image =
            kq::LinesImage({first, first + 1, first + 2, first + 3, first + 4});
        SelectOnly({Pick(n)});
        const kq::EditScope scope(history, "Insert File", kq::LineMoves::InsertAtCurrent);
        std::string title = "part";
        kq::InsertFileBytes(title, image, list.ListIndex());
        break;
      }
    }
  }
};

void BM_ThousandUndoSteps(benchmark::State& state) {
  Program program;
  const std::vector<std::string> original = program.list.Items();
  for (auto _ : state) {
    const double residentBefore = ResidentMiB();
    kq::EditHistory history;
    for (int s = 0; s < 1000; ++s) program.Step(history, s);
    if (history.UndoCount() != 1000) state.SkipWithError("a step was not taken");
    const double residentAfter = ResidentMiB();
    state.counters["steps"] = history.UndoCount();
    state.counters["history_MiB"] = static_cast<double>(history.MemoryBytes()) / kMiB;
    state.counters["steps_MiB"] = static_cast<double>(history.StepBytes()) / kMiB;
    state.counters["resident_growth_MiB"] = residentAfter - residentBefore;
    while (history.CanUndo()) history.Undo();
    if (program.list.Items() != original) state.SkipWithError("undo did not come back");
    while (history.CanRedo()) history.Redo();
    while (history.CanUndo()) history.Undo();
  }
}
BENCHMARK(BM_ThousandUndoSteps)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace

BENCHMARK_MAIN();
