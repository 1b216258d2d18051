// The G.726 encoder at 32 kbit/s for processors with 256-bit integer vectors (AVX2): the
// same codewords as G726Encoder32's portable coder, about twice as fast. Its source is
// compiled for AVX2 alone, so nothing here may be called unless the processor has it;
// G726Encoder32 asks once and uses it where it can. The interface is plain functions on
// an opaque state, so no inline code is shared with the files built for every processor.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kq::speech::g726_vector {

struct State;

State* NewState();  // the coder's state after a reset
void DeleteState(State* state);
// Encodes `n` samples, an even number, into n / 2 bytes, the first codeword of each pair
// in the low four bits.
void Encode(State* state, const int16_t* samples, size_t n, uint8_t* out);

}  // namespace kq::speech::g726_vector
