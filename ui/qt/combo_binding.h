// A combo box as a QComboBox: editable for the drop-down and simple combos, a plain
// drop-down list otherwise. Typing goes through the model as in a text box; a pick from
// the drop-down is the person's UserSelect.
#pragma once

#include <QComboBox>

#include "ui/model/list_controls.h"
#include "ui/qt/control_binding.h"

namespace ui::qt {

class ComboBinding : public ControlBinding {
 public:
  ComboBinding(ComboBox& combo, QWidget* parent);
  QComboBox* combo() const { return static_cast<QComboBox*>(widget()); }

 protected:
  void Sync(const Change& change) override;
  bool OtherKey(int keyCode, int shift, QKeyEvent& e) override;
  bool EditsText() const override;
  QString SelectedText() const override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void SyncItems(const Change& change);
  void SyncText();
  void ReportSelection();
  ComboBox& box_;
};

}  // namespace ui::qt
