// A list box as a QListView over an item model that reads the model's items in place,
// so that a list of ten thousand lines costs only the rows on the screen. The model's
// change notifications (items inserted, removed, changed, reset, selection) drive it.
// Tab stops in dialog units are honoured by the painting of the rows.
#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <QStyledItemDelegate>
#include <vector>

#include "ui/model/list_controls.h"
#include "ui/qt/control_binding.h"

namespace ui::qt {

class ListBoxModel : public QAbstractListModel {
 public:
  explicit ListBoxModel(ListBox& list, QObject* parent = nullptr);
  int rowCount(const QModelIndex& parent = QModelIndex()) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  // Tells the views what the model list did.
  void Apply(const Change& change);

 private:
  ListBox& list_;
};

// Tab stops in dialog units to pixels for a font: a dialog unit is a quarter of the
// font's average character width.
std::vector<int> TabStopPixels(const std::vector<int>& dialogUnits, const QFontMetrics& fm);

class TabStopDelegate : public QStyledItemDelegate {
 public:
  explicit TabStopDelegate(QObject* parent) : QStyledItemDelegate(parent) {}
  void SetStops(std::vector<int> dialogUnits) { stops_ = std::move(dialogUnits); }
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  // Where each tab-separated piece of a row starts, in pixels from the row's left.
  std::vector<int> PieceStarts(const QString& text, const QFontMetrics& fm) const;

 private:
  std::vector<int> stops_;
};

class ListBinding : public ControlBinding {
 public:
  ListBinding(ListBox& list, QWidget* parent);
  QListView* view() const { return static_cast<QListView*>(widget()); }
  ListBoxModel* itemModel() const { return model_; }
  TabStopDelegate* delegate() const { return delegate_; }

 protected:
  void Sync(const Change& change) override;
  bool OtherKey(int keyCode, int shift, QKeyEvent& e) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void SyncSelection(const Change& change);
  // A list with columns shows its items top to bottom in that many columns of the
  // visible width, scrolling sideways, as the original list did.
  void ApplyColumns();
  void Press(int row, Qt::KeyboardModifiers modifiers);
  void SelectRange(int from, int to);

  ListBox& list_;
  ListBoxModel* model_;
  TabStopDelegate* delegate_;
  int anchor_ = -1;
};

}  // namespace ui::qt
