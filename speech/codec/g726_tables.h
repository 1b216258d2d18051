// The tables of G.726 at 32 kbit/s that both of our encoders use: the portable one and the
// vector one. Constants only, no code, so that the file built for AVX2 may include it too.
// Codewords 8 to 15 mirror 0 to 7 (15 mirrors 0), so the first eight entries serve the
// vector coder, which works by the codeword's magnitude bits.
#pragma once

namespace kq::speech::g726 {

// The lower edges of the quantizer's intervals of the normalised log difference.
inline constexpr int kQuantizer[7] = {-124, 80, 178, 246, 300, 349, 400};
// By codeword: the log of the reconstructed magnitude, the step size's weight and the
// speed control's weight.
inline constexpr int kDqln[16] = {-2048, 4,   135, 213, 273, 323, 373, 425,
                                  425,   373, 323, 273, 213, 135, 4,   -2048};
inline constexpr int kWi[16] = {-12,  18,  41,  64,  112, 198, 355, 1122,
                                1122, 355, 198, 112, 64,  41,  18,  -12};
inline constexpr int kFi[16] = {0,     0,     0,     0x200, 0x200, 0x200, 0x600, 0xE00,
                                0xE00, 0x600, 0x200, 0x200, 0x200, 0,     0,     0};

}  // namespace kq::speech::g726
