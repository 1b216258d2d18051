// Moves the selection of the edit list to one line: every line deselected, then that one
// selected, as the commands that point at a line do.
#pragma once

namespace kq {

void SelectOnlyLine(int line);

}  // namespace kq
