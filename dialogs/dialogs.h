// The entry points through which the editor shows dialogs. Each shows its form modally
// and reports only through the shared state of document/state.h.
#pragma once

namespace kq {

// Precondition checks of the function, then its dialog (sets FuncOk).
void GetFuncParm(int funcNo);
// The function picker frmFunc (sets FuncPick, FuncNo, FuncName, FuncLine).
void ShowFunctionPicker();
// The declaration dialogs.
void ShowDefineVariables();
void ShowDefinePaths();  // path type from DefineItemIndex
void ShowDefineTables();

}  // namespace kq
