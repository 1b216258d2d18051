#include "ui/model/file_controls.h"

#include <sstream>

#include "ui/platform/disk.h"

namespace ui {

// ---- DriveListBox

DriveListBox::DriveListBox(Form& parent, std::string name, int index)
    : Control(parent, ControlKind::DriveListBox, std::move(name), index) {}

int DriveListBox::SetDrive(const std::string& path) {
  if (NamesForeignDrive(path)) return kErrorDeviceUnavailable;
  // Every folder of this platform is on the one drive.
  return 0;
}

int DriveListBox::UserPath(const std::string& path) {
  const int error = SetDrive(path);
  if (error != 0) return error;
  Notify();
  RaiseChange();
  return 0;
}

// ---- DirListBox

// A new list shows the current directory, as the original did.
DirListBox::DirListBox(Form& parent, std::string name, int index)
    : Control(parent, ControlKind::DirListBox, std::move(name), index),
      path_(FullFolder(disk().CurrentDirectory())) {
  Refresh();
}

int DirListBox::SetPath(const std::string& folder) {
  const std::string whole = FullFolder(folder);
  std::vector<std::string> folders, files;
  const int error = disk().ReadFolder(whole, folders, files);
  if (error != 0) return error;
  const bool changed = whole != path_;
  path_ = whole;
  folders_ = std::move(folders);
  listIndex_ = -1;
  Notify(Change::What::ItemsReset);
  if (changed) RaiseChange();
  return 0;
}

int DirListBox::Refresh() {
  std::vector<std::string> folders, files;
  const int error = disk().ReadFolder(path_, folders, files);
  if (error != 0) return error;
  folders_ = std::move(folders);
  listIndex_ = -1;
  Notify(Change::What::ItemsReset);
  return 0;
}

std::string DirListBox::List(int i) const {
  if (i >= 0) {
    if (i >= ListCount()) return {};
    return (path_ == "/" ? path_ : path_ + "/") + folders_[i];
  }
  std::string p = path_;
  for (int up = -1; up > i; --up) {
    if (p == "/" || p.empty()) return {};
    const auto cut = p.rfind('/');
    p = cut == 0 ? std::string("/") : p.substr(0, cut);
  }
  return p;
}

int DirListBox::Depth() const {
  if (path_.empty()) return 0;
  int depth = 1;
  for (size_t i = 1; i < path_.size(); ++i) {
    if (path_[i] == '/') ++depth;
  }
  return path_ == "/" ? 1 : depth + 1;
}

void DirListBox::SetListIndex(int index) {
  if (index < -Depth() || index >= ListCount()) return;
  listIndex_ = index;
  Notify(Change::What::Selection);
  RaiseClick();
}

// ---- FileListBox

FileListBox::FileListBox(Form& parent, std::string name, int index)
    : ListBox(parent, ControlKind::FileListBox, std::move(name), index),
      path_(FullFolder(disk().CurrentDirectory())) {
  Fill(path_);
}

int FileListBox::Fill(const std::string& folder) {
  std::vector<std::string> folders, files;
  const int error = disk().ReadFolder(folder, folders, files);
  if (error != 0) return error;
  std::vector<std::string> shown;
  if (normal_) {
    for (const auto& name : files) {
      std::istringstream patterns(pattern_);
      std::string one;
      while (std::getline(patterns, one, ';')) {
        if (!one.empty() && MatchesPattern(name, one)) {
          shown.push_back(name);
          break;
        }
      }
    }
  }
  ReplaceAll(std::move(shown));
  return 0;
}

int FileListBox::SetPath(const std::string& folder) {
  const std::string whole = FullFolder(folder);
  const int error = Fill(whole);
  if (error != 0) return error;
  const bool changed = whole != path_;
  path_ = whole;
  Notify();
  if (changed && OnPathChange) OnPathChange();
  return 0;
}

void FileListBox::SetPattern(std::string pattern) {
  if (pattern == pattern_) return;
  pattern_ = std::move(pattern);
  if (!path_.empty()) Fill(path_);
  Notify();
  if (OnPatternChange) OnPatternChange();
}

void FileListBox::SetNormal(bool normal) {
  if (normal == normal_) return;
  normal_ = normal;
  if (!path_.empty()) Fill(path_);
}

int FileListBox::Refresh() {
  return path_.empty() ? 0 : Fill(path_);
}

}  // namespace ui
