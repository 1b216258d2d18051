// The File menu of the main window and the three states of the document that it moves
// between: none, new without lines, open.
#include <filesystem>
#include <optional>

#include "dialogs/services.h"
#include "document/document.h"
#include "document/file.h"
#include "document/state.h"
#include "editor/frm_edit.h"
#include "editor/settings.h"
#include "editor/undo_menus.h"
#include "ui/platform/disk.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

constexpr const char* kKqxFilter = "V/R Files (*.kqx)|*.kqx";

// The file dialog as CommonDialog1 is set up for every use; nullopt when cancelled.
std::optional<std::string> AskFile(ui::FileDialogRequest::Kind kind) {
  ui::FileDialogRequest r;
  r.kind = kind;
  r.initDir = ApplPathName;
  r.fileName.clear();
  r.filter = kKqxFilter;
  r.filterIndex = 1;
  return ui::platform().FileDialog(r);
}

// The file name behind the last directory separator.
std::string TitleOf(const std::string& path) {
  const auto slash = path.find_last_of('/');
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

// Title, name and directory of the application from a chosen file.
void TakeChosenFile(const std::string& path) {
  ApplFileTitle = TitleOf(path);
  ApplFileName = path;
  const auto keep = static_cast<std::ptrdiff_t>(ApplFileName.size()) -
                    static_cast<std::ptrdiff_t>(ApplFileTitle.size()) - 1;
  ApplPathName = keep > 0 ? ApplFileName.substr(0, static_cast<size_t>(keep)) : std::string();
  SaveApplPathName();
}

}  // namespace

bool FrmEdit::GuardOpenDocument() {
  if (ApplFileTitle == "Untitled" || lstEdit.ListCount() == 0) return true;
  ui::platform().MsgBox("File " + ApplFileTitle + " is already open.", ui::vbExclamation,
                        "File Error");
  return false;
}

void FrmEdit::mnuFileItem_Click(int index) {
  switch (index) {
    case 0: {  // New: nothing is written until the first save
      if (!GuardOpenDocument()) return;
      ApplFileTitle = "temp.kqx";
      ApplFileName = ui::WithTrailingSeparator(ApplPathName) + ApplFileTitle;
      NewFile();
      break;
    }
    case 1: {  // Open
      if (!GuardOpenDocument()) return;
      const auto chosen = AskFile(ui::FileDialogRequest::Kind::Open);
      if (!chosen) return;
      OpenChosenFile(*chosen);
      break;
    }
    case 2:  // Save
      SaveFile(ApplFileTitle, ApplFileName, true, 0, lstEdit.ListCount() - 1, PrgHdr.LineCount);
      break;
    case 3: {  // Save As
      const auto chosen = AskFile(ui::FileDialogRequest::Kind::Save);
      if (!chosen) return;
      TakeChosenFile(*chosen);
      SaveFile(ApplFileTitle, ApplFileName, true, 0, lstEdit.ListCount() - 1, PrgHdr.LineCount);
      SetTitleBar();
      break;
    }
    case 4: {  // Save Part As: from the first selected line to the last one
      int first = -1;
      int last = 0;
      for (int i = 0; i < lstEdit.ListCount(); ++i) {
        if (!lstEdit.Selected(i)) continue;
        if (first == -1) {
          first = i;
        } else {
          lstEdit.SetSelected(i, false);
        }
        last = i;
      }
      const auto chosen = AskFile(ui::FileDialogRequest::Kind::Save);
      if (!chosen) return;
      std::string name = *chosen;
      std::string title = TitleOf(name);
      int16_t count = static_cast<int16_t>(last - first + 1);
      SaveFile(title, name, false, first, last, count);
      break;
    }
    case 5: {  // Insert
      const auto chosen = AskFile(ui::FileDialogRequest::Kind::Open);
      if (!chosen) return;
      std::string name = *chosen;
      std::string title = TitleOf(name);
      const EditScope scope = editMenus_->ScopeOfInsertFile();
      InsertFile(title, name, lstEdit.ListIndex());
      break;
    }
    case 6: {  // Close
      bool cancel = false;
      ConfirmChangedFile("Close", cancel);
      break;
    }
    case 7: {  // Delete: the document's changes are not asked about
      const int answer =
          ui::platform().MsgBox("Delete file: " + ApplFileName + " ?",
                                ui::vbExclamation | ui::vbOKCancel, "Confirm delete");
      if (answer != ui::vbOK) return;
      // Only a file is deleted; any failure (no such file, a folder of that name) is
      // passed over without a word.
      std::error_code ignored;
      if (!std::filesystem::is_directory(ApplFileName, ignored)) {
        std::filesystem::remove(ApplFileName, ignored);
      }
      ApplFileTitle = "Untitled";
      ApplFileName.clear();
      ResetEditor();
      break;
    }
    case 9: {  // Exit
      bool cancel = false;
      ConfirmChangedFile("Exit", cancel);
      break;
    }
    default:
      break;
  }
}

void FrmEdit::OpenChosenFile(const std::string& path) {
  if (!GuardOpenDocument()) return;
  TakeChosenFile(path);
  OpenFile(ApplFileTitle, ApplFileName);
}

void FrmEdit::mnuFileArray_Click(int index) {
  if (index < 1 || index > 4 || !mnuFileArray[index]) return;
  if (!GuardOpenDocument()) return;
  const std::string& caption = mnuFileArray[index]->Caption();
  ApplFileName = caption.size() > 3 ? caption.substr(3) : std::string();
  ApplFileTitle = TitleOf(ApplFileName);
  OpenFile(ApplFileTitle, ApplFileName);
}

void FrmEdit::NewFile() {
  SetTitleBar();
  for (int i = 2; i <= 6; ++i) mnuFileItem[i].SetEnabled(false);
  mnuFileItem[7].SetEnabled(true);
  mnuEdit.SetEnabled(true);
  mnuEditItem[0].SetEnabled(true);
  for (int i = 1; i < kEditItems; ++i) mnuEditItem[i].SetEnabled(false);
  mnuDefine.SetEnabled(true);
  lstEdit.Clear();
  InitDocument();
  editMenus_->DocumentReplaced();
}

void FrmEdit::ResetEditor() {
  SetTitleBar();
  for (int i = 2; i <= 7; ++i) mnuFileItem[i].SetEnabled(false);
  mnuEdit.SetEnabled(false);
  for (auto& item : mnuEditItem) item.SetEnabled(false);
  mnuGoto.SetEnabled(false);
  mnuDefine.SetEnabled(false);
  mnuCompile.SetEnabled(false);
  mnuPrint.SetEnabled(false);
  lstEdit.Clear();
  InitDocument();
  editMenus_->DocumentReplaced();
}

void FrmEdit::FileOpened() {
  editMenus_->DocumentReplaced();
  SetTitleBar();
  for (int i = 2; i <= 7; ++i) mnuFileItem[i].SetEnabled(true);
  mnuEdit.SetEnabled(true);
  for (auto& item : mnuEditItem) item.SetEnabled(true);
  mnuGoto.SetEnabled(true);
  mnuDefine.SetEnabled(true);
  mnuCompile.SetEnabled(true);
  mnuPrint.SetEnabled(true);
  if (lstEdit.ListCount() > 0) {
    DeselectListBox(lstEdit);
    lstEdit.SetSelected(0, true);
  } else {
    lstEdit.SetFocus();
  }
}

}  // namespace kq
