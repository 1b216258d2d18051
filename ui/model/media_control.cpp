#include "ui/model/media_control.h"

#include "ui/platform/platform.h"

namespace ui {

namespace {

constexpr std::array<const char*, kMediaButtons> kButtonNames = {
    "Prev", "Next", "Play", "Pause", "Back", "Step", "Stop", "Record", "Eject"};
constexpr int kNotifySuccessful = 1;

}  // namespace

const char* MediaButtonName(MediaButton b) {
  return kButtonNames[static_cast<int>(b)];
}

int MediaButtonOfName(const std::string& name) {
  for (int i = 0; i < kMediaButtons; ++i) {
    if (name == kButtonNames[i]) return i;
  }
  return -1;
}

MMControl::MMControl(Form& parent, std::string name, int index)
    : Control(parent, ControlKind::MediaControl, std::move(name), index) {}

MMControl::~MMControl() = default;

MediaDevice& MMControl::Device() {
  if (!device_) {
    device_ = platform().CreateMediaDevice();
    device_->onStatus = [this] {
      if (OnStatusUpdate) OnStatusUpdate();
    };
  }
  return *device_;
}

void MMControl::ReleaseDevice() {
  if (device_ && device_->IsOpen()) device_->Close();
  device_.reset();
}

void MMControl::SetCommand(const std::string& command) {
  command_ = command;
  MediaDevice& d = Device();
  error_ = 0;
  if (command == "Open") {
    if (d.IsOpen()) d.Close();
    error_ = d.Open(deviceType_, fileName_);
  } else if (command == "Close" || command == "Eject") {
    d.Close();
  } else if (command == "Play") {
    error_ = d.Play();
  } else if (command == "Record") {
    error_ = d.Record();
  } else if (command == "Stop" || command == "Pause") {
    error_ = d.Stop();
  } else if (command == "Save") {
    error_ = d.Save(fileName_);
  } else if (command == "Seek") {
    error_ = d.Seek(from_);
  } else if (command == "Prev") {
    error_ = d.Seek(0);
  } else if (command == "Next") {
    error_ = d.Seek(d.Length());
  } else if (command == "Back" || command == "Step") {
    const int32_t step = command == "Back" ? -100 : 100;
    error_ = d.Seek(d.Position() + step);
  }
  Notify();
  if (notify_ && OnDone) OnDone(kNotifySuccessful);
}

int MMControl::Mode() const {
  if (!device_ || !device_->IsOpen()) return mciModeNotOpen;
  if (device_->Recording()) return mciModeRecord;
  if (device_->Playing()) return mciModePlay;
  return mciModeStop;
}

int32_t MMControl::Position() const {
  return device_ ? device_->Position() : 0;
}
int32_t MMControl::Length() const {
  return device_ ? device_->Length() : 0;
}

void MMControl::SetButtonEnabled(MediaButton b, bool e) {
  buttons_[Slot(b)].enabled = e;
  Notify();
}

void MMControl::SetButtonVisible(MediaButton b, bool v) {
  buttons_[Slot(b)].visible = v;
  Notify();
}

bool MMControl::ButtonUsable(MediaButton b) const {
  return Control::Usable() && ButtonEnabled(b) && ButtonVisible(b);
}

bool MMControl::UserPress(MediaButton b) {
  if (!ButtonUsable(b)) return false;
  bool cancel = false;
  if (OnButtonClick) OnButtonClick(b, cancel);
  if (!cancel) SetCommand(MediaButtonName(b));
  return true;
}

}  // namespace ui
