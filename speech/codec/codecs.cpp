#include "speech/codec/codecs.h"

#include <spandsp/telephony.h>
// telephony.h first
#include <spandsp/bit_operations.h>
#include <spandsp/bitstream.h>
#include <spandsp/g711.h>
#include <spandsp/g726.h>
#include <spandsp/oki_adpcm.h>

#include <algorithm>
#include <memory>

namespace kq::speech {

namespace {

struct G726Deleter {
  void operator()(g726_state_t* s) const { g726_free(s); }
};
struct OkiDeleter {
  void operator()(oki_adpcm_state_t* s) const { oki_adpcm_free(s); }
};
using G726 = std::unique_ptr<g726_state_t, G726Deleter>;
using Oki = std::unique_ptr<oki_adpcm_state_t, OkiDeleter>;

// Codeword bits of each ADPCM format: a whole number of bytes takes this many samples.
int SamplesPerBlock(int format) {
  switch (format) {
    case kRhetorex24:
      return 8;  // 8 three-bit codewords make 3 bytes
    case kRhetorex32:
    case kOki32:
    case kOki24:
      return 2;
    default:
      return 1;
  }
}

int CodeBits(int format) {
  return format == kRhetorex24 ? 3 : 4;
}

std::vector<int16_t> PadToBlock(int format, std::span<const int16_t> samples) {
  const size_t block = static_cast<size_t>(SamplesPerBlock(format));
  std::vector<int16_t> padded(samples.begin(), samples.end());
  padded.resize((samples.size() + block - 1) / block * block, 0);
  return padded;
}

// The coder of one ADPCM format: OKI (also for 24K, which runs at 6000 Hz) or G.726 at
// 24 or 32 kbit/s, first codeword in the least significant bits.
struct AdpcmState {
  explicit AdpcmState(int format) : oki(format == kOki32 || format == kOki24) {
    if (oki) {
      okiCoder.reset(oki_adpcm_init(nullptr, 32000));
    } else {
      g726.reset(g726_init(nullptr, format == kRhetorex24 ? 24000 : 32000, G726_ENCODING_LINEAR,
                           G726_PACKING_RIGHT));
    }
  }
  bool oki;
  Oki okiCoder;
  G726 g726;
};

// spandsp counts in int: longer inputs go through in pieces that keep the blocks whole.
constexpr size_t kPiece = size_t{1} << 24;

std::vector<uint8_t> EncodeAdpcm(int format, std::span<const int16_t> samples) {
  const std::vector<int16_t> padded = PadToBlock(format, samples);
  std::vector<uint8_t> out(padded.size() * static_cast<size_t>(CodeBits(format)) / 8);
  const AdpcmState state(format);
  size_t written = 0;
  for (size_t at = 0; at < padded.size(); at += kPiece) {
    const int len = static_cast<int>(std::min(kPiece, padded.size() - at));
    written += static_cast<size_t>(
        state.oki
            ? oki_adpcm_encode(state.okiCoder.get(), out.data() + written, padded.data() + at, len)
            : g726_encode(state.g726.get(), out.data() + written, padded.data() + at, len));
  }
  out.resize(written);
  return out;
}

std::vector<int16_t> DecodeAdpcm(int format, std::span<const uint8_t> bytes) {
  std::vector<int16_t> out(bytes.size() * 8 / static_cast<size_t>(CodeBits(format)) + 8);
  const AdpcmState state(format);
  size_t made = 0;
  for (size_t at = 0; at < bytes.size(); at += kPiece) {
    const int len = static_cast<int>(std::min(kPiece, bytes.size() - at));
    made += static_cast<size_t>(
        state.oki
            ? oki_adpcm_decode(state.okiCoder.get(), out.data() + made, bytes.data() + at, len)
            : g726_decode(state.g726.get(), out.data() + made, bytes.data() + at, len));
  }
  out.resize(made);
  return out;
}

}  // namespace

bool IsSpeechFormat(int format) {
  return (format >= kRhetorex32 && format <= kWave) || (format >= kLinear && format <= kOki24);
}

int FormatRate(int format) {
  if (format == kWave) return 0;
  return format == kOki24 ? 6000 : 8000;
}

std::vector<uint8_t> Encode(int format, std::span<const int16_t> samples) {
  std::vector<uint8_t> out;
  switch (format) {
    case kULaw:
      for (const int16_t s : samples) out.push_back(linear_to_ulaw(s));
      return out;
    case kALaw:
      for (const int16_t s : samples) out.push_back(linear_to_alaw(s));
      return out;
    case kLinear:
      for (const int16_t s : samples) {
        const auto u = static_cast<uint16_t>(s);
        out.push_back(static_cast<uint8_t>(u));
        out.push_back(static_cast<uint8_t>(u >> 8));
      }
      return out;
    case kRhetorex32:
    case kRhetorex24:
    case kOki32:
    case kOki24:
      return EncodeAdpcm(format, samples);
    default:
      return out;
  }
}

std::vector<int16_t> Decode(int format, std::span<const uint8_t> bytes) {
  std::vector<int16_t> out;
  switch (format) {
    case kULaw:
      for (const uint8_t b : bytes) out.push_back(ulaw_to_linear(b));
      return out;
    case kALaw:
      for (const uint8_t b : bytes) out.push_back(alaw_to_linear(b));
      return out;
    case kLinear:
      for (size_t i = 0; i + 1 < bytes.size(); i += 2) {
        out.push_back(static_cast<int16_t>(bytes[i] | (bytes[i + 1] << 8)));
      }
      return out;
    case kRhetorex32:
    case kRhetorex24:
    case kOki32:
    case kOki24:
      return DecodeAdpcm(format, bytes);
    default:
      return out;
  }
}

}  // namespace kq::speech
