// `kqx script FILE|-`: the editor without a window, driven by a script.
#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <vector>

#include "ui/headless/script_runner.h"

namespace kq::cli {

// args are the words behind "script": FILE or "-", then --settings FILE, --data DIR,
// --home DIR, --screen W H. Returns the exit status (0, 2, 3; 1 for a wrong command line).
int CmdScript(const std::vector<std::string>& args, std::istream& in, std::ostream& out,
              std::ostream& err);

// The hooks that start the editor's main window, dump its state and drop it at the end.
ui::ScriptHooks EditorScriptHooks();

// The state of the document and the main window, as `dump` prints it.
ui::Json EditorDump();

}  // namespace kq::cli
