#include "ui/qt/media_binding.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace ui::qt {

namespace {

QWidget* MakeRow(QWidget* parent) {
  auto* row = new QWidget(parent);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(2);
  return row;
}

}  // namespace

MediaBinding::MediaBinding(MMControl& control, QWidget* parent)
    : ControlBinding(control, MakeRow(parent)), media_(control) {
  for (int i = 0; i < kMediaButtons; ++i) {
    const auto b = static_cast<MediaButton>(i);
    auto* button = new QPushButton(QString::fromLatin1(MediaButtonName(b)), widget());
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::NoFocus);
    widget()->layout()->addWidget(button);
    QObject::connect(button, &QPushButton::clicked, this, [this, b] {
      if (attached()) media_.UserPress(b);
    });
    buttons_[i] = button;
  }
  Refresh();
}

void MediaBinding::Sync(const Change& change) {
  ControlBinding::Sync(change);
  for (int i = 0; i < kMediaButtons; ++i) {
    const auto b = static_cast<MediaButton>(i);
    buttons_[i]->setVisible(media_.ButtonVisible(b));
    buttons_[i]->setEnabled(media_.ButtonEnabled(b));
  }
}

}  // namespace ui::qt
