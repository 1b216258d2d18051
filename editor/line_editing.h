// The Edit menu: Add, Insert, Modify, Delete and Clear, keeping the three stores of a line
// (its DisplayLine in lstEdit, its ProgramLine in LineTable, its FuncBlock) in step, the
// line numbers in the list texts rewritten, and the menus following the line count.
#pragma once

#include <string>

namespace ui {
class ListBox;
}

namespace kq {

class FrmEdit;

void AddLine(FrmEdit& form);
void InsertLine(FrmEdit& form);
void ModifyLine(FrmEdit& form);
void DeleteLines(FrmEdit& form);
void ClearLines(FrmEdit& form);

// ---- The store work of Insert and Delete, without the dialogs and menus.

// The text of line i: its number in four digits, then the text behind the first four
// characters of `text`.
std::string Renumbered(int i, const std::string& text);

// Puts a new line in front of line k (0 <= k < count): list text "k" + FuncLine, line
// table entry FuncLabel, FuncNo, FuncName, block from WorkRecord; renumbers the lines
// behind it, moves their entries and blocks up by one, and selects line k + 1.
void InsertLineInStores(ui::ListBox& list, int k);

// Removes every selected line from the three stores, as the downward walk of Delete does,
// and selects the line that Delete leaves selected. Returns the number of lines removed.
int DeleteSelectedFromStores(ui::ListBox& list);

}  // namespace kq
