#include "ui/model/scroll_bar.h"

#include <algorithm>

namespace ui {

HScrollBar::HScrollBar(Form& parent, std::string name, int index)
    : Control(parent, ControlKind::ScrollBar, std::move(name), index) {}

void HScrollBar::SetRange(int min, int max) {
  min_ = min;
  max_ = std::max(min, max);
  value_ = std::clamp(value_, min_, max_);
  Notify();
}

void HScrollBar::SetValue(int value) {
  value = std::clamp(value, min_, max_);
  if (value == value_) return;
  value_ = value;
  Notify();
  RaiseChange();
}

}  // namespace ui
