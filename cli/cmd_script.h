// `kqx script FILE|-`: the editor without a window, driven by a script.
#pragma once

#include "ui/headless/json.h"
#include "ui/headless/script_runner.h"

namespace kqx {

// The hooks that start the editor's main window, dump its state and drop it at the end.
ui::ScriptHooks EditorScriptHooks();

// The state of the document and the main window, as `dump` prints it.
ui::Json EditorDump();

}  // namespace kqx
