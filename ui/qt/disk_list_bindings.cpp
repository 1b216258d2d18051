#include "ui/qt/disk_list_bindings.h"

#include "ui/platform/platform.h"
#include "ui/qt/cp1252.h"

namespace ui::qt {

// ---- DriveBinding

DriveBinding::DriveBinding(DriveListBox& drive, QWidget* parent)
    : ControlBinding(drive, new QComboBox(parent)), drive_(drive) {
  QObject::connect(combo(), &QComboBox::activated, this, [this](int index) {
    if (syncing_ || !drive_.Usable()) return;
    if (drive_.UserPath(drive_.List(index)) != 0) ui::platform().Beep();
    Refresh();
  });
  Refresh();
}

void DriveBinding::Sync(const Change& change) {
  ControlBinding::Sync(change);
  syncing_ = true;
  QComboBox* c = combo();
  c->clear();
  for (int i = 0; i < drive_.ListCount(); ++i) c->addItem(ToQt(drive_.List(i)));
  c->setCurrentIndex(drive_.ListIndex());
  syncing_ = false;
}

// ---- DirBinding

DirBinding::DirBinding(DirListBox& dir, QWidget* parent)
    : ControlBinding(dir, new QListWidget(parent)), dir_(dir) {
  QListWidget* l = list();
  l->setSelectionMode(QAbstractItemView::SingleSelection);
  QObject::connect(l, &QListWidget::currentRowChanged, this, [this](int row) {
    if (syncing_ || row < 0 || !dir_.Usable()) return;
    dir_.SetListIndex(row - dir_.Depth());
  });
  QObject::connect(l, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem* item) {
    if (syncing_ || !dir_.Usable()) return;
    const int index = list()->row(item) - dir_.Depth();
    if (dir_.UserOpen(index) != 0) ui::platform().Beep();
    dir_.RaiseDblClick();
    Refresh();
  });
  Refresh();
}

void DirBinding::Sync(const Change& change) {
  ControlBinding::Sync(change);
  syncing_ = true;
  QListWidget* l = list();
  if (change.what != Change::What::Selection) {
    l->clear();
    const int depth = dir_.Depth();
    for (int i = -depth; i < dir_.ListCount(); ++i) {
      std::string name = dir_.List(i);
      if (name != "/") name = name.substr(name.rfind('/') + 1);
      const int level = i < 0 ? depth + i : depth;
      l->addItem(QString(level * 2, QLatin1Char(' ')) + ToQt(name));
    }
  }
  l->setCurrentRow(RowOf(dir_.ListIndex()));
  syncing_ = false;
}

}  // namespace ui::qt
