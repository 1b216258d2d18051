#include "speech/codec/resample.h"

#include <soxr.h>

#include <algorithm>
#include <iterator>

namespace kq::speech {

namespace {

// No dither, so that the same input always gives the same output.
soxr_io_spec_t IoSpec() {
  soxr_io_spec_t io = soxr_io_spec(SOXR_INT16_I, SOXR_INT16_I);
  io.flags |= SOXR_NO_DITHER;
  return io;
}

}  // namespace

uint64_t ResampledLength(uint64_t samples, int fromRate, int toRate) {
  if (fromRate == toRate || samples == 0) return samples;
  return (samples * static_cast<uint64_t>(toRate) + static_cast<uint64_t>(fromRate) / 2) /
         static_cast<uint64_t>(fromRate);
}

std::vector<int16_t> Resample(std::span<const int16_t> samples, int fromRate, int toRate) {
  if (fromRate == toRate || samples.empty()) {
    return {samples.begin(), samples.end()};
  }
  const auto wanted = static_cast<size_t>(ResampledLength(samples.size(), fromRate, toRate));
  if (wanted == 0) return {};  // shorter than one output sample
  std::vector<int16_t> out(wanted);
  const soxr_io_spec_t io = IoSpec();
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

struct StreamResampler::Soxr {
  soxr_t s = nullptr;
  bool failed = false;
  ~Soxr() {
    if (s != nullptr) soxr_delete(s);
  }
};

StreamResampler::StreamResampler(int fromRate, int toRate, uint64_t inputSamples)
    : same_(fromRate == toRate || inputSamples == 0),
      wanted_(ResampledLength(inputSamples, fromRate, toRate)) {
  if (same_ || wanted_ == 0) return;
  soxr_ = std::make_unique<Soxr>();
  const soxr_io_spec_t io = IoSpec();
  const soxr_quality_spec_t quality = soxr_quality_spec(SOXR_HQ, 0);
  soxr_error_t error = nullptr;
  soxr_->s = soxr_create(fromRate, toRate, 1, &error, &io, &quality, nullptr);
  soxr_->failed = error != nullptr;
}

StreamResampler::~StreamResampler() = default;

void StreamResampler::Emit(const int16_t* samples, size_t n, std::vector<int16_t>& out) {
  const auto take = static_cast<size_t>(std::min<uint64_t>(n, wanted_ - made_));
  out.insert(out.end(), samples, samples + take);
  made_ += take;
}

void StreamResampler::Process(std::span<const int16_t> in, std::vector<int16_t>& out) {
  if (same_) return Emit(in.data(), in.size(), out);
  if (!soxr_ || soxr_->failed) return;
  int16_t buffer[4096];
  size_t at = 0;
  for (;;) {
    size_t used = 0, made = 0;
    if (soxr_process(soxr_->s, in.data() + at, in.size() - at, &used, buffer, std::size(buffer),
                     &made) != nullptr) {
      soxr_->failed = true;
      return;
    }
    Emit(buffer, made, out);
    at += used;
    if (at >= in.size() && made < std::size(buffer)) return;
  }
}

void StreamResampler::Finish(std::vector<int16_t>& out) {
  if (soxr_ && !soxr_->failed) {
    int16_t buffer[4096];
    for (;;) {
      size_t made = 0;
      // No input: the resampler drains what it holds.
      if (soxr_process(soxr_->s, nullptr, 0, nullptr, buffer, std::size(buffer), &made) !=
              nullptr ||
          made == 0) {
        break;
      }
      Emit(buffer, made, out);
    }
  }
  // The duration holds even if the resampler gave less.
  if (!same_ && made_ < wanted_) {
    out.resize(out.size() + static_cast<size_t>(wanted_ - made_), 0);
    made_ = wanted_;
  }
}

}  // namespace kq::speech
