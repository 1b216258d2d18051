// Fuzz target of the speech codec library: every input is read as a WAVE file and, when it
// is one, resampled and encoded; and it is decoded as each headerless board format. A
// result code is a legal end; a crash, a sanitizer report or a hang is a fault. Built with
// libFuzzer under clang; with replay_main.cpp an ordinary program that replays the files it
// is given.
#include <cstdint>
#include <span>
#include <vector>

#include "speech/codec/codecs.h"
#include "speech/codec/resample.h"
#include "speech/codec/wave_file.h"

using namespace kq::speech;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::span<const uint8_t> bytes(data, size);
  Pcm pcm;
  if (ParseWave(bytes, pcm) == 0) {
    const auto at8k = Resample(pcm.samples, pcm.rate, 8000);
    Encode(kRhetorex24, at8k);
    Encode(kOki32, Resample(at8k, 8000, 6000));
    WaveImage({at8k, 8000});
  }
  for (const int format : {kRhetorex32, kRhetorex24, kULaw, kALaw, kLinear, kOki32, kOki24}) {
    Decode(format, bytes);
  }
  return 0;
}
