// Sound and WAVE files made by the speech tests themselves, and their measures.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace speechtest {

using Bytes = std::vector<uint8_t>;

// `seconds` of a sine tone at `rate`, peak `amplitude`.
inline std::vector<int16_t> Tone(int rate, double seconds, double hz = 1000.0,
                                 double amplitude = 10000.0) {
  std::vector<int16_t> s(static_cast<size_t>(std::lround(rate * seconds)));
  for (size_t i = 0; i < s.size(); ++i) {
    s[i] = static_cast<int16_t>(std::lround(amplitude * std::sin(2 * M_PI * hz * i / rate)));
  }
  return s;
}

// Signal to noise ratio in dB of `test` against `ref`, leaving out `skip` samples at each
// end (codec start-up and resampler edges).
inline double Snr(const std::vector<int16_t>& ref, const std::vector<int16_t>& test,
                  size_t skip = 200) {
  const size_t n = std::min(ref.size(), test.size());
  double signal = 0, noise = 0;
  for (size_t i = skip; i + skip < n; ++i) {
    signal += double(ref[i]) * ref[i];
    noise += (double(test[i]) - ref[i]) * (double(test[i]) - ref[i]);
  }
  return noise == 0 ? 200.0 : 10 * std::log10(signal / noise);
}

inline void Put(Bytes& b, uint32_t v, int bytes) {
  for (int i = 0; i < bytes; ++i) b.push_back(static_cast<uint8_t>(v >> (8 * i)));
}

// One RIFF chunk; `declared` overrides the length field. Odd bodies get their pad byte.
inline Bytes Chunk(const std::string& tag, const Bytes& body, int64_t declared = -1) {
  Bytes b(tag.begin(), tag.end());
  Put(b, declared < 0 ? static_cast<uint32_t>(body.size()) : static_cast<uint32_t>(declared), 4);
  b.insert(b.end(), body.begin(), body.end());
  if (body.size() % 2 == 1) b.push_back(0);
  return b;
}

inline Bytes Fmt(int rate, int bits, int channels = 1, int tag = 1) {
  Bytes b;
  const int align = channels * bits / 8;
  Put(b, tag, 2);
  Put(b, channels, 2);
  Put(b, rate, 4);
  Put(b, rate * align, 4);
  Put(b, align, 2);
  Put(b, bits, 2);
  return Chunk("fmt ", b);
}

// The data bytes of samples at 8 bits (unsigned) or 16 bits.
inline Bytes PcmBytes(const std::vector<int16_t>& s, int bits) {
  Bytes b;
  for (const int16_t v : s) {
    if (bits == 8) {
      b.push_back(static_cast<uint8_t>((v >> 8) + 128));
    } else {
      Put(b, static_cast<uint16_t>(v), 2);
    }
  }
  return b;
}

inline Bytes RiffFile(const std::vector<Bytes>& chunks) {
  Bytes body{'W', 'A', 'V', 'E'};
  for (const Bytes& c : chunks) body.insert(body.end(), c.begin(), c.end());
  Bytes b{'R', 'I', 'F', 'F'};
  Put(b, static_cast<uint32_t>(body.size()), 4);
  b.insert(b.end(), body.begin(), body.end());
  return b;
}

inline Bytes WaveFile(const std::vector<int16_t>& s, int rate, int bits) {
  return RiffFile({Fmt(rate, bits), Chunk("data", PcmBytes(s, bits))});
}

// A folder of this process and test, made empty.
class SpeechTest : public ::testing::Test {
 protected:
  void SetUp() override {
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    dir_ = std::filesystem::temp_directory_path() / ("kqspeech-" + std::to_string(getpid())) /
           (std::string(info->test_suite_name()) + "." + info->name());
    std::filesystem::remove_all(dir_);
    std::filesystem::create_directories(dir_);
  }
  void TearDown() override { std::filesystem::remove_all(dir_.parent_path()); }

  std::string PathOf(const std::string& name) const { return (dir_ / name).string(); }
  std::string Write(const std::string& name, const Bytes& bytes) const {
    std::ofstream(PathOf(name), std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    return PathOf(name);
  }
  static Bytes Read(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  }

  std::filesystem::path dir_;
};

}  // namespace speechtest
