// The progress bar as a QProgressBar.
#pragma once

#include "ui/model/progress_bar.h"
#include "ui/qt/control_binding.h"

class QProgressBar;

namespace ui::qt {

class ProgressBinding : public ControlBinding {
 public:
  ProgressBinding(ProgressBar& control, QWidget* parent);

 protected:
  void Sync(const Change& change) override;

 private:
  ProgressBar& bar_;
  QProgressBar* widget_;
};

}  // namespace ui::qt
