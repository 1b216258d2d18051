// The variable slots of the data function dialogs: which variables a slot's combo lists,
// how OK reads it back and which keys it takes, and the format lists of the date and time
// dialogs.
#pragma once

#include <cstdint>
#include <string>

#include "document/records.h"
#include "ui/model/list_controls.h"

namespace kq {

struct VarSlot {
  bool showLong;
  bool showDouble;
  bool showString;
  int readAs;  // data type of AssignListBoxVar; -1 a variable of the list only
  int keys;    // data type of LegalInput on a key; -1 no filter
};

// Style, width and key handler of a slot's combo. A slot that only takes a variable is a
// drop-down list: its own list is the only source.
void SetUpVarSlot(ui::ComboBox& combo, const VarSlot& slot);
void FillVarSlot(ui::ComboBox& combo, const VarSlot& slot, const VarRef& value);
// Reads the slot into v. A typed value that does not suit the slot puts the focus on the
// combo and beeps: false, v untouched.
bool ReadVarSlot(ui::ComboBox& combo, const VarSlot& slot, VarRef& v);

// Refuses a value: the focus on the control and a beep. Always false.
bool Refuse(ui::Control& control);

// The name of a variable, or the bare text of a constant, as a DisplayLine shows it.
std::string VarName(const VarRef& v);

// Fills a list combo with the rows of a name table as they stand and selects row index.
template <size_t Rows, size_t Width>
void FillNameList(ui::ComboBox& combo, const char (&table)[Rows][Width], int32_t index) {
  combo.Clear();
  for (const auto& row : table) combo.AddItem(std::string(row, Width));
  if (index >= 0 && index < static_cast<int32_t>(Rows)) combo.SetListIndex(index);
}

// Row index of a name table as it stands, with its padding; empty for an index outside.
template <size_t Rows, size_t Width>
std::string NameRow(const char (&table)[Rows][Width], int32_t index) {
  if (index < 0 || index >= static_cast<int32_t>(Rows)) return "";
  return std::string(table[index], Width);
}

}  // namespace kq
