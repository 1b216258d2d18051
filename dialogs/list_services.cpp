// Combos of labels, database tables and numbers; the optional label pieces of a
// DisplayLine; clearing the selection of a multi-select list.
#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/model/list_controls.h"

namespace kq {

std::string FieldText(std::string_view field) {
  std::string t = RTrim(field);
  if (!t.empty() && t.back() == '\0') t.pop_back();
  return t;
}

void GetListBoxLabel(ListControl combo, std::string_view label) {
  combo.Clear();
  const int lines = EditList().ListCount();
  for (int i = 0; i < lines && i < kMaxLines; ++i) {
    const std::string name = FieldText(View(LineTable[i].LineLabel));
    if (!name.empty()) combo.AddItem(name);
  }
  const std::string wanted = FieldText(label);
  for (int i = 0; i < combo.ListCount(); ++i) {
    if (combo.List(i) == wanted) {
      combo.SetListIndex(i);
      return;
    }
  }
  combo.SetText(wanted);
}

void GetListBoxDBTbl(ListControl combo, std::string_view tableName) {
  combo.Clear();
  const std::string wanted = FieldText(tableName);
  int selected = -1;
  for (const TableEntry& t : PrgHdr.Table) {
    if (FieldEmpty(View(t.TableName))) continue;
    combo.AddItem(FieldText(View(t.TableName)));
    if (selected < 0 && FieldText(View(t.TableName)) == wanted) selected = combo.NewIndex();
  }
  if (selected < 0 && combo.ListCount() > 0) selected = 0;
  if (selected >= 0) combo.SetListIndex(selected);
}

void GetListBoxNumber(ListControl combo, int32_t first, int32_t count, int32_t step,
                      int32_t selected) {
  combo.Clear();
  const std::string wanted = Str(int64_t{selected});
  int found = -1;
  // From first up to first + count * step, both ends included.
  for (int64_t i = 0; i <= count; ++i) {
    const std::string text = Str(int64_t{first} + i * step);
    combo.AddItem(text);
    if (found < 0 && text == wanted) found = combo.NewIndex();
  }
  if (found < 0 && combo.ListCount() > 0) found = 0;
  if (found >= 0) combo.SetListIndex(found);
}

std::string AppendLabelParm(std::string_view line, std::string_view prefix,
                            std::string_view label) {
  const std::string trimmed = RTrim(label);
  if (!(trimmed.size() == 1 && trimmed[0] == '\0')) {
    return std::string(line) + std::string(prefix) + RTrimZ(label);
  }
  // Without the label the line ends at its last piece: trailing blanks go, and so does the
  // tab that would have led an empty parameter text.
  std::string out(line);
  while (!out.empty() && (out.back() == ' ' || out.back() == '\t')) out.pop_back();
  return out;
}

void DeselectListBox(ui::ListBox& list) {
  for (int i = 0; i < list.ListCount(); ++i) list.SetSelected(i, false);
}

}  // namespace kq
