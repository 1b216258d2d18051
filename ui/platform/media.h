// The media device behind a media control: wave audio opened from a file, played,
// recorded, saved, sought, with position and length in milliseconds. Each platform gives
// its own; the plain one reads the WAVE header for the length and plays nothing.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace ui {

// The error numbers a device gives (0 none).
inline constexpr int kMediaErrorNotOpen = 263;
inline constexpr int kMediaErrorFileNotFound = 275;
inline constexpr int kMediaErrorCannotSave = 286;

class MediaDevice {
 public:
  virtual ~MediaDevice() = default;
  virtual int Open(const std::string& deviceType, const std::string& fileName);
  virtual void Close();
  virtual int Play();
  virtual int Record();
  virtual int Stop();
  virtual int Seek(int32_t milliseconds);
  // Writes what the device holds (the opened file and any recording) to a file.
  virtual int Save(const std::string& fileName);
  virtual bool IsOpen() const { return open_; }
  virtual bool Playing() const { return false; }
  virtual bool Recording() const { return false; }
  virtual int32_t Position() const { return position_; }
  virtual int32_t Length() const { return length_; }
  // Called by the device when play or recording has moved on or ended.
  std::function<void()> onStatus;

 protected:
  const std::string& OpenFile() const { return file_; }
  void SetPosition(int32_t ms) { position_ = ms; }
  void SetLength(int32_t ms) { length_ = ms; }

 private:
  bool open_ = false;
  std::string file_;
  int32_t position_ = 0;
  int32_t length_ = 0;
};

// The length in milliseconds of the data of a WAVE file, -1 when it is no WAVE file.
int32_t WaveLengthMs(const std::string& fileName);

}  // namespace ui
