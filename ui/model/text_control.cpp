#include "ui/model/text_control.h"

#include <algorithm>

namespace ui {

bool TextState::Assign(std::string text) {
  const bool changed = text != text_;
  text_ = std::move(text);
  selStart_ = static_cast<int>(text_.size());
  selLength_ = 0;
  return changed;
}

void TextState::Select(int start, int length) {
  const int size = static_cast<int>(text_.size());
  selStart_ = std::clamp(start, 0, size);
  selLength_ = std::clamp(length, 0, size - selStart_);
}

bool TextState::Insert(int keyAscii) {
  if (keyAscii == 8) {  // Backspace
    if (selLength_ > 0) {
      text_.erase(selStart_, selLength_);
    } else if (selStart_ > 0) {
      text_.erase(--selStart_, 1);
    } else {
      return false;
    }
    selLength_ = 0;
    return true;
  }
  // Control keys put in nothing, except a tab, which a field without a filter keeps.
  if ((keyAscii < 32 && keyAscii != '\t') || keyAscii > 255) return false;
  const int size = static_cast<int>(text_.size());
  if (maxLength_ > 0 && size - selLength_ >= maxLength_) return false;
  text_.replace(selStart_, selLength_, 1, static_cast<char>(keyAscii));
  ++selStart_;
  selLength_ = 0;
  return true;
}

}  // namespace ui
