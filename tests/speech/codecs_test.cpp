#include <gtest/gtest.h>

#include "speech/codec/codecs.h"
#include "speech/codec/resample.h"
#include "tests/speech/speech_fixture.h"

namespace {

using namespace kq::speech;
using speechtest::Snr;
using speechtest::Tone;

struct CodecCase {
  int format;
  size_t bytesPerSecond;
  double minSnr;  // of a 1 kHz tone through encode and decode, in dB
};

const CodecCase kCodecs[] = {
    {kRhetorex32, 4000, 30}, {kRhetorex24, 3000, 22}, {kULaw, 8000, 32},  {kALaw, 8000, 32},
    {kLinear, 16000, 200},   {kOki32, 4000, 17},      {kOki24, 3000, 15},
};

TEST(Codecs, OneSecondHasTheFormatsSizeAndDecodesCloseToTheOriginal) {
  for (const CodecCase& c : kCodecs) {
    SCOPED_TRACE(c.format);
    const auto tone = Tone(FormatRate(c.format), 1.0);
    const auto bytes = Encode(c.format, tone);
    EXPECT_EQ(bytes.size(), c.bytesPerSecond);
    const auto back = Decode(c.format, bytes);
    ASSERT_EQ(back.size(), tone.size());
    const double snr = Snr(tone, back);
    EXPECT_GE(snr, c.minSnr);
    // A quieter, lower voice keeps its shape too.
    const auto quiet = Tone(FormatRate(c.format), 1.0, 440, 1500);
    const double quietSnr = Snr(quiet, Decode(c.format, Encode(c.format, quiet)));
    EXPECT_GE(quietSnr, c.minSnr - 6);
  }
}

TEST(Codecs, SilenceStaysSilentAndPartBytesArePaddedWithSilence) {
  const std::vector<int16_t> silence(800, 0);
  for (const CodecCase& c : kCodecs) {
    SCOPED_TRACE(c.format);
    for (const int16_t s : Decode(c.format, Encode(c.format, silence))) {
      ASSERT_LE(std::abs(s), 64);
    }
  }
  const std::vector<int16_t> seven(7, 1000);
  EXPECT_EQ(Encode(kRhetorex24, seven).size(), 3u);  // 8 codewords of 3 bits
  EXPECT_EQ(Encode(kRhetorex32, seven).size(), 4u);
  EXPECT_EQ(Encode(kOki32, seven).size(), 4u);
  EXPECT_EQ(Decode(kRhetorex24, Encode(kRhetorex24, seven)).size(), 8u);
}

// The bits that stay the same whatever the second sample is belong to the first codeword.
uint32_t BitsOfFirstCodeword(int format, int16_t first) {
  uint32_t same = 0xFFFFFF;
  uint32_t firstWord = 0;
  bool seen = false;
  for (int second = -30000; second <= 30000; second += 97) {
    std::vector<int16_t> in(8, 0);
    in[0] = first;
    in[1] = static_cast<int16_t>(second);
    const auto b = Encode(format, in);
    const uint32_t word = b[0] | (b[1] << 8) | (b.size() > 2 ? b[2] << 16 : 0);
    if (seen) same &= ~(word ^ firstWord);
    firstWord = word;
    seen = true;
  }
  return same;
}

TEST(Codecs, G726PutsTheFirstCodewordInTheLowBits) {
  // Bits 0-3 (32K) and 0-2 (24K) belong to the first sample; the next codeword, above
  // them, changes with the second sample.
  EXPECT_EQ(BitsOfFirstCodeword(kRhetorex32, 12000) & 0xFF, 0x0Fu);
  EXPECT_EQ(BitsOfFirstCodeword(kRhetorex24, 12000) & 0x3F, 0x07u);
}

TEST(Codecs, OkiPutsTheFirstSampleInTheHighNibble) {
  EXPECT_EQ(BitsOfFirstCodeword(kOki32, 12000) & 0xFF, 0xF0u);
  // From rest, a full-scale step is the largest code: 7 rising, 15 (sign and 7) falling.
  EXPECT_EQ(Encode(kOki32, std::vector<int16_t>{32767, 32767})[0] >> 4, 7);
  EXPECT_EQ(Encode(kOki32, std::vector<int16_t>{-32768, -32768})[0] >> 4, 15);
  // A lone code 7 from rest decodes to a positive step, 15 to the same step negative.
  const auto up = Decode(kOki32, std::vector<uint8_t>{0x70});
  const auto down = Decode(kOki32, std::vector<uint8_t>{0xF0});
  ASSERT_EQ(up.size(), 2u);
  EXPECT_GT(up[0], 0);
  EXPECT_EQ(down[0], -up[0]);
}

TEST(Resample, KeepsTheDurationAndTheTone) {
  const auto at8k = Tone(8000, 1.0);
  for (const int rate : {11025, 22050, 44100}) {
    SCOPED_TRACE(rate);
    const auto down = Resample(Tone(rate, 1.0), rate, 8000);
    ASSERT_EQ(down.size(), 8000u);
    EXPECT_GE(Snr(at8k, down), 40);
  }
  EXPECT_EQ(Resample(Tone(8000, 1.0), 8000, 6000).size(), 6000u);
  // Sound above the new half rate is filtered out, not folded back into the speech band.
  // A peak of 10000 comes out below 10 (-60 dB) once the filter has settled.
  const auto peak = [](const std::vector<int16_t>& s) {
    int most = 0;
    for (size_t i = 400; i + 400 < s.size(); ++i) most = std::max(most, std::abs(int{s[i]}));
    return most;
  };
  EXPECT_LT(peak(Resample(Tone(44100, 1.0, 5000), 44100, 8000)), 10);
  EXPECT_LT(peak(Resample(Tone(8000, 1.0, 3600), 8000, 6000)), 10);
  EXPECT_EQ(Resample(Tone(44100, 0.5), 44100, 11025).size(), 5513u);      // rounded
  EXPECT_TRUE(Resample(std::vector<int16_t>{500}, 22050, 8000).empty());  // under a sample
  EXPECT_EQ(Resample(std::vector<int16_t>(3, 500), 22050, 8000).size(), 1u);
}

}  // namespace
