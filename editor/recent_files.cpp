// The recent-files list under the File menu: four entries, most recent first, kept in the
// settings. Opening a file never reorders it; only a save of a new path does.
#include "editor/frm_edit.h"
#include "editor/settings.h"

namespace kq {

void FrmEdit::LoadRecentFiles() {
  for (int i = 1; i <= kRecentFiles; ++i) {
    recentFileName_[i - 1] = ReadSetting(RecentSetting(i));
  }
  // Empty entries make no item, and later entries are still looked at, so the numbers
  // may have a gap.
  int position = kFileItems + 1;  // behind the file items and the separator
  for (int i = 1; i <= kRecentFiles; ++i) {
    const std::string& path = recentFileName_[i - 1];
    if (path.empty()) continue;
    if (!mnuFileArray[i]) {
      mnuFileArray[i] = std::make_unique<ui::Menu>(*this, "mnuFileArray", "", i);
      mnuFileArray[i]->OnClick = [this, i] { mnuFileArray_Click(i); };
      mnuFile.InsertAt(*mnuFileArray[i], position);
    }
    mnuFileArray[i]->SetCaption("&" + std::to_string(i) + " " + path);
    mnuFileArray[i]->SetVisible(true);
    ++position;
  }
}

void FrmEdit::AddRecentFile(const std::string& path) {
  if (path.empty()) return;
  for (const std::string& entry : recentFileName_) {
    if (entry == path) return;  // already listed: the order stays
  }
  for (int i = kRecentFiles; i >= 1; --i) {
    if (!recentFileName_[i - 1].empty() && mnuFileArray[i]) {
      mnuFile.Remove(*mnuFileArray[i]);
      mnuFileArray[i].reset();
    }
    recentFileName_[i - 1] = i > 1 ? recentFileName_[i - 2] : path;
  }
  for (int i = 1; i <= kRecentFiles; ++i) {
    WriteSetting(RecentSetting(i), recentFileName_[i - 1]);
  }
  LoadRecentFiles();
}

}  // namespace kq
