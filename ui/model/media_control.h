// The media control: a row of buttons (Prev, Next, Play, Pause, Back, Step, Stop, Record,
// Eject) over a media device of the platform. Code drives it by setting DeviceType and
// FileName and giving a Command; a person presses its buttons.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "ui/model/control.h"
#include "ui/platform/media.h"

namespace ui {

// The modes of the device, with the values of the original control.
inline constexpr int mciModeNotOpen = 524;
inline constexpr int mciModeStop = 525;
inline constexpr int mciModePlay = 526;
inline constexpr int mciModeRecord = 527;

enum class MediaButton { Prev, Next, Play, Pause, Back, Step, Stop, Record, Eject };
inline constexpr int kMediaButtons = 9;

// "Prev" ... "Eject"; the button of a name, -1 for none.
const char* MediaButtonName(MediaButton b);
int MediaButtonOfName(const std::string& name);

class MMControl : public Control {
 public:
  MMControl(Form& parent, std::string name, int index = -1);
  ~MMControl() override;

  const std::string& DeviceType() const { return deviceType_; }
  void SetDeviceType(std::string type) { deviceType_ = std::move(type); }
  const std::string& FileName() const { return fileName_; }
  void SetFileName(std::string name) { fileName_ = std::move(name); }
  bool NotifyOn() const { return notify_; }
  void SetNotify(bool n) { notify_ = n; }
  bool Wait() const { return wait_; }
  void SetWait(bool w) { wait_ = w; }
  bool Shareable() const { return shareable_; }
  void SetShareable(bool s) { shareable_ = s; }
  int32_t From() const { return from_; }
  // The position the next "Seek" goes to, in milliseconds.
  void SetFrom(int32_t ms) { from_ = ms; }
  const std::string& Command() const { return command_; }
  // Closes the device and lets the platform's player go now rather than with the control:
  // for a control of a window that outlives the desktop program's application object.
  void ReleaseDevice();
  // Runs a command: "Open", "Close", "Play", "Record", "Save", "Seek", "Stop", "Prev",
  // "Next", "Pause", "Back", "Step", "Eject". Error tells how it went.
  void SetCommand(const std::string& command);
  int Error() const { return error_; }
  int Mode() const;
  int32_t Position() const;
  int32_t Length() const;

  bool ButtonEnabled(MediaButton b) const { return buttons_[Slot(b)].enabled; }
  void SetButtonEnabled(MediaButton b, bool e);
  bool ButtonVisible(MediaButton b) const { return buttons_[Slot(b)].visible; }
  void SetButtonVisible(MediaButton b, bool v);

  // A person presses a button: ButtonClick may cancel the button's own command, which
  // otherwise runs. False when the button cannot be pressed.
  bool UserPress(MediaButton b);
  bool ButtonUsable(MediaButton b) const;

  std::function<void(MediaButton, bool& cancel)> OnButtonClick;
  std::function<void()> OnStatusUpdate;
  std::function<void(int notifyCode)> OnDone;

 private:
  static int Slot(MediaButton b) { return static_cast<int>(b); }
  MediaDevice& Device();
  struct Button {
    bool enabled = true;
    bool visible = true;
  };
  std::array<Button, kMediaButtons> buttons_{};
  std::unique_ptr<MediaDevice> device_;
  std::string deviceType_;
  std::string fileName_;
  std::string command_;
  bool notify_ = true;
  bool wait_ = false;
  bool shareable_ = false;
  int32_t from_ = 0;
  int error_ = 0;
};

}  // namespace ui
