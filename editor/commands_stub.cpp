// Placeholders until compile, navigation and printing land.
#include "editor/commands.h"

namespace kq {

bool Compile() {
  return false;
}
void GotoCommand(int) {}
void ResetSearchState() {}
void PrintCommand() {}

}  // namespace kq
