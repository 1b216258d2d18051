// Speed of the text form on a program of 9,999 lines mixing every live function with
// declarations and full DisplayLines: export, and import (parse, check and install).
#include <benchmark/benchmark.h>

#include <cstring>
#include <memory>
#include <string>

#include "document/catalogue.h"
#include "document/document.h"
#include "document/edit_host.h"
#include "document/state.h"
#include "document/text.h"
#include "textform/text_form.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace {

using namespace kq;

constexpr int kLines = 9999;

using Host = EditHost;

struct Setup {
  ui::HeadlessPlatform platform;
  std::unique_ptr<Host> host = std::make_unique<Host>();
  Setup() {
    ui::SetPlatform(&platform);
    SetEditList(&host->lstEdit);
    GetFuncRecordLength();
    BuildProgram();
  }
  ~Setup() {
    SetEditList(nullptr);
    ui::SetPlatform(nullptr);
  }

  // Every live function in turn, its record the defaults with a variable and a label
  // named where the record starts with them.
  void BuildProgram() {
    InitDocument();
    for (int i = 0; i < 200; ++i) {
      PrgHdr.Variable[i].VarRefType = i % 3;
      SetField(PrgHdr.Variable[i].VarRefName, "Var" + std::to_string(i));
    }
    SetField(PrgHdr.Path[0][3].PathName, "Prompts");
    SetField(PrgHdr.Path[0][3].PathText, "/voice/prompts/");
    std::vector<std::string> lines;
    lines.reserve(kLines);
    int f = 0;
    for (int line = 0; line < kLines; ++line) {
      do {
        f = (f + 1) % kFuncCount;
      } while (!IsLiveFunction(f));
      ProgramLine& pl = LineTable[line];
      SetField(pl.LineLabel, line % 3 == 0 ? "L" + std::to_string(line) : "");
      pl.LineFuncNo = static_cast<int16_t>(f);
      std::memcpy(pl.LineFuncName, FuncNames[f], sizeof pl.LineFuncName);
      std::memcpy(FuncBlock[line], InitRecord.Image(f), static_cast<size_t>(RecordLength[f]));
      std::string display = Format0000(line) + "\t" + RTrimZ(View(pl.LineLabel)) + "\t" +
                            NulToBlank(View(FuncNames[f])) + "\tVar1, Var2, L" +
                            std::to_string(line / 3 * 3);
      display.resize(kDisplayLineWidth, ' ');
      lines.push_back(std::move(display));
    }
    host->lstEdit.ReplaceAll(std::move(lines));
    PrgHdr.LineCount = kLines;
  }
};

void BM_Export(benchmark::State& state) {
  Setup s;
  size_t bytes = 0;
  for (auto _ : state) {
    const std::string text = textform::ExportDocument();
    bytes = text.size();
    benchmark::DoNotOptimize(text.data());
  }
  state.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(BM_Export)->Unit(benchmark::kMillisecond);

void BM_Import(benchmark::State& state) {
  Setup s;
  const std::string text = textform::ExportDocument();
  for (auto _ : state) {
    textform::StagedDocument doc;
    textform::ImportError error;
    if (!textform::ParseDocument(text, doc, error) || !textform::InstallDocument(doc, error)) {
      state.SkipWithError(error.Text().c_str());
      break;
    }
  }
}
BENCHMARK(BM_Import)->Unit(benchmark::kMillisecond);

// The two halves of an import: parse and check, then install.
void BM_ImportCheck(benchmark::State& state) {
  Setup s;
  const std::string text = textform::ExportDocument();
  for (auto _ : state) {
    textform::StagedDocument doc;
    textform::ImportError error;
    if (!textform::ParseDocument(text, doc, error)) {
      state.SkipWithError(error.Text().c_str());
      break;
    }
  }
}
BENCHMARK(BM_ImportCheck)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
