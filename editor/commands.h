// The document-wide commands of the main window: compile, navigation, printing.
#pragma once

namespace kq {

// Checks the whole program and resolves labels; returns the new compiled state.
bool Compile();
// The Compile menu: CompiledFlag := Compile(); a success also sets ChangedFlag.
void CompileCommand();
// The Goto menu item of that index (0 to 9).
void GotoCommand(int index);
// Resets the search state of the Goto commands (at start-up).
void ResetSearchState();
// The Print menu: the listing to a text file beside the application, then the printer.
void PrintCommand();

}  // namespace kq
