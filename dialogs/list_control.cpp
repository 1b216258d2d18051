#include "dialogs/list_control.h"

namespace kq {

void ListControl::Clear() {
  if (combo_) {
    combo_->Clear();
  } else {
    list_->Clear();
  }
}

void ListControl::AddItem(std::string text) {
  if (combo_) {
    combo_->AddItem(std::move(text));
  } else {
    list_->AddItem(std::move(text));
  }
}

int ListControl::ListCount() const {
  return combo_ ? combo_->ListCount() : list_->ListCount();
}

const std::string& ListControl::List(int index) const {
  return combo_ ? combo_->List(index) : list_->List(index);
}

int ListControl::NewIndex() const {
  return combo_ ? combo_->NewIndex() : list_->NewIndex();
}

int ListControl::ListIndex() const {
  return combo_ ? combo_->ListIndex() : list_->ListIndex();
}

void ListControl::SetListIndex(int index) {
  if (combo_) {
    combo_->SetListIndex(index);
  } else {
    list_->SetListIndex(index);
  }
}

std::string ListControl::Text() const {
  if (combo_) return combo_->Text();
  return list_->List(list_->ListIndex());
}

void ListControl::SetText(const std::string& text) {
  if (combo_) {
    combo_->SetText(text);
    return;
  }
  for (int i = 0; i < list_->ListCount(); ++i) {
    if (list_->List(i) == text) {
      list_->SetListIndex(i);
      return;
    }
  }
}

const std::string& TextControl::Text() const {
  return box_ ? box_->Text() : combo_->Text();
}

int TextControl::SelLength() const {
  return box_ ? box_->SelLength() : combo_->SelLength();
}

}  // namespace kq
