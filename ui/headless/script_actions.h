// The actions of a script line on a control of a form (Click, DblClick, Text, Type, Key,
// KeyDown, Select, Selected, SelectAll, Focus, Value, Path, Press).
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ui/headless/script_parser.h"

namespace ui {

class Control;
class Form;

// The script line is wrong (an unknown action, a wrong argument): the run ends.
struct WrongAction {
  std::string message;
};

// Reports a line that the program does not take; the script goes on.
using RefuseAction = std::function<void(const std::string& reason)>;
// Actions the window model does not carry (Path, Press) on a control; false when the
// control has no such action.
using ExtraAction =
    std::function<bool(Control& control, const std::string& action, const std::string& argument)>;

// Performs `action` with the line's tokens (the target first) on `control`. Throws
// WrongAction when the line is wrong.
void PerformAction(Form& form, Control& control, const std::string& action,
                   const std::vector<Token>& tokens, const RefuseAction& refused,
                   const ExtraAction& extra);

}  // namespace ui
