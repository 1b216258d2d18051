// The entry points of the main window's document-wide commands live beside their
// implementations: Compile and CompileCommand in compile.cpp, GotoCommand and
// ResetSearchState in navigation.cpp, PrintCommand in printing.cpp. This unit only
// checks that the declarations agree.
#include "editor/commands.h"

#include "editor/compile.h"
#include "editor/navigation.h"
#include "editor/printing.h"
