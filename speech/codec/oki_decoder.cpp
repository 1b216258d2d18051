#include "speech/codec/oki_decoder.h"

#include <algorithm>

namespace kq::speech {

namespace {

constexpr int kStepSize[49] = {16,  17,  19,  21,  23,  25,   28,   31,   34,   37,  41,  45,  50,
                               55,  60,  66,  73,  80,  88,   97,   107,  118,  130, 143, 157, 173,
                               190, 209, 230, 253, 279, 307,  337,  371,  408,  449, 494, 544, 598,
                               658, 724, 796, 876, 963, 1060, 1166, 1282, 1411, 1552};
constexpr int kStepChange[8] = {-1, -1, -1, -1, 2, 4, 6, 8};

// For each step index and codeword: the difference it adds, the step's parts summed as the
// board does, each shifted on its own.
struct Table {
  int16_t difference[49][16];
  constexpr Table() : difference() {
    for (int s = 0; s < 49; ++s) {
      for (int code = 0; code < 16; ++code) {
        const int ss = kStepSize[s];
        int e = ss >> 3;
        if (code & 1) e += ss >> 2;
        if (code & 2) e += ss >> 1;
        if (code & 4) e += ss;
        difference[s][code] = static_cast<int16_t>(code & 8 ? -e : e);
      }
    }
  }
};
constexpr Table kTable;

}  // namespace

// The state is kept in locals while a block lasts: the input bytes may alias anything, so
// members would go to memory and back for every byte. The next step index is added, not
// looked up, which keeps a load's latency off the chain from one codeword to the next.
void OkiDecoder::Decode(const uint8_t* bytes, size_t n, int16_t* out) {
  int last = last_;
  int step = step_;
  const auto next = [&](int code) {
    const int difference = kTable.difference[step][code];
    step = std::clamp(step + kStepChange[code & 7], 0, 48);
    last = std::clamp(last + difference, -2048, 2047);
    return static_cast<int16_t>(last * 16);
  };
  for (size_t i = 0; i < n; ++i) {
    const int byte = bytes[i];
    *out++ = next(byte >> 4);
    *out++ = next(byte & 0xF);
  }
  last_ = last;
  step_ = step;
}

}  // namespace kq::speech
