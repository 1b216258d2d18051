#include "speech/codec/oki_decoder.h"

#include <algorithm>

namespace kq::speech {

namespace {

constexpr int kStepSize[49] = {16,  17,  19,  21,  23,  25,   28,   31,   34,   37,  41,  45,  50,
                               55,  60,  66,  73,  80,  88,   97,   107,  118,  130, 143, 157, 173,
                               190, 209, 230, 253, 279, 307,  337,  371,  408,  449, 494, 544, 598,
                               658, 724, 796, 876, 963, 1060, 1166, 1282, 1411, 1552};
constexpr int kStepChange[8] = {-1, -1, -1, -1, 2, 4, 6, 8};

constexpr int NextStep(int step, int code) {
  return std::clamp(step + kStepChange[code & 7], 0, 48);
}

// For each step index and codeword: the difference it adds, the step's parts summed as the
// board does, each shifted on its own, and times 16, as the samples are; and for each step
// index and byte, the step index after the byte's two codewords.
struct Table {
  int32_t difference[49][16];
  uint8_t stepAfter[49][256];
  constexpr Table() : difference(), stepAfter() {
    for (int s = 0; s < 49; ++s) {
      for (int code = 0; code < 16; ++code) {
        const int ss = kStepSize[s];
        int e = ss >> 3;
        if (code & 1) e += ss >> 2;
        if (code & 2) e += ss >> 1;
        if (code & 4) e += ss;
        difference[s][code] = (code & 8 ? -e : e) * 16;
      }
      for (int byte = 0; byte < 256; ++byte) {
        stepAfter[s][byte] = static_cast<uint8_t>(NextStep(NextStep(s, byte >> 4), byte & 15));
      }
    }
  }
};
constexpr Table kTable;

}  // namespace

// The state is kept in locals while a block lasts: the input bytes may alias anything, so
// members would go to memory and back for every byte. Two chains run from byte to byte,
// the step index and the sample; the step index after a whole byte is one look-up.
void OkiDecoder::Decode(const uint8_t* bytes, size_t n, int16_t* out) {
  int last = last_ * 16;
  int step = step_;
  for (size_t i = 0; i < n; ++i) {
    const int byte = bytes[i];
    const int high = byte >> 4;
    last = std::clamp(last + kTable.difference[step][high], -2048 * 16, 2047 * 16);
    *out++ = static_cast<int16_t>(last);
    last = std::clamp(last + kTable.difference[NextStep(step, high)][byte & 15], -2048 * 16,
                      2047 * 16);
    *out++ = static_cast<int16_t>(last);
    step = kTable.stepAfter[step][byte];
  }
  last_ = last / 16;
  step_ = step;
}

}  // namespace kq::speech
