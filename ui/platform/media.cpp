#include "ui/platform/media.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace ui {

namespace {

uint32_t Le32(const unsigned char* p) {
  return p[0] | (p[1] << 8) | (p[2] << 16) | (static_cast<uint32_t>(p[3]) << 24);
}

}  // namespace

int32_t WaveLengthMs(const std::string& fileName) {
  std::ifstream in(fileName, std::ios::binary);
  unsigned char riff[12];
  if (!in.read(reinterpret_cast<char*>(riff), 12)) return -1;
  if (std::memcmp(riff, "RIFF", 4) != 0 || std::memcmp(riff + 8, "WAVE", 4) != 0) return -1;
  uint32_t byteRate = 0;
  unsigned char chunk[8];
  while (in.read(reinterpret_cast<char*>(chunk), 8)) {
    const uint32_t size = Le32(chunk + 4);
    if (std::memcmp(chunk, "fmt ", 4) == 0) {
      unsigned char fmt[16];
      if (size < 16 || !in.read(reinterpret_cast<char*>(fmt), 16)) return -1;
      byteRate = Le32(fmt + 8);
      in.seekg(size - 16 + (size & 1), std::ios::cur);
    } else if (std::memcmp(chunk, "data", 4) == 0) {
      if (byteRate == 0) return -1;
      return static_cast<int32_t>(uint64_t{size} * 1000 / byteRate);
    } else {
      in.seekg(size + (size & 1), std::ios::cur);
    }
  }
  return -1;
}

int MediaDevice::Open(const std::string& /*deviceType*/, const std::string& fileName) {
  const int32_t length = WaveLengthMs(fileName);
  if (length < 0) return kMediaErrorFileNotFound;
  open_ = true;
  file_ = fileName;
  position_ = 0;
  length_ = length;
  return 0;
}

void MediaDevice::Close() {
  open_ = false;
  file_.clear();
  position_ = length_ = 0;
}

// Nothing is heard: play runs to the end at once.
int MediaDevice::Play() {
  if (!open_) return kMediaErrorNotOpen;
  position_ = length_;
  if (onStatus) onStatus();
  return 0;
}

int MediaDevice::Record() {
  return open_ ? 0 : kMediaErrorNotOpen;
}

int MediaDevice::Stop() {
  return open_ ? 0 : kMediaErrorNotOpen;
}

int MediaDevice::Seek(int32_t milliseconds) {
  if (!open_) return kMediaErrorNotOpen;
  position_ = std::clamp(milliseconds, int32_t{0}, length_);
  if (onStatus) onStatus();
  return 0;
}

int MediaDevice::Save(const std::string& fileName) {
  if (!open_) return kMediaErrorNotOpen;
  std::error_code ec;
  if (std::filesystem::equivalent(file_, fileName, ec)) return 0;
  std::filesystem::copy_file(file_, fileName, std::filesystem::copy_options::overwrite_existing,
                             ec);
  return ec ? kMediaErrorCannotSave : 0;
}

}  // namespace ui
