// The speech formats of the telephony boards and their encoders and decoders.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace kq::speech {

// Format numbers as the application holds them; 5 is not used.
enum SpeechFormat : int16_t {
  kRhetorex32 = 0,  // G.726 32 kbit/s, 4-bit codewords, first in the low bits
  kRhetorex24 = 1,  // G.726 24 kbit/s, 3-bit codewords packed the same way
  kULaw = 2,        // G.711 mu-law, a byte a sample
  kALaw = 3,        // G.711 A-law
  kWave = 4,        // RIFF WAVE, 16-bit mono PCM when written
  kLinear = 6,      // signed 16-bit little-endian, no header
  kOki32 = 7,       // OKI ADPCM 8000 Hz, first sample in the high nibble
  kOki24 = 8,       // the same at 6000 Hz
};

// True for 0 to 4 and 6 to 8.
bool IsSpeechFormat(int format);

// The sample rate of a headerless format (8000, or 6000 for OKI 24K); 0 for WAVE.
int FormatRate(int format);

// Encodes samples taken at FormatRate(format) into the bytes of a headerless format.
// A last byte that the samples fill only in part is completed with silence.
std::vector<uint8_t> Encode(int format, std::span<const int16_t> samples);

// Decodes the bytes of a headerless format into samples at FormatRate(format).
std::vector<int16_t> Decode(int format, std::span<const uint8_t> bytes);

}  // namespace kq::speech
