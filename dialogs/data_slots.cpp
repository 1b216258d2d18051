#include "dialogs/data_slots.h"

#include "dialogs/services.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

void SetUpVarSlot(ui::ComboBox& combo, const VarSlot& slot) {
  if (slot.readAs == -1) combo.SetStyle(ui::ComboBox::Style::DropdownList);
  combo.SetWidth(2400);
  ui::ComboBox* c = &combo;
  const int keys = slot.keys;
  combo.OnKeyPress = [c, keys](int& k) {
    if (keys < 0) {
      if (k == 13) k = 0;
    } else {
      LegalInput(*c, keys, k);
    }
  };
}

void FillVarSlot(ui::ComboBox& combo, const VarSlot& slot, const VarRef& value) {
  GetListBoxVar(slot.showLong, slot.showDouble, slot.showString, combo, value);
}

bool ReadVarSlot(ui::ComboBox& combo, const VarSlot& slot, VarRef& v) {
  // Only a list entry can stand in a variable-only slot: nothing to check.
  if (slot.readAs == -1) return AssignListBoxVar(combo, -1, v);
  if (AssignListBoxVar(combo, slot.readAs, v)) return true;
  return Refuse(combo);
}

bool Refuse(ui::Control& control) {
  control.SetFocus();
  ui::platform().Beep();
  return false;
}

std::string VarName(const VarRef& v) {
  return RTrimZ(View(v.VarRefName));
}

}  // namespace kq
