// The media control as a row of push buttons, one per visible button of the model.
#pragma once

#include <array>

#include "ui/model/media_control.h"
#include "ui/qt/control_binding.h"

class QPushButton;

namespace ui::qt {

class MediaBinding : public ControlBinding {
 public:
  MediaBinding(MMControl& control, QWidget* parent);

 protected:
  void Sync(const Change& change) override;

 private:
  MMControl& media_;
  std::array<QPushButton*, kMediaButtons> buttons_{};
};

}  // namespace ui::qt
