#include "dialogs/prompt_parts.h"

#include "dialogs/data_slots.h"
#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/text.h"

namespace kq {

std::string HangupParm(int32_t disableHangup) {
  return " DHD=" + NameRow(YesNoNames, disableHangup);
}

void SetUpLabelCombo(ui::ComboBox& combo) {
  combo.SetWidth(2400);
  ui::ComboBox* c = &combo;
  combo.OnKeyPress = [c](int& k) { LegalLabelKey(*c, k); };
}

void SetUpSecondsBox(ui::TextBox& box, int maxLength) {
  box.SetMaxLength(maxLength);
  box.SetWidth(600);
  ui::TextBox* b = &box;
  box.OnKeyPress = [b](int& k) { LegalInput(*b, 3, k); };
}

int32_t SecondsIn(const ui::TextBox& box, int32_t highest) {
  const std::string text = Trim(box.Text());
  if (text.empty()) return -1;
  const double value = Val(text);
  if (value < 0 || value > highest) return -1;
  return static_cast<int32_t>(value);
}

void TerminateClick(FuncDialog& dialog, const ui::CheckBox& terminate) {
  const bool own = terminate.Value() == 0;
  if (!own) dialog.txtLabel.SetText("");
  dialog.lblLabel.SetEnabled(own);
  dialog.txtLabel.SetEnabled(own);
}

std::string SecondsTermParm(int32_t seconds, int32_t terminate) {
  return Str(int64_t{seconds}) + "sec. Term=" + NameRow(YesNoNames, terminate);
}

}  // namespace kq
