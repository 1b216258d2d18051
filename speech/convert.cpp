#include "speech/convert.h"

#include <cctype>
#include <cstdio>
#include <vector>

#include "document/state.h"
#include "document/text.h"
#include "speech/codecs.h"
#include "speech/convert_codes.h"
#include "speech/resample.h"
#include "speech/wave_file.h"
#include "ui/platform/platform.h"

namespace kq::speech {

namespace {

struct FormatEntry {
  int format;
  std::string_view ext;  // the target extension; empty for WAVE
  std::string_view caption;
};

constexpr FormatEntry kFormats[] = {
    {kRhetorex32, "R32", "Convert Speech Files From WAVE To Rhetorex 32Kbit/sec ADPCM"},
    {kRhetorex24, "R24", "Convert Speech Files From WAVE To Rhetorex 24Kbit/sec ADPCM"},
    {kULaw, "MLW", "Convert Speech Files From WAVE To u-Law PCM"},
    {kALaw, "ALW", "Convert Speech Files From WAVE To A-Law PCM"},
    {kWave, "", "Convert Speech Files From WAVE To Windows Wave format 8/16-bit"},
    {kLinear, "LIN", "Convert Speech Files From WAVE To Linear 128Kbit/Sec"},
    {kOki32, "O32", "Convert Speech Files From WAVE To OKI 32K ADPCM"},
    {kOki24, "O24", "Convert Speech Files From WAVE To OKI 24K ADPCM"},
};

const FormatEntry* EntryOf(int format) {
  for (const FormatEntry& e : kFormats) {
    if (e.format == format) return &e;
  }
  return nullptr;
}

// The rate in Hz of a rate argument in kHz; 0 for one that is not allowed.
int RateOfKhz(int khz) {
  switch (khz) {
    case 8:
      return 8000;
    case 11:
      return 11025;
    case 22:
      return 22050;
    case 44:
      return 44100;
    default:
      return 0;
  }
}

int ReadWhole(const char* name, std::vector<uint8_t>& bytes) {
  std::FILE* f = std::fopen(name, "rb");
  if (f == nullptr) return kInputOpenError;
  uint8_t buffer[65536];
  size_t got = 0;
  while ((got = std::fread(buffer, 1, sizeof buffer, f)) > 0) {
    bytes.insert(bytes.end(), buffer, buffer + got);
  }
  const bool failed = std::ferror(f) != 0;
  std::fclose(f);
  return failed ? kInputReadError : kConvertOk;
}

int WriteWhole(const char* name, const std::vector<uint8_t>& bytes) {
  std::FILE* f = std::fopen(name, "wb");
  if (f == nullptr) return kOutputOpenError;
  bool failed = std::fwrite(bytes.data(), 1, bytes.size(), f) != bytes.size();
  failed = std::fclose(f) != 0 || failed;
  return failed ? kOutputWriteError : kConvertOk;
}

bool Empty(const char* name) {
  return name == nullptr || *name == '\0';
}

}  // namespace

int16_t Convert(const char* inputName, int16_t inputFormat, int16_t inputRate,
                const char* outputName, int16_t outputFormat, int16_t outputRate) {
  if (Empty(inputName)) return kNoInputName;
  if (!IsSpeechFormat(inputFormat)) return kBadInputFormat;
  if (!IsSpeechFormat(outputFormat)) return kBadOutputFormat;
  if (RateOfKhz(inputRate) == 0) return kBadInputRate;
  if (RateOfKhz(outputRate) == 0) return kBadOutputRate;
  if (Empty(outputName)) return kOutputOpenError;

  std::vector<uint8_t> input;
  if (const int code = ReadWhole(inputName, input); code != kConvertOk) return code;
  Pcm pcm;
  if (inputFormat == kWave) {
    if (const int code = ParseWave(input, pcm); code != kConvertOk) return code;
  } else {
    pcm.samples = Decode(inputFormat, input);
    pcm.rate = FormatRate(inputFormat);
  }
  input = {};

  const int rate = outputFormat == kWave ? RateOfKhz(outputRate) : FormatRate(outputFormat);
  Pcm target{Resample(pcm.samples, pcm.rate, rate), rate};
  pcm = {};
  const std::vector<uint8_t> output =
      outputFormat == kWave ? WaveImage(target) : Encode(outputFormat, target.samples);
  return static_cast<int16_t>(WriteWhole(outputName, output));
}

std::string_view SpeechFileExt(int format) {
  const FormatEntry* e = EntryOf(format);
  return e == nullptr ? std::string_view{} : e->ext;
}

std::string_view ConvertCaption(int format) {
  const FormatEntry* e = EntryOf(format);
  return e == nullptr ? std::string_view{} : e->caption;
}

int SpeechFormatOfFile(std::string_view fileName, int voxFormat) {
  if (fileName.size() < 3) return kIllegalSpeechFormat;
  std::string ext(fileName.substr(fileName.size() - 3));
  for (char& c : ext) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  if (ext == "VOX") return voxFormat;
  if (ext == "WAV") return kWave;
  for (const FormatEntry& e : kFormats) {
    if (e.ext == ext) return e.format;
  }
  return kIllegalSpeechFormat;
}

std::string GetSpeechFileExt() {
  const std::string_view ext = SpeechFileExt(SpeechAudioFormat);
  if (ext.empty()) {
    ui::ProgramError("Illegal speech format = " + Str(int64_t{SpeechAudioFormat}) +
                     " in GetSpeechFileExt.");
  }
  return std::string(ext);
}

}  // namespace kq::speech
