// Open and save of a 9,999-line application mixing every live function, against a plain
// copy of the same bytes.
#include <benchmark/benchmark.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "document/catalogue.h"
#include "document/document.h"
#include "document/edit_host.h"
#include "document/file.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace {

constexpr int kLines = 9999;

using ListHost = kq::EditHost;

struct BenchDocument {
  ui::HeadlessPlatform platform;
  ListHost host;
  std::string dir;
  std::string source;

  BenchDocument() {
    ui::SetPlatform(&platform);
    kq::SetEditList(&host.lstEdit);
    kq::GetFuncRecordLength();
    kq::InitDocument();
    dir = (std::filesystem::temp_directory_path() / "kq-document-bench").string();
    std::filesystem::create_directories(dir);
    source = dir + "/source.kqx";

    for (int i = 0; i < kq::kMaxVariables; ++i) {
      kq::PrgHdr.Variable[i].VarRefType = i % 3;
      kq::SetField(kq::PrgHdr.Variable[i].VarRefName, "Variable" + std::to_string(i));
    }
    std::vector<std::string> items;
    items.reserve(kLines);
    int f = 0;
    for (int i = 0; i < kLines; ++i) {
      while (!kq::IsLiveFunction(f)) f = (f + 1) % kq::kFuncCount;
      kq::ProgramLine& line = kq::LineTable[i];
      kq::SetField(line.LineLabel, i % 5 == 0 ? "L" + std::to_string(i) : "");
      line.LineFuncNo = static_cast<int16_t>(f);
      std::memcpy(line.LineFuncName, kq::FuncNames[f], sizeof line.LineFuncName);
      kq::InitFuncParm(i, f);
      items.push_back(kq::Format0000(i) + "\t\t" + kq::RTrimZ(kq::View(kq::FuncNames[f])) +
                      "\tsome parameters of this line");
      f = (f + 1) % kq::kFuncCount;
    }
    host.lstEdit.ReplaceAll(std::move(items));
    Save(source);
  }
  void Save(const std::string& path) {
    std::string title = "bench.kqx", name = path;
    int16_t count = kLines;
    kq::SaveFile(title, name, true, 0, kLines - 1, count);
  }
};

BenchDocument& Doc() {
  static BenchDocument d;
  return d;
}

void BM_SaveFile(benchmark::State& state) {
  BenchDocument& d = Doc();
  const std::string target = d.dir + "/saved.kqx";
  for (auto _ : state) d.Save(target);
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) *
                          static_cast<int64_t>(std::filesystem::file_size(target)));
}
BENCHMARK(BM_SaveFile)->Unit(benchmark::kMillisecond);

void BM_OpenFile(benchmark::State& state) {
  BenchDocument& d = Doc();
  for (auto _ : state) {
    std::string title = "source.kqx", name = d.source;
    kq::OpenFile(title, name);
    if (name.empty()) state.SkipWithError("the file was refused");
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) *
                          static_cast<int64_t>(std::filesystem::file_size(d.source)));
}
BENCHMARK(BM_OpenFile)->Unit(benchmark::kMillisecond);

// The yardstick: the same bytes read whole and written whole to a new file.
void BM_PlainCopy(benchmark::State& state) {
  BenchDocument& d = Doc();
  const std::string target = d.dir + "/copy.kqx";
  for (auto _ : state) {
    std::ifstream in(d.source, std::ios::binary);
    std::vector<char> bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    std::ofstream out(target, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    benchmark::DoNotOptimize(bytes.data());
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) *
                          static_cast<int64_t>(std::filesystem::file_size(d.source)));
}
BENCHMARK(BM_PlainCopy)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
