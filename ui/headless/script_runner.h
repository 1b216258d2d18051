// The script runner: drives a program on the headless platform from a text script, one
// line as one action of a person, and prints one JSON object a line for everything that
// person would see. It knows forms and controls only through the window model; what is
// particular to the program (its main window, its `dump`, controls the model does not
// know) comes in through hooks.
#pragma once

#include <functional>
#include <istream>
#include <ostream>
#include <string>

#include "ui/headless/json.h"

namespace ui {

class Control;
class HeadlessPlatform;

struct ScriptOptions {
  std::string settingsFile;  // loaded before start-up and written back at the end
  std::string dataDir;       // the program's data folder
  std::string homeDir;       // the user's folder and the temporary files
  int screenWidth = 28800;   // twips
  int screenHeight = 16200;
};

struct ScriptHooks {
  // Starts the program as the desktop does: its main window created, loaded and shown.
  std::function<void()> start;
  // The state event of `dump` (without its "event" field).
  std::function<Json()> dump;
  // Actions the window model does not carry (Path, Press) on a control; false when the
  // control has no such action.
  std::function<bool(Control& control, const std::string& action, const std::string& argument)>
      extra;
  // Whether a name is one of the program's forms; a line naming any other form is a wrong
  // script. Unset: every name may be a form, and one not shown only refuses the line.
  std::function<bool(const std::string& form)> knownForm;
  // Ends the program: its windows are dropped. Runs before the platform goes away.
  std::function<void()> stop;
};

// Exit status of a script run.
inline constexpr int kScriptOk = 0;
inline constexpr int kScriptProgramEnded = 2;
inline constexpr int kScriptWrong = 3;
// The script does not fit what the program did: an answer that names no button of the box
// it meets, a file reply where no file dialog comes, a target that names no control.
inline constexpr int kScriptMismatch = 4;

// Runs the script (UTF-8) on a headless platform of its own and writes the events (UTF-8
// JSON lines) to out. No platform is installed afterwards.
int RunScript(std::istream& script, std::ostream& out, const ScriptOptions& options,
              const ScriptHooks& hooks);

// The same on a platform the caller owns and has configured (tests that look at the
// event log); the platform is installed for the run and stays installed.
int RunScriptOn(HeadlessPlatform& platform, std::istream& script, const ScriptHooks& hooks);

}  // namespace ui
