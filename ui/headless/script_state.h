// The script runner's view of controls: the `state` events of `show` for a control or a
// form, the label by which a control is named in events, why a person could not use a
// control, and choosing a folder in a disk list as a person does.
#pragma once

#include <string>

#include "ui/headless/json.h"
#include "ui/model/control.h"

namespace ui {

class Form;

// The control's name, with its index for a control array: "cboVar(2)".
std::string ControlLabel(const Control& c);
// The state event of a control: caption, text, value, items ... as its kind has them.
Json ControlState(const Control& c);
// The state event of a form: caption, visibility and the control with the focus.
Json FormState(const Form& f);

// Why a person could not use the control (disabled, invisible, under a disabled menu or
// frame), or empty when they could.
std::string RefusalOf(const Control& c);

// Drive, directory and file lists.
bool IsDiskList(ControlKind kind);
// Points a disk list at a folder as a person choosing it does; the run-time error of a
// folder that cannot be read, or 0.
int ChooseFolder(Control& c, const std::string& folder);

}  // namespace ui
