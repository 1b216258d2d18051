#include "ui/qt/text_binding.h"

#include <QKeyEvent>
#include <algorithm>

#include "ui/qt/cp1252.h"

namespace ui::qt {

DeleteResult ForwardDelete(const std::string& text, int selStart, int selLength) {
  std::string out = text;
  const int size = static_cast<int>(text.size());
  if (selStart < 0 || selStart > size) return {out, std::clamp(selStart, 0, size)};
  if (selLength > 0) {
    out.erase(static_cast<size_t>(selStart), static_cast<size_t>(selLength));
  } else if (selStart < size) {
    out.erase(static_cast<size_t>(selStart), 1);
  }
  return {out, selStart};
}

TextBinding::TextBinding(TextBox& box, QWidget* parent)
    : ControlBinding(box, new QLineEdit(parent)),
      box_(box),
      edit_(static_cast<QLineEdit*>(widget())) {
  edit_->setContextMenuPolicy(Qt::NoContextMenu);  // its paste and undo bypass the model
  edit_->setDragEnabled(false);
  edit_->setAcceptDrops(false);
  QObject::connect(edit_, &QLineEdit::cursorPositionChanged, this, [this] { ReportSelection(); });
  QObject::connect(edit_, &QLineEdit::selectionChanged, this, [this] { ReportSelection(); });
  // Nothing but the model writes the text: anything else is put back at once.
  QObject::connect(edit_, &QLineEdit::textEdited, this, [this] { Refresh(); });
  Refresh();
}

void TextBinding::ReportSelection() {
  if (syncing_) return;
  int start = edit_->cursorPosition();
  int length = 0;
  if (edit_->hasSelectedText()) {
    start = edit_->selectionStart();
    length = static_cast<int>(edit_->selectedText().size());
  }
  if (start == box_.SelStart() && length == box_.SelLength()) return;
  syncing_ = true;
  box_.SetSelection(start, length);
  syncing_ = false;
}

void TextBinding::Sync(const Change& change) {
  ControlBinding::Sync(change);
  if (syncing_) return;
  syncing_ = true;
  const QString text = ToQt(box_.Text());
  if (edit_->text() != text) edit_->setText(text);
  edit_->setReadOnly(box_.Locked());
  edit_->setMaxLength(box_.MaxLength() > 0 ? box_.MaxLength() : 32767);
  if (box_.SelLength() > 0) {
    edit_->setSelection(box_.SelStart(), box_.SelLength());
  } else {
    edit_->setCursorPosition(box_.SelStart());
  }
  syncing_ = false;
}

bool TextBinding::OtherKey(int keyCode, int, QKeyEvent&) {
  if (keyCode != 46) return false;  // moves of the caret are the widget's
  if (box_.Locked()) return true;
  // Delete types no character: KeyDown, then the text changes and Change is raised.
  const DeleteResult r = ForwardDelete(box_.Text(), box_.SelStart(), box_.SelLength());
  box_.SetText(r.text);
  box_.SetSelection(r.caret, 0);
  return true;
}

}  // namespace ui::qt
