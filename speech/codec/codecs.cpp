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

#include "speech/codec/g726_encoder.h"
#include "speech/codec/oki_decoder.h"

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

bool IsAdpcm(int format) {
  return format == kRhetorex32 || format == kRhetorex24 || format == kOki32 || format == kOki24;
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

uint64_t DecodedLength(int format, uint64_t bytes) {
  switch (format) {
    case kULaw:
    case kALaw:
      return bytes;
    case kLinear:
      return bytes / 2;
    case kRhetorex24:
      return bytes * 8 / 3;
    case kRhetorex32:
    case kOki32:
    case kOki24:
      return bytes * 2;
    default:
      return 0;
  }
}

// G.726 at 32 kbit/s goes through the faster encoder of our own, which gives the same
// codewords.
struct StreamEncoder::Coder : AdpcmState {
  using AdpcmState::AdpcmState;
  std::unique_ptr<G726Encoder32> g726At32;
};

StreamEncoder::StreamEncoder(int format) : format_(format) {
  if (!IsAdpcm(format)) return;
  coder_ = std::make_unique<Coder>(format);
  if (format == kRhetorex32) coder_->g726At32 = std::make_unique<G726Encoder32>();
}

StreamEncoder::~StreamEncoder() = default;

void StreamEncoder::Encode(std::span<const int16_t> samples, std::vector<uint8_t>& out) {
  if (!coder_) {
    const std::vector<uint8_t> bytes = speech::Encode(format_, samples);
    out.insert(out.end(), bytes.begin(), bytes.end());
    return;
  }
  const auto block = static_cast<size_t>(SamplesPerBlock(format_));
  const auto code = [&](const int16_t* from, size_t n) {
    const size_t base = out.size();
    out.resize(base + n * static_cast<size_t>(CodeBits(format_)) / 8 + 1);
    if (coder_->g726At32) {  // n is a whole number of sample pairs
      coder_->g726At32->Encode(from, n, out.data() + base);
      out.resize(base + n / 2);
      return;
    }
    size_t written = 0;
    for (size_t at = 0; at < n; at += kPiece) {  // pieces of whole blocks
      const int len = static_cast<int>(std::min(kPiece, n - at));
      uint8_t* to = out.data() + base + written;
      written += static_cast<size_t>(
          coder_->oki ? oki_adpcm_encode(coder_->okiCoder.get(), to, from + at, len)
                      : g726_encode(coder_->g726.get(), to, from + at, len));
    }
    out.resize(base + written);
  };
  size_t at = 0;
  if (!pending_.empty()) {
    const size_t take = std::min(block - pending_.size(), samples.size());
    pending_.insert(pending_.end(), samples.begin(), samples.begin() + static_cast<long>(take));
    at = take;
    if (pending_.size() < block) return;
    code(pending_.data(), pending_.size());
    pending_.clear();
  }
  const size_t whole = (samples.size() - at) / block * block;
  code(samples.data() + at, whole);
  pending_.assign(samples.begin() + static_cast<long>(at + whole), samples.end());
}

void StreamEncoder::Finish(std::vector<uint8_t>& out) {
  if (!coder_ || pending_.empty()) return;
  pending_.resize(static_cast<size_t>(SamplesPerBlock(format_)), 0);
  const std::vector<int16_t> last = std::move(pending_);
  pending_.clear();
  Encode(last, out);
}

// OKI goes through the table decoder of our own, which gives the same samples.
struct StreamDecoder::Coder : AdpcmState {
  using AdpcmState::AdpcmState;
  OkiDecoder okiTables;
};

StreamDecoder::StreamDecoder(int format) : format_(format) {
  if (IsAdpcm(format)) coder_ = std::make_unique<Coder>(format);
}

StreamDecoder::~StreamDecoder() = default;

void StreamDecoder::Decode(std::span<const uint8_t> bytes, std::vector<int16_t>& out) {
  if (coder_ && coder_->oki) {
    const size_t base = out.size();
    out.resize(base + 2 * bytes.size());
    coder_->okiTables.Decode(bytes.data(), bytes.size(), out.data() + base);
    return;
  }
  if (coder_) {
    const size_t base = out.size();
    out.resize(base + bytes.size() * 8 / static_cast<size_t>(CodeBits(format_)) + 8);
    size_t made = 0;
    for (size_t at = 0; at < bytes.size(); at += kPiece) {
      const int len = static_cast<int>(std::min(kPiece, bytes.size() - at));
      made += static_cast<size_t>(
          coder_->oki
              ? oki_adpcm_decode(coder_->okiCoder.get(), out.data() + base + made,
                                 bytes.data() + at, len)
              : g726_decode(coder_->g726.get(), out.data() + base + made, bytes.data() + at, len));
    }
    out.resize(base + made);
    return;
  }
  if (format_ == kLinear && pendingByte_ >= 0 && !bytes.empty()) {
    out.push_back(static_cast<int16_t>(pendingByte_ | (bytes[0] << 8)));
    pendingByte_ = -1;
    bytes = bytes.subspan(1);
  }
  const std::vector<int16_t> samples = speech::Decode(format_, bytes);
  out.insert(out.end(), samples.begin(), samples.end());
  if (format_ == kLinear && bytes.size() % 2 == 1) pendingByte_ = bytes.back();
}

}  // namespace kq::speech
