// A G.726 encoder at 32 kbit/s from 16-bit linear samples: the same codewords, bit for bit,
// as the general coder of the codec library that it stands in for in the streaming
// conversion, at a fraction of its time. Where the processor has AVX2 the vector coder
// (g726_vector.h) does the work; elsewhere the portable coder here, in plain integer code.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kq::speech {

namespace g726_vector {
struct State;
}

class G726Encoder32 {
 public:
  // `portable` asks for the portable coder on every processor (the tests compare the two).
  explicit G726Encoder32(bool portable = false);
  ~G726Encoder32();
  G726Encoder32(const G726Encoder32&) = delete;
  G726Encoder32& operator=(const G726Encoder32&) = delete;

  // Whether this processor runs the vector coder.
  static bool HasVectorCoder();

  // A value in the 4-bit exponent, 6-bit mantissa form, taken apart: its exponent less 19,
  // its mantissa and 1 for a negative value.
  struct FloatParts {
    int exp;
    int mant;
    int negative;
  };

  // Encodes `n` samples, an even number, into n / 2 bytes, the first codeword of each pair
  // in the low four bits.
  void Encode(const int16_t* samples, size_t n, uint8_t* out);

 private:
  int Code(int sl);  // one 14-bit sample to its codeword
  void Update(int y, int wi, int fi, int dq, int sr, int dqsez);

  int32_t yl_ = 34816;  // locked step size multiplier
  int16_t yu_ = 544;    // unlocked step size multiplier
  int16_t dms_ = 0;     // short term energy
  int16_t dml_ = 0;     // long term energy
  int16_t ap_ = 0;      // weighting of yl and yu
  int16_t a_[2] = {0, 0};
  int16_t b_[6] = {0, 0, 0, 0, 0, 0};
  int16_t pk_[2] = {0, 0};
  // The last six quantized differences, newest first from at_, each also six places on.
  FloatParts history_[12] = {{-19, 32, 0}, {-19, 32, 0}, {-19, 32, 0}, {-19, 32, 0},
                             {-19, 32, 0}, {-19, 32, 0}, {-19, 32, 0}, {-19, 32, 0},
                             {-19, 32, 0}, {-19, 32, 0}, {-19, 32, 0}, {-19, 32, 0}};
  int at_ = 0;
  FloatParts sr_[2] = {{-19, 32, 0}, {-19, 32, 0}};  // the last two reconstructed samples
  bool td_ = false;                                  // tone detected
  g726_vector::State* vector_ = nullptr;             // the vector coder's, when it works
};

}  // namespace kq::speech
