#include "speech/codec/resample.h"

#include <soxr.h>

namespace kq::speech {

std::vector<int16_t> Resample(std::span<const int16_t> samples, int fromRate, int toRate) {
  if (fromRate == toRate || samples.empty()) {
    return {samples.begin(), samples.end()};
  }
  const auto wanted =
      static_cast<size_t>((static_cast<uint64_t>(samples.size()) * static_cast<uint64_t>(toRate) +
                           static_cast<uint64_t>(fromRate) / 2) /
                          static_cast<uint64_t>(fromRate));
  if (wanted == 0) return {};  // shorter than one output sample
  std::vector<int16_t> out(wanted);
  // No dither, so that the same input always gives the same output.
  soxr_io_spec_t io = soxr_io_spec(SOXR_INT16_I, SOXR_INT16_I);
  io.flags |= SOXR_NO_DITHER;
  const soxr_quality_spec_t quality = soxr_quality_spec(SOXR_HQ, 0);
  size_t made = 0;
  const soxr_error_t error =
      soxr_oneshot(fromRate, toRate, 1, samples.data(), samples.size(), nullptr, out.data(),
                   out.size(), &made, &io, &quality, nullptr);
  if (error != nullptr) made = 0;
  out.resize(made);
  out.resize(wanted, 0);  // the duration holds even if the resampler gave less
  return out;
}

}  // namespace kq::speech
