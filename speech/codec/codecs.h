// The speech formats of the telephony boards and their encoders and decoders.
#pragma once

#include <cstdint>
#include <memory>
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

// The number of samples that `bytes` bytes of a headerless format decode to.
uint64_t DecodedLength(int format, uint64_t bytes);

// Encode and Decode a block at a time: the blocks together give the very bytes or samples
// that the whole-signal calls give, with memory that does not grow with the length.
class StreamEncoder {
 public:
  explicit StreamEncoder(int format);
  ~StreamEncoder();
  StreamEncoder(const StreamEncoder&) = delete;
  StreamEncoder& operator=(const StreamEncoder&) = delete;
  // Appends the bytes of the next samples to `out`; a part block waits for the next call.
  void Encode(std::span<const int16_t> samples, std::vector<uint8_t>& out);
  // After the last samples: the part block completed with silence.
  void Finish(std::vector<uint8_t>& out);

 private:
  struct Coder;
  int format_;
  std::unique_ptr<Coder> coder_;
  std::vector<int16_t> pending_;  // fewer samples than a block
};

class StreamDecoder {
 public:
  explicit StreamDecoder(int format);
  ~StreamDecoder();
  StreamDecoder(const StreamDecoder&) = delete;
  StreamDecoder& operator=(const StreamDecoder&) = delete;
  // Appends the samples of the next bytes to `out`.
  void Decode(std::span<const uint8_t> bytes, std::vector<int16_t>& out);

 private:
  struct Coder;
  int format_;
  std::unique_ptr<Coder> coder_;
  int pendingByte_ = -1;  // the first byte of a linear sample split between blocks
};

}  // namespace kq::speech
