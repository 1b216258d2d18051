// RIFF WAVE files: reading the mono PCM files that the conversion accepts, and writing
// 16-bit mono PCM files.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace kq::speech {

// Sound as the codecs and the resampler see it: signed 16-bit samples at a rate in Hz.
struct Pcm {
  std::vector<int16_t> samples;
  int rate = 0;
};

// The standard 16 bytes of a "fmt " chunk.
struct WaveFormat {
  uint16_t formatTag = 0;
  uint16_t channels = 0;
  uint32_t samplesPerSec = 0;
  uint32_t avgBytesPerSec = 0;
  uint16_t blockAlign = 0;
  uint16_t bitsPerSample = 0;
};

// True for the rates a WAVE file may have: 8000, 11025, 22050, 44100 Hz.
bool IsWaveRate(uint32_t rate);

// Reads a whole WAVE file image into `pcm` (8-bit samples widened to 16 bits).
// Returns 0, or the code of the fault (10 to 19).
int ParseWave(std::span<const uint8_t> file, Pcm& pcm);

// The image of a 16-bit mono PCM WAVE file holding `pcm`.
std::vector<uint8_t> WaveImage(const Pcm& pcm);

}  // namespace kq::speech
