// Sample rate conversion of 16-bit mono sound at high quality.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace kq::speech {

// The samples taken at `toRate` that stand for `samples` taken at `fromRate`: as many as
// the duration gives, rounded to the nearest sample. The same rate returns a copy.
std::vector<int16_t> Resample(std::span<const int16_t> samples, int fromRate, int toRate);

// The number of samples Resample gives for `samples` input samples.
uint64_t ResampledLength(uint64_t samples, int fromRate, int toRate);

// The same conversion a block at a time, for an input whose length is known beforehand:
// all the blocks together give the very samples that Resample gives for the whole input,
// with memory that does not grow with the length.
class StreamResampler {
 public:
  StreamResampler(int fromRate, int toRate, uint64_t inputSamples);
  ~StreamResampler();
  StreamResampler(const StreamResampler&) = delete;
  StreamResampler& operator=(const StreamResampler&) = delete;

  // Takes the next input samples and appends the output they complete to `out`.
  void Process(std::span<const int16_t> in, std::vector<int16_t>& out);
  // After the last input: appends the rest of the output.
  void Finish(std::vector<int16_t>& out);

 private:
  void Emit(const int16_t* samples, size_t n, std::vector<int16_t>& out);

  struct Soxr;
  std::unique_ptr<Soxr> soxr_;  // none for the same rate or an output of no samples
  bool same_ = false;
  uint64_t wanted_ = 0;
  uint64_t made_ = 0;
};

}  // namespace kq::speech
