#include "ui/qt/button_bindings.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include "ui/qt/cp1252.h"

namespace ui::qt {

QString StripMnemonic(const QString& caption) {
  QString out;
  out.reserve(caption.size());
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption[i] == u'&') {
      if (i + 1 < caption.size() && caption[i + 1] == u'&') out.append(u'&');
      ++i;
      if (i < caption.size() && caption[i] != u'&') out.append(caption[i]);
      continue;
    }
    out.append(caption[i]);
  }
  return out;
}

// ---- Label

LabelBinding::LabelBinding(Label& label, QWidget* parent)
    : ControlBinding(label, new QLabel(parent)) {
  this->label()->setTextFormat(Qt::PlainText);
  Refresh();
}

void LabelBinding::SetBuddy(QWidget* buddy) {
  hasBuddy_ = buddy != nullptr;
  label()->setBuddy(buddy);
  Refresh();
}

void LabelBinding::Sync(const Change& change) {
  ControlBinding::Sync(change);
  QString caption = ToQt(control().Caption());
  caption.replace(QChar(u'\t'), QStringLiteral("    "));
  label()->setText(hasBuddy_ ? caption : StripMnemonic(caption));
}

// ---- Buttons

namespace {

QAbstractButton* MakeButton(Control& control, QWidget* parent) {
  switch (control.Kind()) {
    case ControlKind::CheckBox:
      return new QCheckBox(parent);
    case ControlKind::OptionButton: {
      auto* b = new QRadioButton(parent);
      b->setAutoExclusive(false);  // the model clears the other options of the frame
      return b;
    }
    default: {
      auto* b = new QPushButton(parent);
      b->setAutoDefault(false);
      return b;
    }
  }
}

bool ModelChecked(const Control& c) {
  if (c.Kind() == ControlKind::CheckBox) return static_cast<const CheckBox&>(c).Value() != 0;
  if (c.Kind() == ControlKind::OptionButton) return static_cast<const OptionButton&>(c).Value();
  return false;
}

}  // namespace

ButtonBinding::ButtonBinding(Control& control, QWidget* parent)
    : ControlBinding(control, MakeButton(control, parent)) {
  button()->setCheckable(control.Kind() != ControlKind::CommandButton);
  QObject::connect(button(), &QAbstractButton::clicked, this, [this] {
    Refresh();  // the widget's own toggle does not count
    if (this->control().Usable()) this->control().UserClick();
  });
  Refresh();
}

void ButtonBinding::Sync(const Change& change) {
  ControlBinding::Sync(change);
  button()->setText(ToQt(control().Caption()));
  if (control().Kind() == ControlKind::CommandButton) {
    static_cast<QPushButton*>(button())->setDefault(
        static_cast<const CommandButton&>(control()).Default());
  } else {
    button()->setChecked(ModelChecked(control()));
  }
}

// ---- Frame

FrameBinding::FrameBinding(Frame& frame, QWidget* parent)
    : ControlBinding(frame, new QGroupBox(parent)) {
  Refresh();
}

void FrameBinding::Sync(const Change& change) {
  ControlBinding::Sync(change);
  box()->setTitle(StripMnemonic(ToQt(control().Caption())));
}

}  // namespace ui::qt
