#include "ui/model/list_controls.h"

#include <algorithm>
#include <iterator>

namespace ui {

namespace {

unsigned char FoldCase(unsigned char c) {
  if (c >= 'A' && c <= 'Z') return c + 32;
  if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return c + 32;  // Latin-1 capitals
  switch (c) {
    case 0x8A:
      return 0x9A;  // S caron
    case 0x8C:
      return 0x9C;  // OE
    case 0x8E:
      return 0x9E;  // Z caron
    case 0x9F:
      return 0xFF;  // Y diaeresis
    default:
      return c;
  }
}

const std::string kEmpty;

}  // namespace

int CompareNoCase(const std::string& a, const std::string& b) {
  const size_t n = std::min(a.size(), b.size());
  for (size_t i = 0; i < n; ++i) {
    const int ca = FoldCase(static_cast<unsigned char>(a[i]));
    const int cb = FoldCase(static_cast<unsigned char>(b[i]));
    if (ca != cb) return ca < cb ? -1 : 1;
  }
  if (a.size() == b.size()) return 0;
  return a.size() < b.size() ? -1 : 1;
}

const std::string& ItemList::List(int i) const {
  if (i < 0 || i >= ListCount()) return kEmpty;
  return items_[i];
}

int ItemList::InsertItem(std::string text, int index, bool sorted) {
  int at;
  if (sorted) {
    // After the last item that sorts before or equal to the new one.
    auto pos = std::upper_bound(
        items_.begin(), items_.end(), text,
        [](const std::string& t, const std::string& item) { return CompareNoCase(t, item) < 0; });
    at = static_cast<int>(pos - items_.begin());
  } else {
    at = (index < 0 || index > ListCount()) ? ListCount() : index;
  }
  items_.insert(items_.begin() + at, std::move(text));
  newIndex_ = at;
  return at;
}

// ---- ListBox

ListBox::ListBox(Form& parent, std::string name, int index)
    : Control(parent, ControlKind::ListBox, std::move(name), index) {}

ListBox::ListBox(Form& parent, ControlKind kind, std::string name, int index)
    : Control(parent, kind, std::move(name), index) {}

void ListBox::SetTabStops(std::vector<int> stops) {
  tabStops_ = std::move(stops);
  Notify();
}

void ListBox::AddItem(std::string text, int index) {
  const int at = InsertItem(std::move(text), index, sorted_);
  selected_.insert(selected_.begin() + at, 0);
  if (listIndex_ >= at) ++listIndex_;
  Notify(Change::What::ItemsInserted, at, 1);
}

void ListBox::InsertItems(int index, std::vector<std::string> items) {
  if (items.empty()) return;
  const int at = (index < 0 || index > ListCount()) ? ListCount() : index;
  const int n = static_cast<int>(items.size());
  items_.insert(items_.begin() + at, std::make_move_iterator(items.begin()),
                std::make_move_iterator(items.end()));
  selected_.insert(selected_.begin() + at, items.size(), 0);
  newIndex_ = at + n - 1;
  if (listIndex_ >= at) listIndex_ += n;
  Notify(Change::What::ItemsInserted, at, n);
}

void ListBox::RemoveItem(int index) {
  if (index < 0 || index >= ListCount()) return;
  items_.erase(items_.begin() + index);
  selected_.erase(selected_.begin() + index);
  if (listIndex_ == index) {
    listIndex_ = -1;
  } else if (listIndex_ > index) {
    --listIndex_;
  }
  Notify(Change::What::ItemsRemoved, index, 1);
}

void ListBox::Clear() {
  items_.clear();
  selected_.clear();
  listIndex_ = -1;
  Notify(Change::What::ItemsReset);
}

void ListBox::SetList(int index, std::string text) {
  if (index < 0 || index >= ListCount()) return;
  items_[index] = std::move(text);
  Notify(Change::What::ItemsChanged, index, 1);
}

void ListBox::ReplaceAll(std::vector<std::string> items) {
  items_ = std::move(items);
  selected_.assign(items_.size(), 0);
  listIndex_ = -1;
  Notify(Change::What::ItemsReset);
}

void ListBox::SetListIndex(int index) {
  if (index < -1 || index >= ListCount()) return;
  if (multi_ == MultiSelect::None) {
    std::fill(selected_.begin(), selected_.end(), 0);
  }
  listIndex_ = index;
  if (index >= 0) selected_[index] = 1;
  // In a multi-select list only the one item changed its mark.
  const bool one = multi_ != MultiSelect::None && index >= 0;
  Notify(Change::What::Selection, one ? index : 0, one ? 1 : 0);
  RaiseClick();
}

bool ListBox::Selected(int index) const {
  return index >= 0 && index < ListCount() && selected_[index] != 0;
}

void ListBox::SetSelected(int index, bool selected) {
  if (index < 0 || index >= ListCount()) return;
  if (multi_ == MultiSelect::None) {
    if (selected) {
      SetListIndex(index);
    } else if (listIndex_ == index) {
      selected_[index] = 0;
      listIndex_ = -1;
      Notify(Change::What::Selection);
    }
    return;
  }
  selected_[index] = selected ? 1 : 0;
  if (selected) listIndex_ = index;
  Notify(Change::What::Selection, index, 1);
}

int ListBox::SelCount() const {
  return static_cast<int>(std::count(selected_.begin(), selected_.end(), 1));
}

std::vector<int> ListBox::SelectedIndexes() const {
  std::vector<int> out;
  for (int i = 0; i < ListCount(); ++i) {
    if (selected_[i]) out.push_back(i);
  }
  return out;
}

void ListBox::UserClick() {
  RaiseClick();
}

void ListBox::UserSelect(int index) {
  if (index < 0 || index >= ListCount()) return;
  std::fill(selected_.begin(), selected_.end(), 0);
  Notify(Change::What::Selection);
  SetListIndex(index);
}

// ---- ComboBox

ComboBox::ComboBox(Form& parent, std::string name, int index)
    : Control(parent, ControlKind::ComboBox, std::move(name), index) {}

void ComboBox::AddItem(std::string text, int index) {
  const int at = InsertItem(std::move(text), index, sorted_);
  if (listIndex_ >= at) ++listIndex_;
  Notify(Change::What::ItemsInserted, at, 1);
}

void ComboBox::RemoveItem(int index) {
  if (index < 0 || index >= ListCount()) return;
  items_.erase(items_.begin() + index);
  if (listIndex_ == index) {
    listIndex_ = -1;
  } else if (listIndex_ > index) {
    --listIndex_;
  }
  Notify(Change::What::ItemsRemoved, index, 1);
}

void ComboBox::Clear() {
  items_.clear();
  listIndex_ = -1;
  const bool changed = edit_.Assign("");
  Notify(Change::What::ItemsReset);
  if (changed) RaiseChange();
}

void ComboBox::SetListIndex(int index) {
  if (index < -1 || index >= ListCount()) return;
  listIndex_ = index;
  if (index >= 0) {
    edit_.Assign(items_[index]);
  } else if (style_ == Style::DropdownList) {
    edit_.Assign("");
  }
  Notify(Change::What::Selection);
  RaiseClick();
}

void ComboBox::SetText(std::string text) {
  if (style_ == Style::DropdownList) {
    for (int i = 0; i < ListCount(); ++i) {
      if (items_[i] == text) {
        SetListIndex(i);
        return;
      }
    }
    return;  // the original list refused a text it did not hold
  }
  const bool changed = edit_.Assign(std::move(text));
  MatchTextToItem();
  Notify(Change::What::Selection);
  if (changed) RaiseChange();
}

void ComboBox::MatchTextToItem() {
  listIndex_ = -1;
  for (int i = 0; i < ListCount(); ++i) {
    if (items_[i] == edit_.Text()) {
      listIndex_ = i;
      return;
    }
  }
}

void ComboBox::UserKey(int keyAscii) {
  const int key = RaiseKeyPress(keyAscii);
  if (key == 0 || style_ == Style::DropdownList) return;
  if (edit_.Insert(key)) {
    MatchTextToItem();
    Notify(Change::What::Selection);
    RaiseChange();
  }
}

void ComboBox::UserSelect(int index) {
  SetListIndex(index);
}

}  // namespace ui
