// The conversion a block at a time against the conversion of whole signals it replaced:
// the same bytes for every format and rate (by the hashes the whole-signal conversion
// gave, and by a copy of that conversion kept here), and the same codes for faults found
// at the start or late in a stream, with the output file left as it was.
#include <gtest/gtest.h>

#include <cerrno>
#include <cmath>
#include <filesystem>
#include <iostream>
#include <random>

#include "speech/codec/batch.h"
#include "speech/codec/codecs.h"
#include "speech/codec/convert.h"
#include "speech/codec/convert_codes.h"
#include "speech/codec/g726_encoder.h"
#include "speech/codec/resample.h"
#include "speech/codec/wave_file.h"
#include "tests/speech/speech_fixture.h"
#include "tests/speech/speech_signal.h"
#include "ui/platform/durable_file.h"

namespace {

using namespace kq::speech;
using namespace speechtest;
namespace fs = std::filesystem;

// The conversion as it was made on whole signals, kept as the reference.
int WholeSignalConvert(const Bytes& input, int inputFormat, int outputFormat, int outputRate,
                       Bytes& output) {
  Pcm pcm;
  if (inputFormat == kWave) {
    if (const int code = ParseWave(input, pcm); code != 0) return code;
  } else {
    pcm.samples = Decode(inputFormat, input);
    pcm.rate = FormatRate(inputFormat);
  }
  const int rate = outputFormat == kWave ? outputRate : FormatRate(outputFormat);
  const Pcm target{Resample(pcm.samples, pcm.rate, rate), rate};
  output = outputFormat == kWave ? WaveImage(target) : Encode(outputFormat, target.samples);
  return 0;
}

int Khz(int rate) {
  return rate == 11025 ? 11 : rate / 1000;
}

struct Golden {
  int rate;    // of the WAVE input; -1 for a headerless input
  int bits;    // of the WAVE input; the format of a headerless input
  int format;  // of the output
  int khz;     // the output rate argument
  uint64_t hash;
};

// What the whole-signal conversion made of SpeechLike inputs.
constexpr Golden kGolden[] = {
    {8000, 8, 0, 8, 0x631309813d2b2cc8ull},    {8000, 8, 1, 8, 0x97789bb2e262d407ull},
    {8000, 8, 2, 8, 0x2da7ff53e2fe3570ull},    {8000, 8, 3, 8, 0x9febb71a735cd574ull},
    {8000, 8, 6, 8, 0xf9f6803e63c3b419ull},    {8000, 8, 7, 8, 0x141544fdf2fdefbdull},
    {8000, 8, 8, 8, 0x6fdb88ee0f586055ull},    {8000, 8, 4, 8, 0x922d22aaaeba6171ull},
    {8000, 8, 4, 11, 0x180b706ecf8e40c0ull},   {8000, 8, 4, 22, 0xfb3f45a99ce21c88ull},
    {8000, 8, 4, 44, 0xf4799d057df4c9ceull},   {8000, 16, 0, 8, 0x412f944be6849c2eull},
    {8000, 16, 1, 8, 0x2d12ede839bc1321ull},   {8000, 16, 2, 8, 0x27fddf031cee63a0ull},
    {8000, 16, 3, 8, 0x5e11423d949b6e93ull},   {8000, 16, 6, 8, 0xc18695cca50a92b5ull},
    {8000, 16, 7, 8, 0x065671c5ca59ab92ull},   {8000, 16, 8, 8, 0xdc24bbe99ad0b2f4ull},
    {8000, 16, 4, 8, 0x8c524709ef64a49dull},   {8000, 16, 4, 11, 0x5aea6f2ba619eb64ull},
    {8000, 16, 4, 22, 0x0944dbbcb24b162full},  {8000, 16, 4, 44, 0xe81847edefc9adf8ull},
    {11025, 8, 0, 8, 0xf9b15bfb0a0dce9full},   {11025, 8, 1, 8, 0x0985423be4c30d53ull},
    {11025, 8, 2, 8, 0x2e2cc0eadc984ff3ull},   {11025, 8, 3, 8, 0xd214ec5ee3e50082ull},
    {11025, 8, 6, 8, 0x0e619a123ffd880eull},   {11025, 8, 7, 8, 0xcd3645d8957088c8ull},
    {11025, 8, 8, 8, 0xeda8cd90a64ef0e7ull},   {11025, 8, 4, 8, 0x954726a05184a9c6ull},
    {11025, 8, 4, 11, 0x8d4ba7e872300522ull},  {11025, 8, 4, 22, 0x6f9c35ea794edc59ull},
    {11025, 8, 4, 44, 0x8f8c4a54a3d2048dull},  {11025, 16, 0, 8, 0x96cd9cf998beb739ull},
    {11025, 16, 1, 8, 0xe68443d4a5c8b183ull},  {11025, 16, 2, 8, 0x4d1d5c292d61cfa3ull},
    {11025, 16, 3, 8, 0xbbdbf252c2587760ull},  {11025, 16, 6, 8, 0xb775e46b94ffbd87ull},
    {11025, 16, 7, 8, 0x8b3ac529a0b66a33ull},  {11025, 16, 8, 8, 0xb3dc5776e69e0bdfull},
    {11025, 16, 4, 8, 0x17a526294f3bd5cfull},  {11025, 16, 4, 11, 0xbfdbafa01d7b66feull},
    {11025, 16, 4, 22, 0x1a9cb5d439333d99ull}, {11025, 16, 4, 44, 0x18481cfdad4f7504ull},
    {22050, 8, 0, 8, 0xc3e056d14738a5f4ull},   {22050, 8, 1, 8, 0xc597decf8af29f09ull},
    {22050, 8, 2, 8, 0xe5d2ba2de44bc8daull},   {22050, 8, 3, 8, 0x7508651cc55e2bd0ull},
    {22050, 8, 6, 8, 0x5f1a6fdbc121918cull},   {22050, 8, 7, 8, 0x2733107de485689eull},
    {22050, 8, 8, 8, 0x5d7d18184d448708ull},   {22050, 8, 4, 8, 0x1e45cb677b3a9f54ull},
    {22050, 8, 4, 11, 0xd2549cc442f16dedull},  {22050, 8, 4, 22, 0xccc4284510d55cd6ull},
    {22050, 8, 4, 44, 0xb02a0fd9d929fd0dull},  {22050, 16, 0, 8, 0x8cd9b85476240b63ull},
    {22050, 16, 1, 8, 0x15dae7c60d443246ull},  {22050, 16, 2, 8, 0x90ec4dfe9a695be9ull},
    {22050, 16, 3, 8, 0xef3cf5674ea77683ull},  {22050, 16, 6, 8, 0xcf441db7201272c8ull},
    {22050, 16, 7, 8, 0xe955ab7a186c9e62ull},  {22050, 16, 8, 8, 0x484853a0718f26fdull},
    {22050, 16, 4, 8, 0x378a37c149829cb0ull},  {22050, 16, 4, 11, 0xb40e6a6d9c45751cull},
    {22050, 16, 4, 22, 0x4b0ed3ab3d473578ull}, {22050, 16, 4, 44, 0x020c002d5a1adf1eull},
    {44100, 8, 0, 8, 0x7ba41857765648b4ull},   {44100, 8, 1, 8, 0x1f4415c12619d455ull},
    {44100, 8, 2, 8, 0xeb84da3fcb970c8eull},   {44100, 8, 3, 8, 0x61942dc7433a9ac0ull},
    {44100, 8, 6, 8, 0xd31207e9c8e1bcdaull},   {44100, 8, 7, 8, 0x5bac8c5b41073e43ull},
    {44100, 8, 8, 8, 0x38683397b28fe1e2ull},   {44100, 8, 4, 8, 0xebe0a952e6403782ull},
    {44100, 8, 4, 11, 0x00c0688ca634c6f9ull},  {44100, 8, 4, 22, 0x3b5fccea823384f8ull},
    {44100, 8, 4, 44, 0xac40b38d015f4d8full},  {44100, 16, 0, 8, 0x83ab2af54157a8bcull},
    {44100, 16, 1, 8, 0x6c72e10956f38bffull},  {44100, 16, 2, 8, 0x1b044071c309a9adull},
    {44100, 16, 3, 8, 0xe79dfd42065e47c0ull},  {44100, 16, 6, 8, 0x71b91e0ab1636589ull},
    {44100, 16, 7, 8, 0x387057104902ad8dull},  {44100, 16, 8, 8, 0x2af5329e86864174ull},
    {44100, 16, 4, 8, 0x5b447464d3db91c1ull},  {44100, 16, 4, 11, 0xee55f5291fc7de98ull},
    {44100, 16, 4, 22, 0xa9fb2e78ece63b24ull}, {44100, 16, 4, 44, 0xcf151a70761251e4ull},
    {-1, 0, 4, 8, 0x6ab28a593ff3248aull},      {-1, 0, 4, 44, 0x38a59e10fb6a21a7ull},
    {-1, 1, 4, 8, 0xfcb181bb4057a1b8ull},      {-1, 1, 4, 44, 0x123522dedff95cc1ull},
    {-1, 2, 4, 8, 0xccc8dfa7721b883dull},      {-1, 2, 4, 44, 0x867fe8dc72d8ab0eull},
    {-1, 3, 4, 8, 0x3c7125d0b4b92f77ull},      {-1, 3, 4, 44, 0x12465c52d282110dull},
    {-1, 6, 4, 8, 0x10ca5ec33023be4dull},      {-1, 6, 4, 44, 0xff93eb708c4860f4ull},
    {-1, 7, 4, 8, 0x461f4d3edfd9e0e4ull},      {-1, 7, 4, 44, 0x0262636720d3d860ull},
    {-1, 8, 4, 8, 0xa260564a2a1f89ebull},      {-1, 8, 4, 44, 0xe7d19976b4992d8eull},
};

class StreamTest : public SpeechTest {
 protected:
  int Convert(const std::string& in, int inFormat, const std::string& out, int outFormat,
              int outKhz = 8) {
    return kq::speech::Convert(in.c_str(), static_cast<int16_t>(inFormat), 8, out.c_str(),
                               static_cast<int16_t>(outFormat), static_cast<int16_t>(outKhz));
  }
  bool NoTemporaryLeft() const {
    for (const auto& e : fs::directory_iterator(dir_)) {
      if (e.path().string().ends_with(".kqx-save")) return false;
    }
    return true;
  }
};

TEST_F(StreamTest, GivesTheBytesOfTheWholeSignalConversion) {
  for (const Golden& g : kGolden) {
    std::string in;
    int inFormat = kWave;
    if (g.rate > 0) {
      const auto count = static_cast<size_t>(g.rate * 33 / 10) + 1;
      in = Write("in.wav", WaveFile(SpeechLike(g.rate, count), g.rate, g.bits));
    } else {
      inFormat = g.bits;
      Bytes raw = Encode(inFormat, SpeechLike(FormatRate(inFormat), 20001));
      raw.push_back(0x5a);
      in = Write("in.raw", raw);
    }
    ASSERT_EQ(Convert(in, inFormat, PathOf("out.bin"), g.format, g.khz), 0);
    EXPECT_EQ(Fnv1a(Read(PathOf("out.bin"))), g.hash)
        << "input " << g.rate << "/" << g.bits << " to " << g.format << " at " << g.khz;
  }
}

TEST_F(StreamTest, MatchesTheWholeSignalPathAtBlockEdgesAndOddLengths) {
  // A block holds kConvertBlockBytes / 2 samples of 16-bit data, twice that of 8-bit.
  constexpr size_t kHalf = kConvertBlockBytes / 2;
  const size_t lengths[] = {1, 2, 3, kHalf - 1, kHalf, kHalf + 1, 2 * kHalf + 1};
  const int outputs[] = {kRhetorex32, kRhetorex24, kULaw, kALaw, kLinear, kOki32, kOki24};
  for (const int rate : {8000, 11025, 22050, 44100}) {
    for (const int bits : {8, 16}) {
      for (const size_t n : lengths) {
        const Bytes file = WaveFile(SpeechLike(rate, n, static_cast<uint32_t>(n)), rate, bits);
        const std::string in = Write("in.wav", file);
        for (const int format : outputs) {
          Bytes want;
          ASSERT_EQ(WholeSignalConvert(file, kWave, format, 8000, want), 0);
          ASSERT_EQ(Convert(in, kWave, PathOf("o.bin"), format), 0);
          EXPECT_EQ(Read(PathOf("o.bin")), want)
              << rate << "/" << bits << " n=" << n << " to " << format;
        }
        for (const int to : {8000, 44100}) {
          Bytes want;
          ASSERT_EQ(WholeSignalConvert(file, kWave, kWave, to, want), 0);
          ASSERT_EQ(Convert(in, kWave, PathOf("o.wav"), kWave, Khz(to)), 0);
          EXPECT_EQ(Read(PathOf("o.wav")), want)
              << rate << "/" << bits << " n=" << n << " to WAVE " << to;
        }
      }
    }
  }
}

TEST_F(StreamTest, HeaderlessInputsOfEveryLengthDecodeAsBefore) {
  std::mt19937 random(7);
  for (const int format : {kRhetorex32, kRhetorex24, kULaw, kALaw, kLinear, kOki32, kOki24}) {
    for (const size_t n : {size_t{0}, size_t{1}, size_t{2}, size_t{3}, kConvertBlockBytes - 1,
                           kConvertBlockBytes, kConvertBlockBytes + 1}) {
      Bytes raw(n);
      for (uint8_t& b : raw) b = static_cast<uint8_t>(random());
      const std::string in = Write("in.raw", raw);
      for (const int to : {kWave, kOki24}) {
        Bytes want;
        ASSERT_EQ(WholeSignalConvert(raw, format, to, 11025, want), 0);
        ASSERT_EQ(Convert(in, format, PathOf("o.bin"), to, 11), 0);
        EXPECT_EQ(Read(PathOf("o.bin")), want) << format << " n=" << n << " to " << to;
      }
    }
  }
}

TEST_F(StreamTest, BlockwiseCodersAndResamplerEqualTheirWholeSignalCalls) {
  // Uneven blocks, so that part blocks of the ADPCM coders wait between calls.
  const std::vector<int16_t> signal = SpeechLike(22050, 50001);
  const size_t blocks[] = {1, 2, 3, 5, 7, 8, 4096, 10007};
  for (const int format : {kRhetorex32, kRhetorex24, kULaw, kALaw, kLinear, kOki32, kOki24}) {
    StreamEncoder encoder(format);
    Bytes bytes;
    size_t at = 0;
    for (size_t i = 0; at < signal.size(); ++i) {
      const size_t n = std::min(blocks[i % std::size(blocks)], signal.size() - at);
      encoder.Encode(std::span(signal).subspan(at, n), bytes);
      at += n;
    }
    encoder.Finish(bytes);
    EXPECT_EQ(bytes, Encode(format, signal)) << format;

    StreamDecoder decoder(format);
    std::vector<int16_t> samples;
    for (size_t i = 0, from = 0; from < bytes.size(); ++i) {
      const size_t n = std::min(blocks[i % std::size(blocks)], bytes.size() - from);
      decoder.Decode(std::span(bytes).subspan(from, n), samples);
      from += n;
    }
    EXPECT_EQ(samples, Decode(format, bytes)) << format;
    EXPECT_EQ(samples.size(), DecodedLength(format, bytes.size())) << format;
  }
  for (const int to : {6000, 8000, 44100}) {
    StreamResampler resampler(22050, to, signal.size());
    std::vector<int16_t> out;
    size_t at = 0;
    for (size_t i = 0; at < signal.size(); ++i) {
      const size_t n = std::min(blocks[i % std::size(blocks)], signal.size() - at);
      resampler.Process(std::span(signal).subspan(at, n), out);
      at += n;
    }
    resampler.Finish(out);
    EXPECT_EQ(out, Resample(signal, 22050, to)) << to;
  }
}

TEST_F(StreamTest, FaultsFoundLateLeaveTheOutputAsItWas) {
  const Bytes old = {'o', 'l', 'd'};
  const std::vector<int16_t> s = SpeechLike(44100, 200000);
  const std::string out = Write("out.o32", old);
  // A data chunk that declares more bytes than the file holds.
  const Bytes shortData = RiffFile({Fmt(44100, 16), Chunk("data", PcmBytes(s, 16), 500000)});
  EXPECT_EQ(Convert(Write("short.wav", shortData), kWave, out, kOki32), kWaveDataUnreadable);
  const std::string good = Write("good.wav", WaveFile(s, 44100, 16));
  // The drive fails in the middle of the data.
  for (const int format : {kOki32, kRhetorex32}) {  // read beside or with the resampling
    InjectConvertReadFault(300000);
    EXPECT_EQ(Convert(good, kWave, out, format), kInputReadError) << format;
  }
  const std::string raw = Write("in.o32", Bytes(200000, 0x17));
  InjectConvertReadFault(100000);
  EXPECT_EQ(Convert(raw, kOki32, PathOf("x.wav"), kWave), kInputReadError);
  // The output's disk fills up after the first block.
  ui::InjectDurableWriteFault(ENOSPC, 5000, 1);
  EXPECT_EQ(Convert(good, kWave, out, kOki32), kOutputWriteError);
  EXPECT_EQ(Read(out), old);
  EXPECT_FALSE(fs::exists(PathOf("x.wav")));
  EXPECT_TRUE(NoTemporaryLeft());
  // A write fault at any point of a longer input leaves the old file, and the reading and
  // resampling threads stop with the writer.
  const std::string longer = Write("long.wav", WaveFile(SpeechLike(44100, 3000000), 44100, 16));
  for (const size_t after : {0, 1, 4000, 30000, 150000, 250000}) {
    for (const int format : {kULaw, kRhetorex32}) {
      ui::InjectDurableWriteFault(ENOSPC, after, 1);
      EXPECT_EQ(Convert(longer, kWave, out, format), kOutputWriteError) << after;
      EXPECT_EQ(Read(out), old);
    }
  }
  EXPECT_TRUE(NoTemporaryLeft());
  // A folder that is not there, and a target marked read-only.
  EXPECT_EQ(Convert(good, kWave, PathOf("gone/out.o32"), kOki32), kOutputOpenError);
  fs::permissions(out, fs::perms::owner_read);
  EXPECT_EQ(Convert(good, kWave, out, kOki32), kOutputOpenError);
  EXPECT_EQ(Read(out), old);
  fs::permissions(out, fs::perms::owner_read | fs::perms::owner_write);
  ASSERT_EQ(Convert(good, kWave, out, kOki32), 0);
  EXPECT_EQ(fs::file_size(out), (ResampledLength(200000, 44100, 8000) + 1) / 2);
  EXPECT_TRUE(NoTemporaryLeft());
}

TEST_F(StreamTest, ABatchReportsProgressOnceAJobAndFailuresInJobOrder) {
  std::vector<kq::speech::BatchJob> jobs;
  for (int i = 0; i < 40; ++i) {
    const std::string in = i % 7 == 3 ? PathOf("missing.wav")
                                      : Write("in" + std::to_string(i) + ".wav",
                                              WaveFile(SpeechLike(22050, 3000), 22050, 16));
    jobs.push_back({in, PathOf("out" + std::to_string(i) + ".mlw"), kWave, kULaw});
  }
  std::vector<size_t> seen;
  const auto failures = ConvertBatch(jobs, 4, [&](size_t done, size_t total) {
    EXPECT_EQ(total, jobs.size());
    seen.push_back(done);
  });
  ASSERT_EQ(seen.size(), jobs.size());
  for (size_t i = 0; i < seen.size(); ++i) EXPECT_EQ(seen[i], i + 1);
  ASSERT_EQ(failures.size(), 6u);  // 3, 10, 17, 24, 31, 38
  for (size_t k = 0; k < failures.size(); ++k) {
    EXPECT_EQ(failures[k].input, PathOf("missing.wav"));
    EXPECT_EQ(failures[k].code, kInputOpenError);
  }
  EXPECT_EQ(Read(PathOf("out5.mlw")), Read(PathOf("out6.mlw")));
  EXPECT_EQ(fs::file_size(PathOf("out0.mlw")), ResampledLength(3000, 22050, 8000));
}

// Long signals of every kind, including full-scale noise, clipping squares, steady levels
// and small noise, which drive the coders' limits, saturation and tone detection.
std::vector<int16_t> HardSignal(std::mt19937& rng) {
  std::vector<int16_t> signal;
  const std::vector<int16_t> speech = SpeechLike(8000, 200000, 99);
  signal.insert(signal.end(), speech.begin(), speech.end());
  for (int i = 0; i < 200000; ++i) signal.push_back(static_cast<int16_t>(rng()));
  for (int i = 0; i < 100000; ++i) signal.push_back(i / 37 % 2 == 0 ? 32767 : -32768);
  for (const int level : {32767, -32768, 0, 1, -1, 12000})
    signal.insert(signal.end(), 60000, static_cast<int16_t>(level));
  for (int i = 0; i < 100000; ++i) signal.push_back(static_cast<int16_t>(i * 7 % 65536 - 32768));
  for (int i = 0; i < 100000; ++i)
    signal.push_back(static_cast<int16_t>(static_cast<int>(rng() % 64) - 32));
  // Tones, whose ends reset the predictor.
  for (int tone = 0; tone < 40; ++tone) {
    const double step = 0.05 + 0.07 * tone;
    for (int i = 0; i < 3000; ++i)
      signal.push_back(static_cast<int16_t>(std::lround(9000.0 * std::sin(step * i))));
    for (int i = 0; i < 500; ++i)
      signal.push_back(static_cast<int16_t>(static_cast<int>(rng() % 20001) - 10000));
  }
  return signal;
}

}  // namespace

// The streaming conversion's own G.726 32 encoder and OKI decoder against the library's
// coders that the whole-signal calls use.
TEST(StreamCoders, OwnCodersGiveTheLibrarysBitsOnLongSignals) {
  std::mt19937 rng(20261124);
  const std::vector<int16_t> signal = HardSignal(rng);

  StreamEncoder encoder(kRhetorex32);
  Bytes bytes;
  for (size_t at = 0; at < signal.size(); at += 4099) {
    encoder.Encode(std::span(signal).subspan(at, std::min<size_t>(4099, signal.size() - at)),
                   bytes);
  }
  encoder.Finish(bytes);
  const Bytes library = Encode(kRhetorex32, signal);
  ASSERT_EQ(bytes.size(), library.size());
  EXPECT_TRUE(bytes == library)
      << "first difference at byte "
      << std::mismatch(bytes.begin(), bytes.end(), library.begin()).first - bytes.begin();

  Bytes codewords(300000);
  for (uint8_t& b : codewords) b = static_cast<uint8_t>(rng());
  codewords.insert(codewords.end(), 50000, 0x77);  // the largest steps, up to the clipping
  codewords.insert(codewords.end(), 50000, 0xFF);
  codewords.insert(codewords.end(), 50000, 0x00);
  for (const int format : {kOki32, kOki24}) {
    StreamDecoder decoder(format);
    std::vector<int16_t> samples;
    for (size_t at = 0; at < codewords.size(); at += 8191) {
      decoder.Decode(
          std::span(codewords).subspan(at, std::min<size_t>(8191, codewords.size() - at)), samples);
    }
    EXPECT_TRUE(samples == Decode(format, codewords)) << format;
  }
}

// Both G.726 32 coders, the vector one where this processor has it, against the library's
// bits, fed in blocks of uneven (even) lengths.
TEST(StreamCoders, BothG726CodersGiveTheLibrarysBits) {
  std::mt19937 rng(7);
  const std::vector<int16_t> signal = HardSignal(rng);
  const Bytes library = Encode(kRhetorex32, signal);
  for (const bool portable : {true, false}) {
    if (!portable && !G726Encoder32::HasVectorCoder()) {
      std::cout << "this processor has no AVX2: the vector coder is not tried\n";
      continue;
    }
    G726Encoder32 encoder(portable);
    Bytes bytes(signal.size() / 2);
    size_t at = 0;
    for (size_t block = 2; at < signal.size(); block = block * 3 % 8190 + 2) {
      const size_t n = std::min(block, signal.size() - at);
      encoder.Encode(signal.data() + at, n, bytes.data() + at / 2);
      at += n;
    }
    EXPECT_TRUE(bytes == library)
        << (portable ? "portable" : "vector") << ": first difference at byte "
        << std::mismatch(bytes.begin(), bytes.end(), library.begin()).first - bytes.begin();
  }
}
