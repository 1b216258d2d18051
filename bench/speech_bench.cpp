// Conversion of one minute of 44.1 kHz 16-bit mono speech to each board format, through
// the conversion call with its file reading and writing, and back from each format.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "speech/codec/codecs.h"
#include "speech/codec/convert.h"
#include "speech/codec/g726_encoder.h"
#include "speech/codec/wave_file.h"

namespace {

namespace fs = std::filesystem;
using namespace kq::speech;

struct BenchFiles {
  fs::path dir = fs::temp_directory_path() / ("kqspeech-bench-" + std::to_string(getpid()));
  std::string source = (dir / "minute.wav").string();

  BenchFiles() {
    fs::create_directories(dir);
    Pcm pcm;
    pcm.rate = 44100;
    pcm.samples.resize(60 * 44100);
    // A voice-like mix of three tones that rises and falls.
    for (size_t i = 0; i < pcm.samples.size(); ++i) {
      const double t = static_cast<double>(i) / pcm.rate;
      const double v = 0.5 + 0.5 * std::sin(2 * M_PI * 3 * t);
      pcm.samples[i] = static_cast<int16_t>(v * (6000 * std::sin(2 * M_PI * 220 * t) +
                                                 3000 * std::sin(2 * M_PI * 700 * t) +
                                                 1500 * std::sin(2 * M_PI * 2100 * t)));
    }
    const std::vector<uint8_t> image = WaveImage(pcm);
    std::ofstream(source, std::ios::binary)
        .write(reinterpret_cast<const char*>(image.data()),
               static_cast<std::streamsize>(image.size()));
  }
  ~BenchFiles() { fs::remove_all(dir); }
};

BenchFiles& Files() {
  static BenchFiles files;
  return files;
}

void BM_WaveMinuteToFormat(benchmark::State& state) {
  const auto format = static_cast<int16_t>(state.range(0));
  const std::string target = (Files().dir / ("minute." + std::to_string(format))).string();
  for (auto _ : state) {
    const int16_t result = Convert(Files().source.c_str(), kWave, 8, target.c_str(), format, 8);
    if (result != 0) state.SkipWithError("conversion failed");
  }
  state.SetLabel("1 min 44.1 kHz 16-bit");
}

void BM_FormatMinuteToWave(benchmark::State& state) {
  const auto format = static_cast<int16_t>(state.range(0));
  const std::string board = (Files().dir / ("back." + std::to_string(format))).string();
  const std::string wave = (Files().dir / "back.wav").string();
  if (Convert(Files().source.c_str(), kWave, 8, board.c_str(), format, 8) != 0) {
    state.SkipWithError("conversion failed");
  }
  for (auto _ : state) {
    const int16_t result = Convert(board.c_str(), format, 8, wave.c_str(), kWave, 8);
    if (result != 0) state.SkipWithError("conversion failed");
  }
}

void Formats(benchmark::internal::Benchmark* b) {
  for (const int f : {kRhetorex32, kRhetorex24, kULaw, kALaw, kWave, kLinear, kOki32, kOki24}) {
    b->Arg(f);
  }
  b->Unit(benchmark::kMillisecond);
}

// The G.726 32 encoder alone, on a minute of the same sound at 8 kHz: the portable coder
// (argument 1) and the vector coder where the processor has it (0). It bounds the
// conversion's speed, as the resampling runs beside it on another core.
void BM_G726Encoder(benchmark::State& state) {
  const bool portable = state.range(0) != 0;
  if (!portable && !G726Encoder32::HasVectorCoder()) {
    state.SkipWithError("this processor has no AVX2");
    return;
  }
  std::vector<int16_t> samples(60 * 8000);
  for (size_t i = 0; i < samples.size(); ++i) {
    const double t = static_cast<double>(i) / 8000;
    samples[i] = static_cast<int16_t>((0.5 + 0.5 * std::sin(2 * M_PI * 3 * t)) *
                                      (6000 * std::sin(2 * M_PI * 220 * t) +
                                       3000 * std::sin(2 * M_PI * 700 * t) +
                                       1500 * std::sin(2 * M_PI * 2100 * t)));
  }
  std::vector<uint8_t> out(samples.size() / 2);
  for (auto _ : state) {
    G726Encoder32 encoder(portable);
    encoder.Encode(samples.data(), samples.size(), out.data());
    benchmark::DoNotOptimize(out.data());
  }
  state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * samples.size()));
  state.SetLabel(portable ? "portable" : "vector");
}

BENCHMARK(BM_WaveMinuteToFormat)->Apply(Formats);
BENCHMARK(BM_G726Encoder)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FormatMinuteToWave)->Apply(Formats);

}  // namespace

BENCHMARK_MAIN();
