// The SVG view as a scrollable picture drawn by Qt SVG: a click on one of the view's
// elements goes to the model as UserClickElement; the marked element gets a frame.
#pragma once

#include "ui/model/svg_view.h"
#include "ui/qt/control_binding.h"

class QScrollArea;

namespace ui::qt {

class SvgPicture;

class SvgBinding : public ControlBinding {
 public:
  SvgBinding(SvgView& control, QWidget* parent);

 protected:
  void Sync(const Change& change) override;

 private:
  SvgView& view_;
  QScrollArea* area_;
  SvgPicture* picture_;
  std::string loaded_;  // the document the picture holds
};

}  // namespace ui::qt
