#include <gtest/gtest.h>

#include <filesystem>

#include "speech/codec/codecs.h"
#include "speech/codec/convert.h"
#include "speech/codec/wave_file.h"
#include "tests/speech/speech_fixture.h"

namespace {

using namespace kq::speech;
using namespace speechtest;

class ConvertTest : public SpeechTest {
 protected:
  // Converts `in` to `out` as the Convert dialog does for a target format.
  static int ToFormat(const std::string& in, const std::string& out, int format) {
    return Convert(in.c_str(), kWave, 8, out.c_str(), static_cast<int16_t>(format), 8);
  }
  // The samples of a WAVE file this library wrote.
  static Pcm WaveOf(const std::string& path) {
    const Bytes b = Read(path);
    Pcm pcm;
    EXPECT_EQ(ParseWave(b, pcm), 0) << path;
    return pcm;
  }
};

struct Target {
  int format;
  size_t bytesPerSecond;
  double minSnr;  // of the WAVE made back from the target, against the tone at 8000 Hz
};

const Target kTargets[] = {
    {kRhetorex32, 4000, 28}, {kRhetorex24, 3000, 20}, {kULaw, 8000, 30},  {kALaw, 8000, 30},
    {kWave, 16044, 38},      {kLinear, 16000, 38},    {kOki32, 4000, 16}, {kOki24, 3000, 14},
};

TEST_F(ConvertTest, EveryAcceptedWaveGoesToEveryFormatAndBack) {
  const auto reference = Tone(8000, 1.0);
  for (const int rate : {8000, 11025, 22050, 44100}) {
    for (const int bits : {8, 16}) {
      const std::string source = Write("tone.wav", WaveFile(Tone(rate, 1.0), rate, bits));
      for (const Target& t : kTargets) {
        SCOPED_TRACE(testing::Message() << rate << " Hz " << bits << " bit to " << t.format);
        const std::string target = PathOf("tone.out");
        const std::string back = PathOf("back.wav");
        ASSERT_EQ(ToFormat(source, target, t.format), 0);
        EXPECT_EQ(std::filesystem::file_size(target), t.bytesPerSecond);
        ASSERT_EQ(
            Convert(target.c_str(), static_cast<int16_t>(t.format), 8, back.c_str(), kWave, 8), 0);
        const Pcm pcm = WaveOf(back);
        EXPECT_EQ(pcm.rate, 8000);
        ASSERT_EQ(pcm.samples.size(), 8000u);
        // 8-bit sources carry their own quantisation noise of about 40 dB.
        EXPECT_GE(Snr(reference, pcm.samples), bits == 8 ? std::min(t.minSnr, 30.0) : t.minSnr);
      }
    }
  }
}

TEST_F(ConvertTest, WaveOutputTakesTheOutputRateAndBoardFormatsConvertBetweenThemselves) {
  const std::string source = Write("tone.wav", WaveFile(Tone(8000, 2.0), 8000, 16));
  const std::string wide = PathOf("wide.wav");
  ASSERT_EQ(Convert(source.c_str(), kWave, 8, wide.c_str(), kWave, 44), 0);
  const Pcm pcm = WaveOf(wide);
  EXPECT_EQ(pcm.rate, 44100);
  EXPECT_EQ(pcm.samples.size(), 88200u);

  const std::string mlw = PathOf("tone.mlw"), o24 = PathOf("tone.o24");
  ASSERT_EQ(ToFormat(source, mlw, kULaw), 0);
  ASSERT_EQ(Convert(mlw.c_str(), kULaw, 8, o24.c_str(), kOki24, 8), 0);
  EXPECT_EQ(std::filesystem::file_size(o24), 6000u);
  // Converting in place reads the whole input before writing.
  ASSERT_EQ(Convert(mlw.c_str(), kULaw, 8, mlw.c_str(), kLinear, 8), 0);
  EXPECT_EQ(std::filesystem::file_size(mlw), 32000u);
}

// Each fault and the code that names it; the output file is never made.
TEST_F(ConvertTest, EveryFaultGivesItsOwnCode) {
  const auto tone = Tone(8000, 0.1);
  const Bytes pcm = PcmBytes(tone, 16);
  const Bytes fmt = Fmt(8000, 16);
  Bytes fact;
  Put(fact, static_cast<uint32_t>(tone.size() + 1), 4);
  struct Fault {
    int code;
    Bytes file;
  };
  const Fault faults[] = {
      {10, Bytes{'h', 'e', 'l', 'l', 'o'}},
      {10, Bytes(100, 0)},
      {10, RiffFile({Chunk("data", pcm)})},  // data before any format
      {10, RiffFile({Chunk("fmt ", Bytes(12, 1)), Chunk("data", pcm)})},
      {11, RiffFile({Fmt(8000, 32, 1, 3), Chunk("data", pcm)})},
      {12, RiffFile({Fmt(8000, 24), Chunk("data", pcm)})},
      {13, RiffFile({Fmt(8000, 16, 2), Chunk("data", pcm)})},
      {14, RiffFile({Fmt(12000, 16), Chunk("data", pcm)})},
      {15, RiffFile({fmt, Chunk("LIST", Bytes(10, 'x'), 5000)})},
      {16, RiffFile({fmt, Chunk("data", pcm, static_cast<int64_t>(pcm.size()) + 2)})},
      {17, RiffFile({fmt, Chunk("fact", fact), Chunk("data", pcm)})},
      {18, RiffFile({fmt, Chunk("LIST", Bytes(9, 'x'))})},
      {19, RiffFile({fmt, Chunk("data", {})})},
      {19, [&] {
         Bytes b = RiffFile({fmt});
         b.insert(b.end(), {'d', 'a', 't', 'a', 1});
         return b;
       }()},
  };
  const std::string out = PathOf("out.r32");
  for (const Fault& f : faults) {
    SCOPED_TRACE(f.code);
    EXPECT_EQ(ToFormat(Write("bad.wav", f.file), out, kRhetorex32), f.code);
    EXPECT_FALSE(std::filesystem::exists(out));
  }
  // A matching fact chunk and an odd chunk before the data are read past.
  Bytes goodFact;
  Put(goodFact, static_cast<uint32_t>(tone.size()), 4);
  const std::string good = Write(
      "good.wav",
      RiffFile({Chunk("LIST", Bytes(3, 'x')), fmt, Chunk("fact", goodFact), Chunk("data", pcm)}));
  EXPECT_EQ(ToFormat(good, out, kRhetorex32), 0);
  EXPECT_EQ(std::filesystem::file_size(out), 400u);
  std::filesystem::remove(out);

  const std::string wav = Write("tone.wav", WaveFile(tone, 8000, 16));
  EXPECT_EQ(Convert("", kWave, 8, out.c_str(), 0, 8), 1);
  EXPECT_EQ(Convert(nullptr, kWave, 8, out.c_str(), 0, 8), 1);
  EXPECT_EQ(ToFormat(PathOf("missing.wav"), out, 0), 2);
  EXPECT_EQ(ToFormat(dir_.string(), out, 0), 3);  // a folder opens but cannot be read
  EXPECT_EQ(ToFormat(wav, PathOf("no/such/folder/out.r32"), 0), 4);
  EXPECT_EQ(ToFormat(wav, "", 0), 4);
  if (std::filesystem::exists("/dev/full")) {
    EXPECT_EQ(ToFormat(wav, "/dev/full", 0), 5);
  }
  for (const int16_t format : {-1, 5, 9, 10}) {
    EXPECT_EQ(Convert(wav.c_str(), format, 8, out.c_str(), 0, 8), 6);
    EXPECT_EQ(Convert(wav.c_str(), kWave, 8, out.c_str(), format, 8), 7);
  }
  for (const int16_t rate : {0, 6, 12, 16, 48}) {
    EXPECT_EQ(Convert(wav.c_str(), kWave, rate, out.c_str(), 0, 8), 8);
    EXPECT_EQ(Convert(wav.c_str(), kWave, 8, out.c_str(), 0, rate), 9);
  }
  EXPECT_FALSE(std::filesystem::exists(out));
  EXPECT_EQ(ToFormat(wav, out, 0), 0);  // and the file was fine all along
}

TEST_F(ConvertTest, WaveFilesOfBothWidthsReadBackTheirSamples) {
  const std::vector<int16_t> s{0, 256, -256, 32512, -32768, 1280};
  for (const int bits : {8, 16}) {
    Pcm pcm;
    ASSERT_EQ(ParseWave(WaveFile(s, 22050, bits), pcm), 0);
    EXPECT_EQ(pcm.rate, 22050);
    EXPECT_EQ(pcm.samples, s);  // each a multiple of 256, so 8 bits hold them too
  }
  const Bytes image = WaveImage({s, 8000});
  EXPECT_EQ(image, WaveFile(s, 8000, 16));
}

TEST(SpeechFormats, ExtensionsCaptionsAndTheReverseMap) {
  EXPECT_EQ(SpeechFormatOfFile("HELLO.WAV", 0), kWave);
  EXPECT_EQ(SpeechFormatOfFile("hello.r32", 3), kRhetorex32);
  EXPECT_EQ(SpeechFormatOfFile("a.R24", 3), kRhetorex24);
  EXPECT_EQ(SpeechFormatOfFile("a.Mlw", 3), kULaw);
  EXPECT_EQ(SpeechFormatOfFile("a.alw", 3), kALaw);
  EXPECT_EQ(SpeechFormatOfFile("a.lin", 3), kLinear);
  EXPECT_EQ(SpeechFormatOfFile("a.o32", 3), kOki32);
  EXPECT_EQ(SpeechFormatOfFile("a.o24", 3), kOki24);
  EXPECT_EQ(SpeechFormatOfFile("greeting.VOX", 7), 7);  // the menu's format
  EXPECT_EQ(SpeechFormatOfFile("a.024", 3), kIllegalSpeechFormat);
  EXPECT_EQ(SpeechFormatOfFile("a.txt", 3), kIllegalSpeechFormat);
  EXPECT_EQ(SpeechFormatOfFile("wa", 3), kIllegalSpeechFormat);
  // Every extension leads back to its own format.
  for (int f = -1; f <= 10; ++f) {
    if (!SpeechFileExt(f).empty()) {
      EXPECT_EQ(SpeechFormatOfFile("x." + std::string(SpeechFileExt(f)), 99), f);
    }
  }
  EXPECT_TRUE(SpeechFileExt(kWave).empty());
  EXPECT_TRUE(SpeechFileExt(5).empty());
  EXPECT_EQ(ConvertCaption(kOki24), "Convert Speech Files From WAVE To OKI 24K ADPCM");
  EXPECT_TRUE(ConvertCaption(5).empty());
}

}  // namespace
