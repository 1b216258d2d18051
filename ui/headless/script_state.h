// The script runner's state printer: the `state` events of `show` for a control or a form,
// and the label by which a control is named in events.
#pragma once

#include <string>

#include "ui/headless/json.h"

namespace ui {

class Control;
class Form;

// The control's name, with its index for a control array: "cboVar(2)".
std::string ControlLabel(const Control& c);
// The state event of a control: caption, text, value, items ... as its kind has them.
Json ControlState(const Control& c);
// The state event of a form: caption, visibility and the control with the focus.
Json FormState(const Form& f);

}  // namespace ui
