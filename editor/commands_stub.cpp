// Placeholders until navigation and printing land.
#include "editor/commands.h"

namespace kq {

void GotoCommand(int) {}
void ResetSearchState() {}
void PrintCommand() {}

}  // namespace kq
