#include "ui/qt/list_binding.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "ui/qt/cp1252.h"

namespace ui::qt {

// ---- ListBoxModel

ListBoxModel::ListBoxModel(ListBox& list, QObject* parent)
    : QAbstractListModel(parent), list_(list) {}

int ListBoxModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : list_.ListCount();
}

QVariant ListBoxModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= list_.ListCount()) return {};
  if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return ToQt(list_.List(index.row()));
  return {};
}

void ListBoxModel::Apply(const Change& change) {
  // The model list has already changed; the views are told afterwards, in one step.
  switch (change.what) {
    case Change::What::ItemsInserted:
      beginInsertRows({}, change.first, change.first + change.count - 1);
      endInsertRows();
      break;
    case Change::What::ItemsRemoved:
      beginRemoveRows({}, change.first, change.first + change.count - 1);
      endRemoveRows();
      break;
    case Change::What::ItemsChanged:
      emit dataChanged(index(change.first), index(change.first + change.count - 1));
      break;
    case Change::What::ItemsReset:
      beginResetModel();
      endResetModel();
      break;
    default:
      break;
  }
}

// ---- TabStopDelegate

std::vector<int> TabStopPixels(const std::vector<int>& dialogUnits, const QFontMetrics& fm) {
  // The average width as the system measures it: the alphabet in both cases.
  const int average = (fm.horizontalAdvance(
                           QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz")) +
                       26) /
                      52;
  std::vector<int> out;
  out.reserve(dialogUnits.size());
  for (int du : dialogUnits) out.push_back(du * average / 4);
  return out;
}

std::vector<int> TabStopDelegate::PieceStarts(const QString& text, const QFontMetrics& fm) const {
  const std::vector<int> stops = TabStopPixels(stops_, fm);
  // Without stops of its own, a list puts one every 32 dialog units.
  const int every = TabStopPixels({32}, fm).front();
  std::vector<int> starts{0};
  int x = 0;
  size_t next = 0;
  const QStringList pieces = text.split(u'\t');
  for (qsizetype i = 0; i + 1 < pieces.size(); ++i) {
    x += fm.horizontalAdvance(pieces[i]);
    while (next < stops.size() && stops[next] <= x) ++next;
    if (next < stops.size()) {
      x = stops[next++];
    } else {
      x = every > 0 ? (x / every + 1) * every : x + 1;
    }
    starts.push_back(x);
  }
  return starts;
}

void TabStopDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
  QStyleOptionViewItem opt(option);
  initStyleOption(&opt, index);
  const QString text = opt.text;
  opt.text.clear();
  const QWidget* widget = opt.widget;
  QStyle* style = widget ? widget->style() : nullptr;
  if (style) style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, widget);
  const QFontMetrics fm(opt.font);
  const std::vector<int> starts = PieceStarts(text, fm);
  const QStringList pieces = text.split(u'\t');
  painter->save();
  painter->setFont(opt.font);
  painter->setPen(opt.palette.color(opt.state & QStyle::State_Selected ? QPalette::HighlightedText
                                                                       : QPalette::Text));
  const int left = opt.rect.left() + 2;
  for (qsizetype i = 0; i < pieces.size(); ++i) {
    QRect r = opt.rect;
    r.setLeft(left + starts[static_cast<size_t>(i)]);
    painter->drawText(r, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, pieces[i]);
  }
  painter->restore();
}

QSize TabStopDelegate::sizeHint(const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
  const QFontMetrics fm(option.font);
  const QString text = index.data().toString();
  const std::vector<int> starts = PieceStarts(text, fm);
  const QString last = text.section(u'\t', -1);
  return {starts.back() + fm.horizontalAdvance(last) + 6, fm.height() + 2};
}

// ---- ListBinding

ListBinding::ListBinding(ListBox& list, QWidget* parent)
    : ControlBinding(list, new QListView(parent)), list_(list) {
  model_ = new ListBoxModel(list, this);
  delegate_ = new TabStopDelegate(this);
  QListView* v = view();
  v->setModel(model_);
  v->setItemDelegate(delegate_);
  v->setUniformItemSizes(true);
  v->setEditTriggers(QAbstractItemView::NoEditTriggers);
  v->setSelectionMode(QAbstractItemView::MultiSelection);  // the model decides what is selected
  v->setTextElideMode(Qt::ElideNone);
  v->viewport()->installEventFilter(this);
  Refresh();
}

bool ListBinding::eventFilter(QObject* watched, QEvent* event) {
  if (watched != view()->viewport()) return ControlBinding::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::Resize:
      if (list_.Columns() > 0) ApplyColumns();
      return false;
    case QEvent::MouseButtonPress: {
      auto* me = static_cast<QMouseEvent*>(event);
      if (me->button() != Qt::LeftButton) return true;
      view()->setFocus(Qt::MouseFocusReason);
      const QModelIndex idx = view()->indexAt(me->position().toPoint());
      if (idx.isValid() && list_.Usable()) Press(idx.row(), me->modifiers());
      return true;
    }
    case QEvent::MouseButtonDblClick: {
      auto* me = static_cast<QMouseEvent*>(event);
      const QModelIndex idx = view()->indexAt(me->position().toPoint());
      if (idx.isValid() && me->button() == Qt::LeftButton && list_.Usable()) list_.RaiseDblClick();
      return true;
    }
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
      return true;  // no rubber band or drag selection beside the model's
    default:
      return false;
  }
}

void ListBinding::Press(int row, Qt::KeyboardModifiers modifiers) {
  const bool extended = list_.Multi() == ListBox::MultiSelect::Extended;
  if (extended && (modifiers & Qt::ControlModifier)) {
    list_.SetSelected(row, !list_.Selected(row));
    anchor_ = row;
    list_.RaiseClick();
  } else if (extended && (modifiers & Qt::ShiftModifier) && anchor_ >= 0) {
    SelectRange(anchor_, row);
  } else if (list_.Multi() == ListBox::MultiSelect::Simple) {
    list_.SetSelected(row, !list_.Selected(row));
    anchor_ = row;
    list_.RaiseClick();
  } else {
    anchor_ = row;
    list_.UserSelect(row);
  }
}

void ListBinding::SelectRange(int from, int to) {
  const int lo = std::min(from, to), hi = std::max(from, to);
  for (int i = 0; i < list_.ListCount(); ++i) {
    const bool want = i >= lo && i <= hi;
    if (list_.Selected(i) != want) list_.SetSelected(i, want);
  }
  list_.SetSelected(to, true);  // the item with the focus
  list_.RaiseClick();
}

bool ListBinding::OtherKey(int keyCode, int shift, QKeyEvent&) {
  const int count = list_.ListCount();
  if (count == 0) return true;
  const int current = list_.ListIndex();
  const int page =
      std::max(1, view()->viewport()->height() / std::max(1, view()->sizeHintForRow(0)) - 1);
  int target;
  switch (keyCode) {
    case 38:  // Up
      target = current - 1;
      break;
    case 40:  // Down
      target = current + 1;
      break;
    case 33:  // Page Up
      target = current - page;
      break;
    case 34:  // Page Down
      target = current + page;
      break;
    case 36:  // Home
      target = 0;
      break;
    case 37:  // Left and Right move by a column in a list with columns
    case 39: {
      if (list_.Columns() <= 0) return true;
      const int rows =
          std::max(1, view()->viewport()->height() / std::max(1, view()->gridSize().height()));
      target = current + (keyCode == 39 ? rows : -rows);
      break;
    }
    case 35:  // End
      target = count - 1;
      break;
    default:
      return true;  // nothing else changes a list
  }
  target = std::clamp(target, 0, count - 1);
  if (current < 0) target = std::max(0, std::min(target, count - 1));
  if (target == current) return true;
  if (list_.Multi() == ListBox::MultiSelect::Extended && (shift & 1) && anchor_ >= 0) {
    SelectRange(anchor_, target);
  } else {
    anchor_ = target;
    list_.UserSelect(target);
  }
  return true;
}

void ListBinding::Sync(const Change& change) {
  switch (change.what) {
    case Change::What::Property:
      ControlBinding::Sync(change);
      delegate_->SetStops(list_.TabStops());
      ApplyColumns();
      view()->viewport()->update();
      break;
    case Change::What::Selection:
      SyncSelection(change);
      break;
    default:
      model_->Apply(change);
      // Inserted and removed rows move the view's selection with them; only a new set of
      // items needs the marks again.
      if (change.what == Change::What::ItemsReset) {
        anchor_ = -1;
        SyncSelection(Change{Change::What::Selection, 0, 0});
      }
      break;
  }
}

void ListBinding::ApplyColumns() {
  QListView* v = view();
  const int columns = list_.Columns();
  if (columns <= 0) {
    if (v->isWrapping()) {
      v->setWrapping(false);
      v->setGridSize({});
    }
    return;
  }
  v->setFlow(QListView::TopToBottom);
  v->setWrapping(true);
  v->setResizeMode(QListView::Adjust);
  const int row = v->fontMetrics().height() + 2;
  const QSize grid(std::max(1, v->viewport()->width() / columns), row);
  if (v->gridSize() != grid) v->setGridSize(grid);
}

void ListBinding::SyncSelection(const Change& change) {
  QItemSelectionModel* sm = view()->selectionModel();
  const int count = list_.ListCount();
  if (change.count == 1 && change.first >= 0 && change.first < count) {
    // One item changed its mark.
    const QModelIndex idx = model_->index(change.first);
    sm->select(idx, list_.Selected(change.first) ? QItemSelectionModel::Select
                                                 : QItemSelectionModel::Deselect);
  } else {
    QItemSelection selection;
    int start = -1;
    for (int i = 0; i <= count; ++i) {
      const bool on = i < count && list_.Selected(i);
      if (on && start < 0) start = i;
      if (!on && start >= 0) {
        selection.select(model_->index(start), model_->index(i - 1));
        start = -1;
      }
    }
    sm->select(selection, QItemSelectionModel::ClearAndSelect);
  }
  const int current = list_.ListIndex();
  if (current >= 0 && current < count) {
    sm->setCurrentIndex(model_->index(current), QItemSelectionModel::NoUpdate);
    view()->scrollTo(model_->index(current));
  }
}

}  // namespace ui::qt
