// The editable text that text boxes and editable combos share: text, caret, selection,
// maximum length, and typing that goes through KeyPress first.
#pragma once

#include <string>

namespace ui {

class TextState {
 public:
  const std::string& Text() const { return text_; }
  int SelStart() const { return selStart_; }
  int SelLength() const { return selLength_; }
  int MaxLength() const { return maxLength_; }  // 0: no limit
  void SetMaxLength(int n) { maxLength_ = n; }

  // Sets the text; the caret goes to the end. True when the text changed.
  bool Assign(std::string text);
  void Select(int start, int length);
  void SelectAll() { Select(0, static_cast<int>(text_.size())); }
  // Puts a typed key in at the caret (replacing the selection); Backspace deletes.
  // Returns true when the text changed. Honours MaxLength as the edit control does.
  bool Insert(int keyAscii);

 private:
  std::string text_;
  int selStart_ = 0;
  int selLength_ = 0;
  int maxLength_ = 0;
};

}  // namespace ui
