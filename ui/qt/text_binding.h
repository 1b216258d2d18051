// A text box as a QLineEdit. Typing goes through the model; caret and selection moves
// made in the widget are reported to the model, which keeps SelStart and SelLength.
#pragma once

#include <QLineEdit>

#include "ui/model/controls.h"
#include "ui/qt/control_binding.h"

namespace ui::qt {

class TextBinding : public ControlBinding {
 public:
  TextBinding(TextBox& box, QWidget* parent);
  QLineEdit* edit() const { return edit_; }

 protected:
  void Sync(const Change& change) override;
  bool OtherKey(int keyCode, int shift, QKeyEvent& e) override;
  bool EditsText() const override { return true; }
  QString SelectedText() const override { return edit_->selectedText(); }

 private:
  void ReportSelection();
  TextBox& box_;
  QLineEdit* edit_;
};

// The forward delete of an edit line, as the edit control does it: the selection, or
// the character behind the caret. Returns the new text and caret.
struct DeleteResult {
  std::string text;
  int caret;
};
DeleteResult ForwardDelete(const std::string& text, int selStart, int selLength);

}  // namespace ui::qt
