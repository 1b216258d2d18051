#include "speech/codec/wave_file.h"

#include <bit>
#include <cstring>
#include <string_view>

#include "speech/codec/convert_codes.h"

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
constexpr size_t kExtensibleSize = 40;
constexpr uint8_t kPcmSubFormat[16] = {0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x10, 0x00,
                                       0x80, 0x00, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71};

bool IsExtensiblePcm(std::span<const uint8_t> fmt) {
  return fmt.size() >= kExtensibleSize && Get16(fmt, 0) == kExtensibleTag &&
         std::memcmp(fmt.data() + 24, kPcmSubFormat, sizeof kPcmSubFormat) == 0;
}

int CheckFormat(const WaveFormat& f) {
  if (f.formatTag != 1) return kWaveNotPcm;
  if (f.bitsPerSample != 8 && f.bitsPerSample != 16) return kWaveBadBits;
  if (f.channels != 1) return kWaveNotMono;
  if (!IsWaveRate(f.samplesPerSec)) return kWaveBadRate;
  return kConvertOk;
}

}  // namespace

bool IsWaveRate(uint32_t rate) {
  return rate == 8000 || rate == 11025 || rate == 22050 || rate == 44100;
}

int LocateWaveData(uint64_t size, const WaveReadAt& read, WaveData& data) {
  uint8_t head[12];
  if (size < 12) return kWaveNoHeader;
  if (!read(0, head, 12)) return kInputReadError;
  if (!TagIs(head, 0, "RIFF") || !TagIs(head, 8, "WAVE")) return kWaveNoHeader;
  WaveFormat format;
  bool haveFormat = false;
  bool haveFact = false;
  uint32_t factSamples = 0;
  uint64_t at = 12;
  uint8_t chunk[kExtensibleSize];
  while (at + 4 <= size) {
    if (!read(at, chunk, 4)) return kInputReadError;
    const bool isData = TagIs(chunk, 0, "data");
    if (at + 8 > size) {
      if (isData) return haveFormat ? kWaveNoDataSize : kWaveNoHeader;
      break;  // a few stray bytes at the end
    }
    if (!read(at + 4, chunk + 4, 4)) return kInputReadError;
    const uint64_t length = Get32(chunk, 4);
    const uint64_t body = at + 8;
    const bool complete = length <= size - body;
    if (isData) {
      if (!haveFormat) return kWaveNoHeader;
      if (length == 0) return kWaveNoDataSize;
      if (!complete) return kWaveDataUnreadable;
      const uint64_t bytesPerSample = format.bitsPerSample / 8;
      if (haveFact && factSamples != length / bytesPerSample) return kWaveFactMismatch;
      data = {format, body, length};
      return kConvertOk;
    }
    if (TagIs(chunk, 0, "fmt ")) {
      if (length < 16 || !complete) return kWaveNoHeader;
      const size_t fmtSize = length >= kExtensibleSize ? kExtensibleSize : 16;
      if (!read(body, chunk, fmtSize)) return kInputReadError;
      format.formatTag = Get16(chunk, 0);
      format.channels = Get16(chunk, 2);
      format.samplesPerSec = Get32(chunk, 4);
      format.avgBytesPerSec = Get32(chunk, 8);
      format.blockAlign = Get16(chunk, 12);
      format.bitsPerSample = Get16(chunk, 14);
      if (IsExtensiblePcm({chunk, fmtSize})) format.formatTag = 1;
      if (const int fault = CheckFormat(format); fault != kConvertOk) return fault;
      haveFormat = true;
    } else if (TagIs(chunk, 0, "fact")) {
      if (length < 4 || !complete) return kWaveFactMismatch;
      if (!read(body, chunk, 4)) return kInputReadError;
      haveFact = true;
      factSamples = Get32(chunk, 0);
    } else if (!complete) {
      return kWaveDataOffset;
    }
    at = body + length + (length & 1);  // chunks are padded to even lengths
  }
  return haveFormat ? kWaveNoData : kWaveNoHeader;
}

void AppendWaveSamples(std::span<const uint8_t> data, int bits, std::vector<int16_t>& samples) {
  const size_t base = samples.size();
  if (bits == 8) {
    samples.resize(base + data.size());
    for (size_t i = 0; i < data.size(); ++i) {
      samples[base + i] = static_cast<int16_t>((data[i] - 128) * 256);
    }
    return;
  }
  const size_t n = data.size() / 2;  // a last odd byte is no sample
  samples.resize(base + n);
  if (n == 0) return;  // an empty vector's data may be null, which memcpy must not get
  if constexpr (std::endian::native == std::endian::little) {
    std::memcpy(samples.data() + base, data.data(), n * 2);  // the file's order already
  } else {
    for (size_t i = 0; i < n; ++i) samples[base + i] = static_cast<int16_t>(Get16(data, 2 * i));
  }
}

int ParseWave(std::span<const uint8_t> file, Pcm& pcm) {
  WaveData data;
  const auto read = [file](uint64_t at, uint8_t* buffer, size_t n) {
    std::memcpy(buffer, file.data() + at, n);  // the walk stays inside the size it is given
    return true;
  };
  if (const int code = LocateWaveData(file.size(), read, data); code != kConvertOk) return code;
  pcm.samples.clear();
  AppendWaveSamples(file.subspan(data.offset, data.length), data.format.bitsPerSample, pcm.samples);
  pcm.rate = static_cast<int>(data.format.samplesPerSec);
  return kConvertOk;
}

std::vector<uint8_t> WaveHeader(uint64_t samples, int rate) {
  const auto dataBytes = static_cast<uint32_t>(samples * 2);
  const auto r = static_cast<uint32_t>(rate);
  std::vector<uint8_t> out;
  out.reserve(44);
  PutTag(out, "RIFF");
  Put32(out, 36 + dataBytes);
  PutTag(out, "WAVE");
  PutTag(out, "fmt ");
  Put32(out, 16);
  Put16(out, 1);      // PCM
  Put16(out, 1);      // mono
  Put32(out, r);      // samples a second
  Put32(out, r * 2);  // bytes a second
  Put16(out, 2);      // block alignment
  Put16(out, 16);     // bits a sample
  PutTag(out, "data");
  Put32(out, dataBytes);
  return out;
}

std::vector<uint8_t> WaveImage(const Pcm& pcm) {
  std::vector<uint8_t> out = WaveHeader(pcm.samples.size(), pcm.rate);
  out.reserve(44 + pcm.samples.size() * 2);
  for (const int16_t s : pcm.samples) Put16(out, static_cast<uint16_t>(s));
  return out;
}

}  // namespace kq::speech
