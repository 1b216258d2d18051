// The Goto menu: moves the selection of the edit list to a line chosen by number, label or
// function, or to a line that uses a variable, a label or a path variable as a parameter.
// Each kind of search has a dialog that finds the first use from the top, and a Next
// command that goes on behind the selected line with the same key and wraps around.
#pragma once

#include <cstdint>

#include "document/records.h"
#include "editor/select_line.h"

namespace kq {

// The search keys. They outlive documents: reset at start-up and by nothing else.
extern int16_t SearchFuncNo;
extern VarRef SearchVar;
extern LabelRef SearchLabel;
extern int32_t SearchPathType;
extern char SearchPathName[28];

enum class SearchKind { Function, Variable, Label, Path };

// Does the line match the key of that kind.
bool SearchHit(SearchKind kind, int line);
// Selects the first hit from the top; "Not Found" when there is none.
void FirstSearch(SearchKind kind);
// Selects the next hit behind the first selected line, wrapping around once.
void NextSearch(SearchKind kind);
// The "Not Found" box of that kind. fromDialog: the path dialog's own wording.
void ShowNotFound(SearchKind kind, bool fromDialog = false);

void ResetSearchState();
void GotoCommand(int index);

}  // namespace kq
