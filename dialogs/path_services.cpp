// Combos of path types and path variables, and the messages of a missing path.
#include <algorithm>

#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/model/file_controls.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

bool ValidLetter(int32_t letter) {
  return letter >= kPathExport && letter <= kPathGeneral;
}

}  // namespace

void GetListBoxPath(ListControl combo, int32_t firstLetter, int32_t selectedType) {
  if (selectedType != -1 && !ValidLetter(selectedType)) {
    ui::ProgramError("Illegal Path Type " + Str(int64_t{selectedType}) +
                     " in Global GetListBoxPath.");
  }
  combo.Clear();
  int selected = -1;
  for (int32_t letter = std::max(firstLetter, kPathExport); letter <= kPathGeneral; ++letter) {
    if (FieldEmpty(View(PrgHdr.Path[0][letter - kPathExport].PathName))) continue;
    combo.AddItem(Row(PathTypeNames[letter - kPathExport]));
    if (letter == selectedType) selected = combo.NewIndex();
  }
  if (selectedType == -1 && combo.ListCount() > 0) selected = 0;
  if (selected >= 0) combo.SetListIndex(selected);
}

int16_t GetPathTypeLetter(ListControl combo) {
  int16_t letter = 0;
  const std::string text = combo.Text();
  for (int i = 0; i < kPathTypes; ++i) {
    if (text == Row(PathTypeNames[i])) letter = static_cast<int16_t>(kPathExport + i);
  }
  return letter;
}

void GetListBoxPathVar(ListControl combo, int32_t pathType, std::string_view selectedName) {
  if (pathType != -1 && !ValidLetter(pathType)) {
    ui::ProgramError("Illegal Path Type " + Str(int64_t{pathType}) +
                     " in Global GetListBoxPathVar.");
  }
  combo.Clear();
  if (pathType == -1) return;
  const std::string wanted = FieldText(selectedName);
  int selected = -1;
  for (int row = 0; row < kPathRows; ++row) {
    const auto name = View(PrgHdr.Path[row][pathType - kPathExport].PathName);
    if (FieldEmpty(name)) continue;
    combo.AddItem(FieldText(name));
    if (selected < 0 && FieldText(name) == wanted) selected = combo.NewIndex();
  }
  if (selected < 0 && combo.ListCount() > 0) selected = 0;
  if (selected >= 0) combo.SetListIndex(selected);
}

int16_t GetListBoxPathVarNo(ListControl combo, int32_t pathType) {
  const std::string text = combo.Text();
  int found = -1;
  if (ValidLetter(pathType)) {
    const std::string wanted = text + '\0';
    for (int row = 0; row < kPathRows; ++row) {
      if (RTrim(View(PrgHdr.Path[row][pathType - kPathExport].PathName)) == wanted) found = row;
    }
  }
  if (found < 0) {
    ui::ProgramError("Path variable name '" + text + "' not found in Global GetListBoxPathVarNo.");
  }
  return static_cast<int16_t>(found);
}

int SetFileListBox(ui::FileListBox& list, int32_t pathType, std::string_view name,
                   std::string_view fileName) {
  if (!ValidLetter(pathType)) {
    ui::ProgramError("Illegal Path Type " + Str(int64_t{pathType}) + " in Global SetFileListBox.");
  }
  const int type = pathType - kPathExport;
  // Both texts right-trimmed, the closing NUL of a field included.
  const std::string wanted = FieldText(name);
  int found = -1;
  for (int row = 0; row < kPathRows && found < 0; ++row) {
    if (FieldText(View(PrgHdr.Path[row][type].PathName)) == wanted) found = row;
  }
  if (found < 0) {
    ui::platform().MsgBox("Path variable name '" + FieldText(name) + "' not defined in " +
                              FieldText(Row(PathTypeNames[type])) + " path.",
                          ui::vbOKOnly | ui::vbExclamation, "Missing path definition");
    return 0;
  }
  const int error = list.SetPath(FieldText(View(PrgHdr.Path[found][type].PathText)));
  if (error != 0) return error;
  if (list.ListCount() > 0) {
    const std::string file = FieldText(fileName);
    int selected = 0;
    for (int i = 0; i < list.ListCount(); ++i) {
      if (list.List(i) == file) {
        selected = i;
        break;
      }
    }
    list.SetListIndex(selected);
  }
  return 0;
}

int HandlePathError(int errorNumber) {
  switch (errorNumber) {
    case 68:
      ui::platform().MsgBox("Disk do not exist for the defined path variable.",
                            ui::vbOKOnly | ui::vbExclamation, "Disk not found");
      return 2;
    case 76:
    case 380:
      ui::platform().MsgBox("Path do not exist for the defined path variable.",
                            ui::vbOKOnly | ui::vbExclamation, "Path not found");
      return 2;
    default:
      return 3;
  }
}

}  // namespace kq
