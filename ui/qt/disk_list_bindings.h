// The drive list as a QComboBox and the directory list as a QListWidget: the open folder
// and its ancestors, indented, above the folders inside it. A double click opens a folder,
// as the person's choice through the model; a folder that cannot be read beeps and stays
// closed. The file list is a list box and is bound as one.
#pragma once

#include <QComboBox>
#include <QListWidget>

#include "ui/model/file_controls.h"
#include "ui/qt/control_binding.h"

namespace ui::qt {

class DriveBinding : public ControlBinding {
 public:
  DriveBinding(DriveListBox& drive, QWidget* parent);
  QComboBox* combo() const { return static_cast<QComboBox*>(widget()); }

 protected:
  void Sync(const Change& change) override;

 private:
  DriveListBox& drive_;
};

class DirBinding : public ControlBinding {
 public:
  DirBinding(DirListBox& dir, QWidget* parent);
  QListWidget* list() const { return static_cast<QListWidget*>(widget()); }
  // The row of the widget that shows entry index of the model (-Depth to ListCount - 1).
  int RowOf(int index) const { return index + dir_.Depth(); }

 protected:
  void Sync(const Change& change) override;

 private:
  DirListBox& dir_;
};

}  // namespace ui::qt
