// What the dialogs of the functions that talk to the caller share: the hang-up check box
// and its piece of the line, the label-target combos, the seconds fields, and the
// terminate-previous-sound rule.
#pragma once

#include <cstdint>
#include <string>

#include "dialogs/func_dialog.h"

namespace kq {

// " DHD=" and the row of the yes/no table ("No " or "Yes").
std::string HangupParm(int32_t disableHangup);
// A label-target combo: width and the label key filter.
void SetUpLabelCombo(ui::ComboBox& combo);
// A seconds field of maxLength digits that takes unsigned numbers only.
void SetUpSecondsBox(ui::TextBox& box, int maxLength);
// The seconds of a field when it is not empty and reads from 0 to highest; -1 otherwise.
int32_t SecondsIn(const ui::TextBox& box, int32_t highest);
// A line that terminates the previous sound function has no label of its own: checked
// disables the label and empties it, unchecked enables it.
void TerminateClick(FuncDialog& dialog, const ui::CheckBox& terminate);
// The seconds with the blank of a positive number, "sec. ", then "Term=" and yes or no.
std::string SecondsTermParm(int32_t seconds, int32_t terminate);

}  // namespace kq
