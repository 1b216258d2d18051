// List box and combo box: items, selection, sorting that reports NewIndex.
#pragma once

#include <string>
#include <vector>

#include "ui/model/control.h"
#include "ui/model/text_control.h"

namespace ui {

// Case-insensitive order of the sorted lists, over Windows-1252 text.
int CompareNoCase(const std::string& a, const std::string& b);

// The items that both list kinds hold.
class ItemList {
 public:
  int ListCount() const { return static_cast<int>(items_.size()); }
  const std::string& List(int i) const;  // an index out of range reads as empty
  int NewIndex() const { return newIndex_; }

 protected:
  // Returns the index the item went to.
  int InsertItem(std::string text, int index, bool sorted);
  std::vector<std::string> items_;
  int newIndex_ = -1;
};

class ListBox : public Control, public ItemList {
 public:
  enum class MultiSelect { None = 0, Simple = 1, Extended = 2 };
  ListBox(Form& parent, std::string name, int index = -1);

  bool Sorted() const { return sorted_; }
  void SetSorted(bool s) { sorted_ = s; }
  MultiSelect Multi() const { return multi_; }
  void SetMultiSelect(MultiSelect m) { multi_ = m; }
  int Columns() const { return columns_; }
  void SetColumns(int c) { columns_ = c; }
  // Tab stops in dialog units.
  const std::vector<int>& TabStops() const { return tabStops_; }
  void SetTabStops(std::vector<int> stops);

  void AddItem(std::string text, int index = -1);
  // Inserts a run of items at index in one move (unsorted lists), as that many AddItem
  // calls at index, index + 1, ... would; NewIndex is the last one's.
  void InsertItems(int index, std::vector<std::string> items);
  void RemoveItem(int index);
  void Clear();
  void SetList(int index, std::string text);  // replaces the text of one item
  // Replaces all items at once (bulk edits of long lists); no selection, ListIndex -1.
  void ReplaceAll(std::vector<std::string> items);
  const std::vector<std::string>& Items() const { return items_; }

  // The item with the focus; -1 none. Setting it selects the item and raises Click.
  int ListIndex() const { return listIndex_; }
  void SetListIndex(int index);
  bool Selected(int index) const;
  // In a multi-select list this also moves ListIndex to the item when selecting.
  void SetSelected(int index, bool selected);
  int SelCount() const;
  std::vector<int> SelectedIndexes() const;

  void UserClick() override;  // clicks the item with the focus
  // A person's click on item i: in an extended list it becomes the only selection.
  void UserSelect(int index);

 protected:
  // For the lists that fill themselves (the file list).
  ListBox(Form& parent, ControlKind kind, std::string name, int index);

 private:
  bool sorted_ = false;
  MultiSelect multi_ = MultiSelect::None;
  int columns_ = 0;
  std::vector<int> tabStops_;
  std::vector<char> selected_;
  int listIndex_ = -1;
};

class ComboBox : public Control, public ItemList {
 public:
  enum class Style { DropdownCombo = 0, SimpleCombo = 1, DropdownList = 2 };
  ComboBox(Form& parent, std::string name, int index = -1);

  Style GetStyle() const { return style_; }
  void SetStyle(Style s) { style_ = s; }
  bool Sorted() const { return sorted_; }
  void SetSorted(bool s) { sorted_ = s; }

  void AddItem(std::string text, int index = -1);
  void RemoveItem(int index);
  void Clear();  // also empties the text

  int ListIndex() const { return listIndex_; }
  // Selects item index (Text follows) and raises Click; -1 clears the choice.
  void SetListIndex(int index);

  const std::string& Text() const { return edit_.Text(); }
  // Editable combo: the item with exactly that text becomes selected, or ListIndex -1.
  // Drop-down list: selects the item with that text. Raises Change when the text differs.
  void SetText(std::string text);
  int SelStart() const { return edit_.SelStart(); }
  int SelLength() const { return edit_.SelLength(); }
  void SetSelection(int start, int length) { edit_.Select(start, length); }
  void SelectAll() { edit_.SelectAll(); }
  int MaxLength() const { return edit_.MaxLength(); }
  void SetMaxLength(int n) { edit_.SetMaxLength(n); }

  void UserKey(int keyAscii) override;
  // A person picks item i from the drop-down.
  void UserSelect(int index);

 private:
  void MatchTextToItem();
  Style style_ = Style::DropdownCombo;
  bool sorted_ = false;
  TextState edit_;
  int listIndex_ = -1;
};

}  // namespace ui
