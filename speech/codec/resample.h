// Sample rate conversion of 16-bit mono sound at high quality.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace kq::speech {

// The samples taken at `toRate` that stand for `samples` taken at `fromRate`: as many as
// the duration gives, rounded to the nearest sample. The same rate returns a copy.
std::vector<int16_t> Resample(std::span<const int16_t> samples, int fromRate, int toRate);

}  // namespace kq::speech
