#include "editor/line_editing.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "dialogs/dialogs.h"
#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/document.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/frm_edit.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

// The list holds at most this many lines, so that every number has four digits and the
// stores keep room for the line behind the last.
constexpr int kMaxListLines = kUserLines + 1;

// The line table entry takes the ProgramLine of the hand-over fields.
void TakeHandOverLine(ProgramLine& entry) {
  AssignField(entry.LineLabel, FuncLabel);
  entry.LineFuncNo = FuncNo;
  AssignField(entry.LineFuncName, FuncName);
}

void MarkEdited() {
  ChangedFlag = true;
  PrgHdr.CompiledFlag = 0;
}

// The bytes a line's record takes in its block, as the block routines copy them.
int32_t BlockLength(int funcNo) {
  return RecordLength[funcNo] != 0 ? RecordLength[funcNo] : kCatalogueLength[funcNo];
}

// The downward walk of Delete, one selected line at a time. It serves when a line of the
// moving part has no legal function number: the block routines then end the program at
// the line where the walk meets it.
int DeleteSelectedLiterally(ui::ListBox& list) {
  int last = 0;
  int removed = 0;
  for (int i = list.ListCount() - 1; i >= 0; --i) {
    if (!list.Selected(i)) continue;
    last = i;
    list.RemoveItem(i);
    --PrgHdr.LineCount;
    ++removed;
    const int newLast = list.ListCount() - 1;
    for (int j = i; j <= newLast; ++j) {
      std::string text = list.List(j);
      list.RemoveItem(j);
      list.AddItem(Renumbered(j, text), j);
    }
    for (int j = i; j <= newLast; ++j) {
      const int funcNo = LineTable[j + 1].LineFuncNo;
      CopyFuncParm(j, j + 1, funcNo);
      if (j == newLast) InitFuncParm(j + 1, funcNo);
      LineTable[j] = LineTable[j + 1];
    }
  }
  const int count = list.ListCount();
  if (count > 0) list.SetSelected(last != count ? last : last - 1, true);
  return removed;
}

}  // namespace

std::string Renumbered(int i, const std::string& text) {
  return Format0000(i) + (text.size() > 4 ? text.substr(4) : std::string());
}

// ---- Insert

void InsertLineInStores(ui::ListBox& list, int k) {
  const int n = list.ListCount();
  // The list: every line from k on gets its number anew, the new line included, so the
  // whole list is rebuilt once instead of removing and inserting each line.
  const std::vector<std::string>& old = list.Items();
  std::vector<std::string> items;
  items.reserve(static_cast<size_t>(n) + 1);
  items.insert(items.end(), old.begin(), old.begin() + k);
  items.push_back(Format0000(k) + FuncLine);
  for (int i = k; i < n; ++i) items.push_back(Renumbered(i + 1, old[static_cast<size_t>(i)]));
  list.ReplaceAll(std::move(items));
  list.SetSelected(k + 1, true);

  // The entries and blocks move up from the top down, each block by its record length.
  for (int i = n; i > k; --i) {
    LineTable[i] = LineTable[i - 1];
    CopyFuncParm(i, i - 1, LineTable[i].LineFuncNo);
  }
  TakeHandOverLine(LineTable[k]);
  UpdateFuncParm(k, FuncNo);
}

// ---- Delete
//
// The walk of Delete goes from the last line down to line 0; for each selected line it
// removes the text, renumbers the lines behind it, and closes the gap in the stores: every
// entry and block behind moves down by one (a block by the record length of its line,
// over whatever bytes the block held), and when the gap was not at the top, the block that
// is freed at the top gets the InitRecord image of the function of the line that moved
// out of it. Its line table entry keeps its old content.
//
// That walk costs the number of selected lines times the lines behind them. The work below
// reaches the same state in one pass, from these facts about the walk:
// - A selected line never moves: every selected line above it has gone before it, and the
//   ones below it go after it. So every write into a block comes from a line that stays,
//   and it writes that line's own record: the first RecordLength bytes of its block.
// - A line that stays, u(q) (the q-th line that stays, counting from 0), moves from its
//   index down to q one step at a time, so it writes each block from u(q) - 1 down to q
//   once, and the lines that stay pass a block in their order: u(q) before u(q + 1).
// - A block that ends inside the list, p < n', is last written by u(p) and before that
//   by u(p - 1), u(p - 2), ... as long as they came from above p. A block that ends
//   behind the list, p >= n', was the top block when the walk deleted its (n - p)-th line;
//   if that line was not the top line, the freed block then got the InitRecord image of the
//   top line's function, and nothing wrote it afterwards. Before that it was written by
//   u(n' - 1), u(n' - 2), ... as far as they came from above p.
// - So the final bytes of a block are, going back in time, the newest write for its
//   length, then the bytes of older writes beyond the newer ones, then the block's own
//   bytes. Only writes longer than every newer one show; following for each line the
//   nearest earlier line with a longer record finds them in a few steps.
// - A line table entry is last written by the newest line that moved through it (u(p), or
//   u(n' - 1) behind the list); the texts are the lines that stay, numbered anew from the
//   first deleted index on.
// The blocks are filled from p = 0 upward, and every source block is above the one being
// filled, so no source has been overwritten when it is read.

int DeleteSelectedFromStores(ui::ListBox& list) {
  const int n = list.ListCount();
  const std::vector<int> deleted = list.SelectedIndexes();  // ascending
  const int m = static_cast<int>(deleted.size());
  if (m == 0) {
    if (n > 0) list.SetSelected(0, true);  // nothing deleted: `last` stays 0
    return 0;
  }
  const int first = deleted.front();
  if (n > kMaxListLines) return DeleteSelectedLiterally(list);
  for (int i = first; i < n; ++i) {
    if (!IsLiveFunction(LineTable[i].LineFuncNo)) return DeleteSelectedLiterally(list);
  }

  std::vector<char> isDeleted(static_cast<size_t>(n), 0);
  for (int i : deleted) isDeleted[static_cast<size_t>(i)] = 1;
  std::vector<int> stay;  // u(q)
  stay.reserve(static_cast<size_t>(n - m));
  for (int i = 0; i < n; ++i) {
    if (!isDeleted[static_cast<size_t>(i)]) stay.push_back(i);
  }
  const int kept = static_cast<int>(stay.size());  // n'

  std::vector<int32_t> length(static_cast<size_t>(kept));
  for (int q = 0; q < kept; ++q) length[q] = BlockLength(LineTable[stay[q]].LineFuncNo);
  // The nearest earlier line with a longer record.
  std::vector<int> longerBefore(static_cast<size_t>(kept));
  {
    std::vector<int> stack;
    for (int q = 0; q < kept; ++q) {
      while (!stack.empty() && length[stack.back()] <= length[q]) stack.pop_back();
      longerBefore[q] = stack.empty() ? -1 : stack.back();
      stack.push_back(q);
    }
  }
  // The line on top when the walk deletes its d-th line (d from 1).
  std::vector<int> topLine(static_cast<size_t>(m) + 1, -1);
  for (int d = 1, t = n - 1; d <= m; ++d) {
    const int victim = deleted[static_cast<size_t>(m - d)];
    while (t > victim && isDeleted[static_cast<size_t>(t)]) --t;
    topLine[d] = t;
  }

  // Writes the older writes behind `covered`, going back from line q while it passed p.
  auto layer = [&](int p, int q, int firstPassing, int32_t covered) {
    while (q >= firstPassing && covered < kBlockSize) {
      if (length[q] > covered) {
        std::memcpy(FuncBlock[p] + covered, FuncBlock[stay[q]] + covered,
                    static_cast<size_t>(length[q] - covered));
        covered = length[q];
      }
      q = longerBefore[q];
    }
  };

  int firstPassing = 0;  // the first q with u(q) > p
  for (int p = 0; p < n; ++p) {
    while (firstPassing < kept && stay[firstPassing] <= p) ++firstPassing;
    if (p < kept) {
      if (stay[p] == p) continue;  // nothing below it went: the line did not move
      layer(p, p, firstPassing, 0);
      LineTable[p] = LineTable[stay[p]];
    } else {
      const int d = n - p;
      const int victim = deleted[static_cast<size_t>(m - d)];
      int32_t covered = 0;
      if (victim < p) {
        const int funcNo = LineTable[topLine[d]].LineFuncNo;
        covered = BlockLength(funcNo);
        std::memcpy(FuncBlock[p], InitRecord.Image(funcNo), static_cast<size_t>(covered));
      }
      if (kept > 0 && stay[kept - 1] > p) {
        layer(p, kept - 1, firstPassing, covered);
        LineTable[p] = LineTable[stay[kept - 1]];
      }
    }
  }

  const std::vector<std::string>& old = list.Items();
  std::vector<std::string> items;
  items.reserve(static_cast<size_t>(kept));
  for (int q = 0; q < kept; ++q) {
    const std::string& text = old[static_cast<size_t>(stay[q])];
    items.push_back(q < first ? text : Renumbered(q, text));
  }
  list.ReplaceAll(std::move(items));
  PrgHdr.LineCount = static_cast<int16_t>(PrgHdr.LineCount - m);
  if (kept > 0) list.SetSelected(first != kept ? first : first - 1, true);
  return m;
}

// ---- The Edit menu

void AddLine(FrmEdit& form) {
  ui::ListBox& list = form.lstEdit;
  if (list.ListCount() >= kMaxListLines) {
    ui::platform().Beep();
    return;
  }
  FuncModify = false;
  ShowFunctionPicker();
  if (!FuncPick) return;
  GetFuncParm(FuncNo);
  if (!FuncOk) return;
  MarkEdited();
  ++PrgHdr.LineCount;
  const int n = list.ListCount();
  list.AddItem(Format0000(n) + FuncLine);
  DeselectListBox(list);
  list.SetSelected(n, true);
  const int count = list.ListCount();
  for (int i = 2; i <= 6; ++i) form.mnuFileItem[i].SetEnabled(true);
  form.mnuEditItem[0].SetEnabled(count < kUserLines);
  form.mnuEditItem[1].SetEnabled(count < kUserLines);
  for (int i = 2; i <= 4; ++i) form.mnuEditItem[i].SetEnabled(count != 0);
  form.mnuGoto.SetEnabled(true);
  form.mnuCompile.SetEnabled(true);
  form.mnuPrint.SetEnabled(true);
  TakeHandOverLine(LineTable[n]);
  UpdateFuncParm(n, FuncNo);
}

void InsertLine(FrmEdit& form) {
  ui::ListBox& list = form.lstEdit;
  // The Insert key reaches here whatever the menu says: with no current line there is
  // nothing to insert in front of.
  if (list.ListIndex() < 0 || list.ListIndex() >= list.ListCount()) return;
  // The key passes the menu's limit; only a line the stores cannot hold is refused.
  if (list.ListCount() >= kMaxLines) {
    ui::platform().Beep();
    return;
  }
  FuncModify = false;
  ShowFunctionPicker();
  if (!FuncPick) return;
  GetFuncParm(FuncNo);
  if (!FuncOk) return;
  const int k = list.ListIndex();
  if (k < 0 || k >= list.ListCount()) return;
  MarkEdited();
  ++PrgHdr.LineCount;
  InsertLineInStores(list, k);
  const int count = list.ListCount();
  form.mnuEditItem[0].SetEnabled(count < kUserLines);
  form.mnuEditItem[1].SetEnabled(count < kUserLines);
}

void ModifyLine(FrmEdit& form) {
  ui::ListBox& list = form.lstEdit;
  // Double click and Enter reach here whatever the menu says: no current line, no change.
  const int k = list.ListIndex();
  if (k < 0 || k >= list.ListCount()) return;
  FuncModify = true;
  FuncPick = true;
  FuncNo = LineTable[k].LineFuncNo;
  FuncName.assign(LineTable[k].LineFuncName, sizeof LineTable[k].LineFuncName);
  FuncLine = FuncNo >= 0 && FuncNo < kFuncCount ? NulToBlank(View(FuncNames[FuncNo])) : "";
  GetFuncParm(FuncNo);
  if (!FuncOk) return;
  MarkEdited();
  list.RemoveItem(k);
  list.AddItem(Format0000(k) + FuncLine, k);
  DeselectListBox(list);
  list.SetSelected(k, true);
  TakeHandOverLine(LineTable[k]);
  UpdateFuncParm(k, FuncNo);
}

void DeleteLines(FrmEdit& form) {
  ui::ListBox& list = form.lstEdit;
  FuncModify = false;
  MarkEdited();
  const int removed = DeleteSelectedFromStores(list);
  const int count = list.ListCount();
  if (removed > 0) {
    form.mnuEditItem[0].SetEnabled(count < kUserLines);
    for (int i = 1; i <= 4; ++i) form.mnuEditItem[i].SetEnabled(count != 0);
  }
  for (int i = 2; i <= 6; ++i) form.mnuFileItem[i].SetEnabled(count != 0);
  form.mnuGoto.SetEnabled(count != 0);
  form.mnuCompile.SetEnabled(count != 0);
  form.mnuPrint.SetEnabled(count != 0);
}

void ClearLines(FrmEdit& form) {
  FuncModify = false;
  MarkEdited();
  PrgHdr.LineCount = 0;
  form.lstEdit.Clear();
  form.mnuEditItem[0].SetEnabled(true);
  for (int i = 1; i <= 4; ++i) form.mnuEditItem[i].SetEnabled(false);
  form.mnuGoto.SetEnabled(false);
  form.mnuCompile.SetEnabled(false);
  form.mnuPrint.SetEnabled(false);
}

}  // namespace kq
