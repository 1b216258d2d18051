// The few operations that the dialog services use on a list or combo, and on an editable
// text, so that one implementation of each service serves combos and list boxes alike.
// Both wrappers are references: they are passed by value and never own the control.
#pragma once

#include <string>

#include "ui/model/controls.h"
#include "ui/model/list_controls.h"

namespace kq {

class ListControl {
 public:
  ListControl(ui::ComboBox& combo) : combo_(&combo) {}  // NOLINT: implicit by design
  ListControl(ui::ListBox& list) : list_(&list) {}      // NOLINT: implicit by design

  void Clear();
  void AddItem(std::string text);
  int ListCount() const;
  const std::string& List(int index) const;
  int NewIndex() const;
  int ListIndex() const;
  void SetListIndex(int index);
  // A combo's text; a list's text is the item with the focus (empty when none).
  std::string Text() const;
  // A combo takes any text; a list selects the item with exactly that text.
  void SetText(const std::string& text);

 private:
  ui::ComboBox* combo_ = nullptr;
  ui::ListBox* list_ = nullptr;
};

// The editable text of a text box or a combo, as the key filters see it.
class TextControl {
 public:
  TextControl(ui::TextBox& box) : box_(&box) {}         // NOLINT: implicit by design
  TextControl(ui::ComboBox& combo) : combo_(&combo) {}  // NOLINT: implicit by design

  const std::string& Text() const;
  int SelLength() const;

 private:
  ui::TextBox* box_ = nullptr;
  ui::ComboBox* combo_ = nullptr;
};

}  // namespace kq
