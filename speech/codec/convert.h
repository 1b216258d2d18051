// The speech conversion call and the table of speech formats, their file extensions and
// the Convert dialog's captions.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kq::speech {

// Converts the speech file `inputName`, in format `inputFormat`, into `outputName` in
// format `outputFormat`. The rates are in kHz: 8, 11 (11025 Hz), 22 (22050 Hz) or 44
// (44100 Hz). A WAVE input carries its own rate and a board format has its fixed one; the
// output rate sets the rate of a WAVE output. Input is resampled to the output's rate.
// Returns 0, or the code of the conversion message for the first fault found: 1 to 5 the
// files, 6 and 7 the formats, 8 and 9 the rates, 10 to 19 the input WAVE file. The work
// goes a block at a time, so memory does not grow with the file, and the output is written
// durably: on any fault the output file is left as it was and no temporary file remains.
int16_t Convert(const char* inputName, int16_t inputFormat, int16_t inputRate,
                const char* outputName, int16_t outputFormat, int16_t outputRate);

// The input is read this many bytes at a time.
inline constexpr size_t kConvertBlockBytes = 128 * 1024;

// For tests: the next conversion's input cannot be read beyond `afterBytes` bytes, like a
// drive that fails in the middle of a file.
void InjectConvertReadFault(uint64_t afterBytes);

// The file patterns of the speech dialogs.
inline constexpr const char* kWaveFilePattern = "*.wav";
inline constexpr const char* kVoiceFilePattern = "*.vox;*.lin;*.r32;*.r24;*.o32;*.o24;*.alw;*.mlw";
// The listening dialog's pattern: "*.024" with a zero, so OKI 24K files are not listed.
inline constexpr const char* kListenFilePattern =
    "*.wav;*.vox;*.lin;*.r32;*.r24;*.o32;*.024;*.alw;*.mlw";

// The number the reverse map gives for a name whose extension is not a speech format.
inline constexpr int kIllegalSpeechFormat = 10;

// The target extension of a format ("R32", "MLW", ...); empty for 4, 5 and any other.
std::string_view SpeechFileExt(int format);

// The Convert dialog's caption for a format; empty for a number that is no format.
std::string_view ConvertCaption(int format);

// The format of a file by the last three characters of its name, case ignored: "VOX"
// gives `voxFormat` (the format chosen in the menu), an unknown one kIllegalSpeechFormat.
int SpeechFormatOfFile(std::string_view fileName, int voxFormat);

}  // namespace kq::speech
