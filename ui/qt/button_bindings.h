// Labels, command buttons, check boxes, option buttons and frames. A click on a button
// widget is a person's click on the model control; the widget's own idea of its check
// state is replaced by the model's right after.
#pragma once

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>

#include "ui/model/controls.h"
#include "ui/qt/control_binding.h"

namespace ui::qt {

// The caption as shown by a widget without mnemonics: "&&" is a literal ampersand and a
// single "&" marks the access key.
QString StripMnemonic(const QString& caption);

class LabelBinding : public ControlBinding {
 public:
  LabelBinding(Label& label, QWidget* parent);
  QLabel* label() const { return static_cast<QLabel*>(widget()); }
  // The label's access key moves the focus to this widget.
  void SetBuddy(QWidget* buddy);

 protected:
  void Sync(const Change& change) override;

 private:
  bool hasBuddy_ = false;
};

// Command buttons, check boxes and option buttons.
class ButtonBinding : public ControlBinding {
 public:
  ButtonBinding(Control& control, QWidget* parent);
  QAbstractButton* button() const { return static_cast<QAbstractButton*>(widget()); }

 protected:
  void Sync(const Change& change) override;
};

class FrameBinding : public ControlBinding {
 public:
  FrameBinding(Frame& frame, QWidget* parent);
  QGroupBox* box() const { return static_cast<QGroupBox*>(widget()); }

 protected:
  void Sync(const Change& change) override;
};

}  // namespace ui::qt
