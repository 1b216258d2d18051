// Speech-like test signals that any program can make again bit for bit: two tones gliding
// over each other with a little noise from a fixed generator, and the files of every
// format made from them, so that conversions can be compared across versions by hashes.
#pragma once

#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

namespace speechtest {

// `count` samples at `rate` Hz.
inline std::vector<int16_t> SpeechLike(int rate, size_t count, uint32_t seed = 12345) {
  std::vector<int16_t> s(count);
  uint32_t noise = seed;
  for (size_t i = 0; i < count; ++i) {
    const double t = static_cast<double>(i) / rate;
    noise = noise * 1664525u + 1013904223u;
    const double v = 7000 * std::sin(2 * M_PI * (300 + 200 * t) * t) +
                     4000 * std::sin(2 * M_PI * 1250 * t) +
                     static_cast<double>(static_cast<int32_t>(noise >> 20) - 2048);
    s[i] = static_cast<int16_t>(std::lround(v));
  }
  return s;
}

// The 64-bit FNV-1a hash of bytes.
inline uint64_t Fnv1a(const std::vector<uint8_t>& bytes) {
  uint64_t h = 14695981039346656037ull;
  for (const uint8_t b : bytes) h = (h ^ b) * 1099511628211ull;
  return h;
}

}  // namespace speechtest
