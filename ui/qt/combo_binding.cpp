#include "ui/qt/combo_binding.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>

#include "ui/qt/cp1252.h"
#include "ui/qt/text_binding.h"

namespace ui::qt {

ComboBinding::ComboBinding(ComboBox& combo, QWidget* parent)
    : ControlBinding(combo, new QComboBox(parent)), box_(combo) {
  QComboBox* c = this->combo();
  const bool editable = combo.GetStyle() != ComboBox::Style::DropdownList;
  c->setEditable(editable);
  c->setInsertPolicy(QComboBox::NoInsert);
  c->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  if (editable) {
    c->setCompleter(nullptr);
    QLineEdit* edit = c->lineEdit();
    edit->setContextMenuPolicy(Qt::NoContextMenu);
    edit->setDragEnabled(false);
    edit->setAcceptDrops(false);
    QObject::connect(edit, &QLineEdit::cursorPositionChanged, this, [this] { ReportSelection(); });
    QObject::connect(edit, &QLineEdit::selectionChanged, this, [this] { ReportSelection(); });
    QObject::connect(edit, &QLineEdit::textEdited, this, [this] { SyncText(); });
  }
  c->installEventFilter(this);
  QObject::connect(c, &QComboBox::activated, this, [this](int index) {
    if (syncing_) return;
    if (box_.Usable()) box_.UserSelect(index);
    Refresh();
  });
  Refresh();
}

bool ComboBinding::EditsText() const {
  return box_.GetStyle() != ComboBox::Style::DropdownList;
}

QString ComboBinding::SelectedText() const {
  return combo()->lineEdit() ? combo()->lineEdit()->selectedText() : QString();
}

bool ComboBinding::eventFilter(QObject* watched, QEvent* event) {
  if (watched == combo() && event->type() == QEvent::Wheel) return true;  // no silent picks
  return ControlBinding::eventFilter(watched, event);
}

void ComboBinding::ReportSelection() {
  QLineEdit* edit = combo()->lineEdit();
  if (syncing_ || !edit) return;
  int start = edit->cursorPosition();
  int length = 0;
  if (edit->hasSelectedText()) {
    start = edit->selectionStart();
    length = static_cast<int>(edit->selectedText().size());
  }
  if (start == box_.SelStart() && length == box_.SelLength()) return;
  box_.SetSelection(start, length);
}

bool ComboBinding::OtherKey(int keyCode, int shift, QKeyEvent&) {
  if (keyCode == 38 || keyCode == 40) {
    if (shift & 4) {  // Alt+Down opens the list
      combo()->showPopup();
      return true;
    }
    const int count = box_.ListCount();
    if (count == 0) return true;
    const int target = std::clamp(box_.ListIndex() + (keyCode == 40 ? 1 : -1), 0, count - 1);
    if (target != box_.ListIndex()) box_.UserSelect(target);
    return true;
  }
  if (keyCode == 115) {  // F4
    combo()->showPopup();
    return true;
  }
  if (keyCode == 46 && EditsText()) {
    const DeleteResult r = ForwardDelete(box_.Text(), box_.SelStart(), box_.SelLength());
    box_.SetText(r.text);
    box_.SetSelection(r.caret, 0);
    SyncText();
    return true;
  }
  // Caret moves are the edit line's; nothing else changes a drop-down list.
  if (!EditsText()) return true;
  return !(keyCode == 37 || keyCode == 39 || keyCode == 35 || keyCode == 36);
}

void ComboBinding::SyncItems(const Change& change) {
  QComboBox* c = combo();
  switch (change.what) {
    case Change::What::ItemsInserted:
      for (int i = 0; i < change.count; ++i) {
        c->insertItem(change.first + i, ToQt(box_.List(change.first + i)));
      }
      break;
    case Change::What::ItemsRemoved:
      for (int i = 0; i < change.count; ++i) c->removeItem(change.first);
      break;
    case Change::What::ItemsChanged:
      for (int i = 0; i < change.count; ++i) {
        c->setItemText(change.first + i, ToQt(box_.List(change.first + i)));
      }
      break;
    default: {
      c->clear();
      QStringList items;
      for (int i = 0; i < box_.ListCount(); ++i) items << ToQt(box_.List(i));
      c->addItems(items);
      break;
    }
  }
}

void ComboBinding::SyncText() {
  const bool old = syncing_;
  syncing_ = true;
  QComboBox* c = combo();
  if (c->currentIndex() != box_.ListIndex()) c->setCurrentIndex(box_.ListIndex());
  if (QLineEdit* edit = c->lineEdit()) {
    const QString text = ToQt(box_.Text());
    if (edit->text() != text) edit->setText(text);
    if (box_.MaxLength() > 0) edit->setMaxLength(box_.MaxLength());
    if (box_.SelLength() > 0) {
      edit->setSelection(box_.SelStart(), box_.SelLength());
    } else {
      edit->setCursorPosition(box_.SelStart());
    }
  }
  syncing_ = old;
}

void ComboBinding::Sync(const Change& change) {
  const bool old = syncing_;
  syncing_ = true;
  if (change.what == Change::What::Property) {
    ControlBinding::Sync(change);
    if (combo()->count() != box_.ListCount()) SyncItems(Change{Change::What::ItemsReset});
  } else if (change.what != Change::What::Selection) {
    SyncItems(change);
  }
  SyncText();
  syncing_ = old;
}

}  // namespace ui::qt
