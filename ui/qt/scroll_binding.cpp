#include "ui/qt/scroll_binding.h"

#include <QScrollBar>

namespace ui::qt {

ScrollBinding::ScrollBinding(HScrollBar& control, QWidget* parent)
    : ControlBinding(control, new QScrollBar(Qt::Horizontal, parent)),
      bar_(control),
      widget_(static_cast<QScrollBar*>(widget())) {
  QObject::connect(widget_, &QScrollBar::valueChanged, this, [this](int value) {
    if (attached() && !syncing_) bar_.SetValue(value);
  });
  Refresh();
}

void ScrollBinding::Sync(const Change& change) {
  ControlBinding::Sync(change);
  syncing_ = true;
  widget_->setRange(bar_.Min(), bar_.Max());
  widget_->setValue(bar_.Value());
  syncing_ = false;
}

}  // namespace ui::qt
