// The simple controls: label, command button, text box, check box, option button, frame.
#pragma once

#include <string>
#include <vector>

#include "ui/model/control.h"
#include "ui/model/layout.h"
#include "ui/model/text_control.h"

namespace ui {

class Label : public Control {
 public:
  Label(Form& parent, std::string name, std::string caption, int index = -1);
};

class CommandButton : public Control {
 public:
  CommandButton(Form& parent, std::string name, std::string caption, int index = -1);
  // The default button answers Enter anywhere on the form, the cancel button Escape.
  bool Default() const { return default_; }
  void SetDefault(bool d) { default_ = d; }
  bool Cancel() const { return cancel_; }
  void SetCancel(bool c) { cancel_ = c; }
  void UserKey(int keyAscii) override;

 private:
  bool default_ = false;
  bool cancel_ = false;
};

class TextBox : public Control {
 public:
  TextBox(Form& parent, std::string name, int index = -1);
  const std::string& Text() const { return edit_.Text(); }
  // Raises Change when the text differs.
  void SetText(std::string text);
  int MaxLength() const { return edit_.MaxLength(); }
  void SetMaxLength(int n) { edit_.SetMaxLength(n); }
  int SelStart() const { return edit_.SelStart(); }
  int SelLength() const { return edit_.SelLength(); }
  void SetSelection(int start, int length);
  void SelectAll();
  bool Locked() const { return locked_; }
  void SetLocked(bool l) { locked_ = l; }
  void UserKey(int keyAscii) override;

 private:
  TextState edit_;
  bool locked_ = false;
};

class CheckBox : public Control {
 public:
  CheckBox(Form& parent, std::string name, std::string caption, int index = -1);
  int Value() const { return value_; }  // 0 unchecked, 1 checked
  // Raises Click when the value changes, as the original toolkit did.
  void SetValue(int value);
  void UserClick() override;  // toggles
  void UserKey(int keyAscii) override;

 private:
  int value_ = 0;
};

class OptionButton : public Control {
 public:
  OptionButton(Form& parent, std::string name, std::string caption, int index = -1);
  bool Value() const { return value_; }
  // Setting true clears the other options of the same container and raises Click.
  void SetValue(bool value);
  void UserClick() override;
  void UserKey(int keyAscii) override;

 private:
  bool value_ = false;
};

class Frame : public Control {
 public:
  Frame(Form& parent, std::string name, std::string caption, int index = -1);
  // The frame's own grid; adding a control here makes the frame its container.
  void Place(Control& control, int row, int column, int rowSpan = 1, int columnSpan = 1);
  const Layout& layout() const { return layout_; }

 private:
  Layout layout_;
};

}  // namespace ui
