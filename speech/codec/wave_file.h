// RIFF WAVE files: reading the mono PCM files that the conversion accepts, and writing
// 16-bit mono PCM files.
#pragma once

#include <cstdint>
#include <functional>
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

// Where the samples of a WAVE file are: their format and the data chunk's place.
struct WaveData {
  WaveFormat format;
  uint64_t offset = 0;  // of the first data byte
  uint64_t length = 0;  // in bytes, as the chunk declares it and the file holds it
};

// Reads `n` bytes at `at` into `buffer`; false when the bytes cannot be read.
using WaveReadAt = std::function<bool(uint64_t at, uint8_t* buffer, size_t n)>;

// Walks the chunks of a WAVE file of `size` bytes up to its data chunk, reading only the
// chunk headers and the "fmt " and "fact" bodies. Returns 0, the code of the fault (10 to
// 19), or 3 when a read fails.
int LocateWaveData(uint64_t size, const WaveReadAt& read, WaveData& data);

// Appends the samples of WAVE data bytes (8-bit samples widened to 16 bits; a last odd
// byte of 16-bit data is no sample) to `samples`.
void AppendWaveSamples(std::span<const uint8_t> data, int bits, std::vector<int16_t>& samples);

// The 44 bytes in front of `samples` 16-bit mono samples at `rate` Hz.
std::vector<uint8_t> WaveHeader(uint64_t samples, int rate);

// Reads a whole WAVE file image into `pcm` (8-bit samples widened to 16 bits).
// Returns 0, or the code of the fault (10 to 19).
int ParseWave(std::span<const uint8_t> file, Pcm& pcm);

// The image of a 16-bit mono PCM WAVE file holding `pcm`.
std::vector<uint8_t> WaveImage(const Pcm& pcm);

}  // namespace kq::speech
