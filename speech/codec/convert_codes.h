// The result codes of the speech conversion call, as the conversion messages number them.
#pragma once

#include <cstdint>

namespace kq::speech {

enum ConvertCode : int16_t {
  kConvertOk = 0,
  kNoInputName = 1,       // no input file name given
  kInputOpenError = 2,    // the input file cannot be opened
  kInputReadError = 3,    // the input file cannot be read
  kOutputOpenError = 4,   // the output file cannot be created
  kOutputWriteError = 5,  // the output file cannot be written
  kBadInputFormat = 6,
  kBadOutputFormat = 7,
  kBadInputRate = 8,
  kBadOutputRate = 9,
  kWaveNoHeader = 10,        // no RIFF WAVE header, or no complete "fmt " chunk
  kWaveNotPcm = 11,          // format tag other than 1
  kWaveBadBits = 12,         // neither 8 nor 16 bits a sample
  kWaveNotMono = 13,         // more or fewer than one channel
  kWaveBadRate = 14,         // not 8000, 11025, 22050 or 44100 Hz
  kWaveDataOffset = 15,      // a chunk runs past the end of the file before the data
  kWaveDataUnreadable = 16,  // the data chunk holds fewer bytes than its size says
  kWaveFactMismatch = 17,    // a "fact" chunk that disagrees with the data
  kWaveNoData = 18,          // no "data" chunk
  kWaveNoDataSize = 19,      // a "data" chunk without its size, or of size 0
};

}  // namespace kq::speech
