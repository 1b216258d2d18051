#include "ui/model/controls.h"

#include "ui/model/form.h"

namespace ui {

Label::Label(Form& parent, std::string name, std::string caption, int index)
    : Control(parent, ControlKind::Label, std::move(name), index) {
  SetCaption(std::move(caption));
}

CommandButton::CommandButton(Form& parent, std::string name, std::string caption, int index)
    : Control(parent, ControlKind::CommandButton, std::move(name), index) {
  SetCaption(std::move(caption));
}

void CommandButton::UserKey(int keyAscii) {
  // Enter and the space bar press a button that has the focus.
  const int key = RaiseKeyPress(keyAscii);
  if (key == 13 || key == 32) UserClick();
}

TextBox::TextBox(Form& parent, std::string name, int index)
    : Control(parent, ControlKind::TextBox, std::move(name), index) {}

void TextBox::SetText(std::string text) {
  if (edit_.Assign(std::move(text))) {
    Notify();
    RaiseChange();
  }
}

void TextBox::SetSelection(int start, int length) {
  edit_.Select(start, length);
  Notify();
}

void TextBox::SelectAll() {
  edit_.SelectAll();
  Notify();
}

void TextBox::UserKey(int keyAscii) {
  const int key = RaiseKeyPress(keyAscii);
  if (key == 0 || locked_) return;
  if (edit_.Insert(key)) {
    Notify();
    RaiseChange();
  }
}

CheckBox::CheckBox(Form& parent, std::string name, std::string caption, int index)
    : Control(parent, ControlKind::CheckBox, std::move(name), index) {
  SetCaption(std::move(caption));
}

void CheckBox::SetValue(int value) {
  if (value == value_) return;
  value_ = value;
  Notify();
  RaiseClick();
}

void CheckBox::UserClick() {
  SetValue(value_ == 0 ? 1 : 0);
}

void CheckBox::UserKey(int keyAscii) {
  if (RaiseKeyPress(keyAscii) == 32) UserClick();
}

OptionButton::OptionButton(Form& parent, std::string name, std::string caption, int index)
    : Control(parent, ControlKind::OptionButton, std::move(name), index) {
  SetCaption(std::move(caption));
}

void OptionButton::SetValue(bool value) {
  if (value) {
    for (Control* c : Parent().Controls()) {
      if (c != this && c->Kind() == ControlKind::OptionButton && c->Container() == Container()) {
        auto* other = static_cast<OptionButton*>(c);
        if (other->value_) {
          other->value_ = false;
          other->Notify();
        }
      }
    }
  }
  const bool changed = value != value_;
  value_ = value;
  if (changed) Notify();
  if (value) RaiseClick();
}

void OptionButton::UserClick() {
  SetValue(true);
}

void OptionButton::UserKey(int keyAscii) {
  RaiseKeyPress(keyAscii);
}

Frame::Frame(Form& parent, std::string name, std::string caption, int index)
    : Control(parent, ControlKind::Frame, std::move(name), index) {
  SetCaption(std::move(caption));
}

void Frame::Place(Control& control, int row, int column, int rowSpan, int columnSpan) {
  control.SetContainer(this);
  layout_.Add(control, row, column, rowSpan, columnSpan);
}

}  // namespace ui
