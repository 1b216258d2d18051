#include "ui/qt/progress_binding.h"

#include <QProgressBar>

namespace ui::qt {

ProgressBinding::ProgressBinding(ProgressBar& control, QWidget* parent)
    : ControlBinding(control, new QProgressBar(parent)),
      bar_(control),
      widget_(static_cast<QProgressBar*>(widget())) {
  Refresh();
}

void ProgressBinding::Sync(const Change& change) {
  ControlBinding::Sync(change);
  widget_->setRange(bar_.Min(), bar_.Max());
  widget_->setValue(bar_.Value());
}

}  // namespace ui::qt
