// The closing sequence: the compile prompt, the save prompt, then the closing step of the
// operation ("Close", "Exit" or "Unload").
#include "document/state.h"
#include "editor/frm_edit.h"
#include "ui/platform/platform.h"

namespace kq {

void FrmEdit::ConfirmChangedFile(const std::string& operation, bool& cancel) {
  const bool hasLines = lstEdit.ListCount() != 0;
  int answer = ui::vbYes;
  if (hasLines && !ApplFileName.empty() && PrgHdr.CompiledFlag == 0) {
    answer = ui::platform().MsgBox(
        "Voice/Response Application file must be compiled successfully before it can be used "
        "by the KQExec program. Compile changed file: \r" +
            ApplFileName + " ?",
        ui::vbExclamation | ui::vbYesNoCancel, "Confirm " + operation);
    if (answer == ui::vbYes) {
      mnuCompile_Click();
      // Only Exit stops at a failed compile; Close and the window's close go on.
      if (operation == "Exit" && PrgHdr.CompiledFlag == 0) return;
    } else if (answer == ui::vbCancel) {
      cancel = true;
      return;
    }
  }

  if (ChangedFlag && !ApplFileName.empty() && lstEdit.ListCount() != 0) {
    std::string piece;
    if (PrgHdr.CompiledFlag != 0) {
      piece = "Save changed and successfully compiled file: ";
    } else if (answer != ui::vbYes) {
      piece = "Save changed, but uncompiled file: ";
    } else {
      piece = "Save changed, but unsuccessfully compiled file: ";
    }
    const int save = ui::platform().MsgBox(piece + "\r" + ApplFileName + " ?",
                                           ui::vbExclamation | ui::vbYesNoCancel, "Confirm Exit");
    if (save == ui::vbYes) {
      mnuFileItem_Click(2);
    } else if (save == ui::vbCancel) {
      cancel = true;
      return;
    }
  }

  if (operation == "Close") {
    ApplFileTitle = "Untitled";
    ApplFileName.clear();
    ResetEditor();
  } else if (operation == "Exit") {
    // The program keeps running with its settings written; the window closes by its own
    // close button.
    UnloadProcedure();
  }
}

}  // namespace kq
