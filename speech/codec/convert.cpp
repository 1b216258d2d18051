#include "speech/codec/convert.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <bit>
#include <cctype>
#include <cerrno>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include "speech/codec/block_queue.h"
#include "speech/codec/codecs.h"
#include "speech/codec/convert_codes.h"
#include "speech/codec/resample.h"
#include "speech/codec/wave_file.h"
#include "ui/platform/durable_file.h"

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

struct ReadFault {
  std::mutex mutex;
  uint64_t afterBytes = UINT64_MAX;
} g_readFault;

// The bytes a read may take before an injected fault, UINT64_MAX for no fault; takes it.
uint64_t TakeReadFault() {
  std::lock_guard lock(g_readFault.mutex);
  return std::exchange(g_readFault.afterBytes, UINT64_MAX);
}

// The input file, read in blocks and decoded to samples at its rate.
class SampleReader {
 public:
  ~SampleReader() {
    if (fd_ >= 0) ::close(fd_);
  }

  int Open(const char* name, int format) {
    fd_ = ::open(name, O_RDONLY | O_CLOEXEC);
    if (fd_ < 0) return kInputOpenError;
    faultAfter_ = TakeReadFault();
    struct stat st {};
    if (::fstat(fd_, &st) != 0) return kInputReadError;
    if (S_ISDIR(st.st_mode)) return kInputReadError;
    const auto size = static_cast<uint64_t>(st.st_size);
    format_ = format;
    if (format != kWave) {
      rate_ = FormatRate(format);
      left_ = size;
      count_ = DecodedLength(format, size);
      decoder_ = std::make_unique<StreamDecoder>(format);
      return kConvertOk;
    }
    WaveData data;
    const auto read = [this](uint64_t at, uint8_t* buffer, size_t n) {
      return ReadAt(at, buffer, n) == n;
    };
    if (const int code = LocateWaveData(size, read, data); code != kConvertOk) return code;
    bits_ = data.format.bitsPerSample;
    rate_ = static_cast<int>(data.format.samplesPerSec);
    at_ = data.offset;
    left_ = data.length;
    count_ = bits_ == 8 ? data.length : data.length / 2;
    return kConvertOk;
  }

  int Rate() const { return rate_; }
  uint64_t Count() const { return count_; }

  // The next block of samples into `out`; empty at the end of the input.
  int Next(std::vector<int16_t>& out) {
    out.clear();
    if (left_ == 0) return kConvertOk;
    const auto want = static_cast<size_t>(std::min<uint64_t>(left_, buffer_.size()));
    const size_t got = ReadAt(at_, buffer_.data(), want);
    if (readFailed_) return kInputReadError;
    // The file ended early although its size said otherwise: it shrank under us.
    if (got < want) return format_ == kWave ? kWaveDataUnreadable : kInputReadError;
    at_ += got;
    left_ -= got;
    const std::span<const uint8_t> bytes(buffer_.data(), got);
    if (format_ == kWave) {
      AppendWaveSamples(bytes, bits_, out);
    } else {
      decoder_->Decode(bytes, out);
    }
    return kConvertOk;
  }

 private:
  // Reads up to `n` bytes at `at`; fewer at the end of the file or after a failure.
  size_t ReadAt(uint64_t at, uint8_t* buffer, size_t n) {
    size_t done = 0;
    while (done < n) {
      if (at + done >= faultAfter_) {
        readFailed_ = true;
        break;
      }
      const size_t ask =
          static_cast<size_t>(std::min<uint64_t>(n - done, faultAfter_ - (at + done)));
      const ssize_t r = ::pread(fd_, buffer + done, ask, static_cast<off_t>(at + done));
      if (r < 0 && errno == EINTR) continue;
      if (r < 0) readFailed_ = true;
      if (r <= 0) break;
      done += static_cast<size_t>(r);
    }
    return done;
  }

  int fd_ = -1;
  int format_ = kWave;
  int bits_ = 16;
  int rate_ = 0;
  uint64_t at_ = 0;
  uint64_t left_ = 0;
  uint64_t count_ = 0;
  uint64_t faultAfter_ = UINT64_MAX;
  bool readFailed_ = false;
  std::unique_ptr<StreamDecoder> decoder_;
  std::vector<uint8_t> buffer_ = std::vector<uint8_t>(kConvertBlockBytes);
};

// The output file, written durably: the target changes only when all went well.
class ByteWriter {
 public:
  int Open(const char* name) { return file_.Open(name) == 0 ? kConvertOk : kOutputOpenError; }
  int Put(const std::vector<uint8_t>& bytes) { return Put(bytes.data(), bytes.size()); }
  int Put(const void* data, size_t n) {
    if (n == 0) return kConvertOk;
    return file_.Write(data, n) == 0 ? kConvertOk : kOutputWriteError;
  }
  int Commit() { return file_.Commit() == 0 ? kConvertOk : kOutputWriteError; }

 private:
  ui::DurableFile file_;
};

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

  SampleReader reader;
  if (const int code = reader.Open(inputName, inputFormat); code != kConvertOk) {
    return static_cast<int16_t>(code);
  }
  const int rate = outputFormat == kWave ? RateOfKhz(outputRate) : FormatRate(outputFormat);
  ByteWriter writer;
  if (const int code = writer.Open(outputName); code != kConvertOk) {
    return static_cast<int16_t>(code);
  }
  std::unique_ptr<StreamEncoder> encoder;
  std::vector<uint8_t> bytes;
  if (outputFormat == kWave) {
    bytes = WaveHeader(ResampledLength(reader.Count(), reader.Rate(), rate), rate);
  } else {
    encoder = std::make_unique<StreamEncoder>(outputFormat);
  }
  // One thread reads and decodes, one resamples, this one encodes and writes. The
  // resampling is the longest stage for most formats and has a core of its own; where the
  // encoding is the longest (G.726), the reading stays with the resampling instead, so that
  // the encoding has the other core to itself.
  const bool readApart = outputFormat != kRhetorex32 && outputFormat != kRhetorex24;
  BlockQueue read;
  BlockQueue resampled;
  std::thread reading;
  if (readApart) {
    reading = std::thread([&read, &reader] {
      for (;;) {
        std::vector<int16_t> in;
        if (const int code = reader.Next(in); code != kConvertOk) return read.Finish(code);
        if (in.empty()) return read.Finish(kConvertOk);
        if (!read.Push(std::move(in))) return;
      }
    });
  }
  std::thread resampling([&read, &resampled, &reader, rate, readApart] {
    StreamResampler resampler(reader.Rate(), rate, reader.Count());
    std::vector<int16_t> in;
    int code = kConvertOk;
    for (;;) {
      if (readApart) {
        if (!read.Pop(in)) {
          code = read.Code();
          break;
        }
      } else if (code = reader.Next(in); code != kConvertOk || in.empty()) {
        break;
      }
      std::vector<int16_t> out;
      resampler.Process(in, out);
      if (!out.empty() && !resampled.Push(std::move(out))) return read.Stop();
    }
    if (code != kConvertOk) return resampled.Finish(code);
    std::vector<int16_t> out;
    resampler.Finish(out);
    if (!out.empty() && !resampled.Push(std::move(out))) return read.Stop();
    resampled.Finish(kConvertOk);
  });
  int code = writer.Put(bytes);
  bytes.clear();
  std::vector<int16_t> block;
  while (code == kConvertOk && resampled.Pop(block)) {
    if (encoder) {
      encoder->Encode(block, bytes);
    } else if constexpr (std::endian::native == std::endian::little) {
      code = writer.Put(block.data(), 2 * block.size());  // the samples are the file's bytes
      continue;
    } else {
      bytes.resize(2 * block.size());
      uint8_t* to = bytes.data();
      for (const int16_t v : block) {
        *to++ = static_cast<uint8_t>(v);
        *to++ = static_cast<uint8_t>(static_cast<uint16_t>(v) >> 8);
      }
    }
    code = writer.Put(bytes);
    bytes.clear();
  }
  resampled.Stop();
  read.Stop();
  resampling.join();
  if (reading.joinable()) reading.join();
  if (code == kConvertOk) code = resampled.Code();
  if (code == kConvertOk && encoder) {
    encoder->Finish(bytes);
    code = writer.Put(bytes);
  }
  if (code == kConvertOk) code = writer.Commit();
  return static_cast<int16_t>(code);
}

void InjectConvertReadFault(uint64_t afterBytes) {
  std::lock_guard lock(g_readFault.mutex);
  g_readFault.afterBytes = afterBytes;
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

}  // namespace kq::speech
