// The horizontal scroll bar as a QScrollBar.
#pragma once

#include "ui/model/scroll_bar.h"
#include "ui/qt/control_binding.h"

class QScrollBar;

namespace ui::qt {

class ScrollBinding : public ControlBinding {
 public:
  ScrollBinding(HScrollBar& control, QWidget* parent);

 protected:
  void Sync(const Change& change) override;

 private:
  HScrollBar& bar_;
  QScrollBar* widget_;
};

}  // namespace ui::qt
