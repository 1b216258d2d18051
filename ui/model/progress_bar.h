// A progress bar: a value between Min and Max that only code sets. It has the properties of
// the horizontal scroll bar; the Qt binding shows it as a progress bar, which a person cannot
// drag.
#pragma once

#include "ui/model/scroll_bar.h"

namespace ui {

class ProgressBar : public HScrollBar {
 public:
  using HScrollBar::HScrollBar;
};

}  // namespace ui
