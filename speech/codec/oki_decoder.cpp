#include "speech/codec/oki_decoder.h"

#include <algorithm>

namespace kq::speech {

namespace {

constexpr int kStepSize[49] = {16,  17,  19,  21,  23,  25,   28,   31,   34,   37,  41,  45,  50,
                               55,  60,  66,  73,  80,  88,   97,   107,  118,  130, 143, 157, 173,
                               190, 209, 230, 253, 279, 307,  337,  371,  408,  449, 494, 544, 598,
                               658, 724, 796, 876, 963, 1060, 1166, 1282, 1411, 1552};
constexpr int kStepChange[8] = {-1, -1, -1, -1, 2, 4, 6, 8};

// For each step index and codeword: the difference it adds (the step's parts summed as the
// board does, each shifted on its own) and the next step index.
struct Entry {
  int16_t difference;
  uint8_t next;
};
struct Table {
  Entry entry[49][16];
  constexpr Table() : entry() {
    for (int s = 0; s < 49; ++s) {
      for (int code = 0; code < 16; ++code) {
        const int ss = kStepSize[s];
        int e = ss >> 3;
        if (code & 1) e += ss >> 2;
        if (code & 2) e += ss >> 1;
        if (code & 4) e += ss;
        if (code & 8) e = -e;
        entry[s][code] = {static_cast<int16_t>(e),
                          static_cast<uint8_t>(std::clamp(s + kStepChange[code & 7], 0, 48))};
      }
    }
  }
};
constexpr Table kTable;

}  // namespace

inline int OkiDecoder::Next(int code) {
  const Entry& e = kTable.entry[step_][code];
  last_ = std::clamp(last_ + e.difference, -2048, 2047);
  step_ = e.next;
  return last_ * 16;
}

void OkiDecoder::Decode(const uint8_t* bytes, size_t n, int16_t* out) {
  for (size_t i = 0; i < n; ++i) {
    *out++ = static_cast<int16_t>(Next(bytes[i] >> 4));
    *out++ = static_cast<int16_t>(Next(bytes[i] & 0xF));
  }
}

}  // namespace kq::speech
