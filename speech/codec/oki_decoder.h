// An OKI ADPCM decoder (4-bit codewords, first in the high bits) by tables: the same
// samples, bit for bit, as the general decoder of the codec library that it stands in for
// in the streaming conversion, with one look-up a sample instead of the step arithmetic.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kq::speech {

class OkiDecoder {
 public:
  // Decodes `n` bytes into 2 * n samples.
  void Decode(const uint8_t* bytes, size_t n, int16_t* out);

 private:
  int last_ = 0;  // the last 12-bit sample
  int step_ = 0;  // the index of the step size
};

}  // namespace kq::speech
