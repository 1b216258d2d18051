// Fuzz target of the speech codec library: every input is read as a WAVE file and, when it
// is one, resampled and encoded; and it is decoded as each headerless board format. A
// result code is a legal end; a crash, a sanitizer report or a hang is a fault. The coders
// of our own that stand in for the library's in the streaming conversion are also checked
// against the library's, bit for bit, on the input taken as samples and as codewords: a
// difference is a fault too. Built with
// libFuzzer under clang; with replay_main.cpp an ordinary program that replays the files it
// is given.
#include <cstdint>
#include <cstring>
#include <span>
#include <vector>

#include "speech/codec/codecs.h"
#include "speech/codec/g726_encoder.h"
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

  std::vector<int16_t> samples(size / 4 * 2);  // an even number
  if (!samples.empty()) std::memcpy(samples.data(), data, samples.size() * 2);
  const std::vector<uint8_t> library = Encode(kRhetorex32, samples);
  for (const bool portable : {true, false}) {
    if (!portable && !G726Encoder32::HasVectorCoder()) continue;
    G726Encoder32 encoder(portable);
    std::vector<uint8_t> own(samples.size() / 2);
    encoder.Encode(samples.data(), samples.size(), own.data());
    if (own != library) __builtin_trap();
  }
  for (const int format : {kOki32, kOki24}) {
    StreamDecoder decoder(format);
    std::vector<int16_t> own;
    decoder.Decode(bytes, own);
    if (own != Decode(format, bytes)) __builtin_trap();
  }
  return 0;
}
