#include "speech/wave_file.h"

#include <cstring>
#include <string_view>

#include "speech/convert_codes.h"

namespace kq::speech {

namespace {

uint16_t Get16(std::span<const uint8_t> b, size_t at) {
  return static_cast<uint16_t>(b[at] | (b[at + 1] << 8));
}

uint32_t Get32(std::span<const uint8_t> b, size_t at) {
  return static_cast<uint32_t>(b[at]) | (static_cast<uint32_t>(b[at + 1]) << 8) |
         (static_cast<uint32_t>(b[at + 2]) << 16) | (static_cast<uint32_t>(b[at + 3]) << 24);
}

bool TagIs(std::span<const uint8_t> b, size_t at, std::string_view tag) {
  return std::memcmp(b.data() + at, tag.data(), 4) == 0;
}

void Put16(std::vector<uint8_t>& out, uint32_t v) {
  out.push_back(static_cast<uint8_t>(v));
  out.push_back(static_cast<uint8_t>(v >> 8));
}

void Put32(std::vector<uint8_t>& out, uint32_t v) {
  Put16(out, v & 0xFFFF);
  Put16(out, v >> 16);
}

void PutTag(std::vector<uint8_t>& out, std::string_view tag) {
  out.insert(out.end(), tag.begin(), tag.end());
}

// The extensible layout: format tag 0xFFFE, and behind the standard 16 bytes a size of 22,
// the valid bits, the channel mask and the sub-format, whose GUID names PCM as tag 1 does.
constexpr uint16_t kExtensibleTag = 0xFFFE;
constexpr uint8_t kPcmSubFormat[16] = {0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x10, 0x00,
                                       0x80, 0x00, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71};

bool IsExtensiblePcm(std::span<const uint8_t> fmt) {
  return fmt.size() >= 40 && Get16(fmt, 0) == kExtensibleTag &&
         std::memcmp(fmt.data() + 24, kPcmSubFormat, sizeof kPcmSubFormat) == 0;
}

int CheckFormat(const WaveFormat& f) {
  if (f.formatTag != 1) return kWaveNotPcm;
  if (f.bitsPerSample != 8 && f.bitsPerSample != 16) return kWaveBadBits;
  if (f.channels != 1) return kWaveNotMono;
  if (!IsWaveRate(f.samplesPerSec)) return kWaveBadRate;
  return kConvertOk;
}

void Samples(std::span<const uint8_t> data, int bits, std::vector<int16_t>& samples) {
  if (bits == 8) {
    samples.resize(data.size());
    for (size_t i = 0; i < data.size(); ++i) {
      samples[i] = static_cast<int16_t>((data[i] - 128) * 256);
    }
    return;
  }
  samples.resize(data.size() / 2);  // a last odd byte is no sample
  for (size_t i = 0; i < samples.size(); ++i) {
    samples[i] = static_cast<int16_t>(Get16(data, 2 * i));
  }
}

}  // namespace

bool IsWaveRate(uint32_t rate) {
  return rate == 8000 || rate == 11025 || rate == 22050 || rate == 44100;
}

int ParseWave(std::span<const uint8_t> file, Pcm& pcm) {
  if (file.size() < 12 || !TagIs(file, 0, "RIFF") || !TagIs(file, 8, "WAVE")) {
    return kWaveNoHeader;
  }
  const size_t size = file.size();
  WaveFormat format;
  bool haveFormat = false;
  bool haveFact = false;
  uint32_t factSamples = 0;
  size_t at = 12;
  while (at + 4 <= size) {
    const bool isData = TagIs(file, at, "data");
    if (at + 8 > size) {
      if (isData) return haveFormat ? kWaveNoDataSize : kWaveNoHeader;
      break;  // a few stray bytes at the end
    }
    const size_t length = Get32(file, at + 4);
    const size_t body = at + 8;
    const bool complete = length <= size - body;
    if (isData) {
      if (!haveFormat) return kWaveNoHeader;
      if (length == 0) return kWaveNoDataSize;
      if (!complete) return kWaveDataUnreadable;
      const size_t bytesPerSample = format.bitsPerSample / 8;
      if (haveFact && factSamples != length / bytesPerSample) return kWaveFactMismatch;
      Samples(file.subspan(body, length), format.bitsPerSample, pcm.samples);
      pcm.rate = static_cast<int>(format.samplesPerSec);
      return kConvertOk;
    }
    if (TagIs(file, at, "fmt ")) {
      if (length < 16 || !complete) return kWaveNoHeader;
      format.formatTag = Get16(file, body);
      format.channels = Get16(file, body + 2);
      format.samplesPerSec = Get32(file, body + 4);
      format.avgBytesPerSec = Get32(file, body + 8);
      format.blockAlign = Get16(file, body + 12);
      format.bitsPerSample = Get16(file, body + 14);
      if (IsExtensiblePcm(file.subspan(body, length))) format.formatTag = 1;
      if (const int fault = CheckFormat(format); fault != kConvertOk) return fault;
      haveFormat = true;
    } else if (TagIs(file, at, "fact")) {
      if (length < 4 || !complete) return kWaveFactMismatch;
      haveFact = true;
      factSamples = Get32(file, body);
    } else if (!complete) {
      return kWaveDataOffset;
    }
    at = body + length + (length & 1);  // chunks are padded to even lengths
  }
  return haveFormat ? kWaveNoData : kWaveNoHeader;
}

std::vector<uint8_t> WaveImage(const Pcm& pcm) {
  const auto dataBytes = static_cast<uint32_t>(pcm.samples.size() * 2);
  const auto rate = static_cast<uint32_t>(pcm.rate);
  std::vector<uint8_t> out;
  out.reserve(44 + dataBytes);
  PutTag(out, "RIFF");
  Put32(out, 36 + dataBytes);
  PutTag(out, "WAVE");
  PutTag(out, "fmt ");
  Put32(out, 16);
  Put16(out, 1);         // PCM
  Put16(out, 1);         // mono
  Put32(out, rate);      // samples a second
  Put32(out, rate * 2);  // bytes a second
  Put16(out, 2);         // block alignment
  Put16(out, 16);        // bits a sample
  PutTag(out, "data");
  Put32(out, dataBytes);
  for (const int16_t s : pcm.samples) Put16(out, static_cast<uint16_t>(s));
  return out;
}

}  // namespace kq::speech
