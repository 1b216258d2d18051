// The drive, directory and file lists: a person's way of choosing a drive, a folder and
// the files in it. They read the disk through ui::disk(). Setting a path that cannot be
// read changes nothing and gives the system's run-time error number to the caller (76 path
// not found, 68 device unavailable, 70 permission denied), as the original controls raised
// it in the statement that set them; 0 means done.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ui/model/control.h"
#include "ui/model/list_controls.h"

namespace ui {

// This platform has one drive, the root "/"; every absolute folder is on it, and a text
// with a drive letter names a drive that is not there. The drive's current directory is
// the process's.
class DriveListBox : public Control {
 public:
  DriveListBox(Form& parent, std::string name, int index = -1);
  const std::string& Drive() const { return drive_; }
  // Takes the drive of a path; raises Change when the drive differs.
  int SetDrive(const std::string& path);
  int ListCount() const { return 1; }
  std::string List(int i) const { return i == 0 ? drive_ : std::string(); }
  int ListIndex() const { return 0; }
  // A person chooses the drive of a path from the list: Change follows even when the drive
  // stays the same, so the folder list is brought back to the drive's current directory.
  int UserPath(const std::string& path);

 private:
  std::string drive_ = "/";
};

class DirListBox : public Control {
 public:
  DirListBox(Form& parent, std::string name, int index = -1);
  // The folder shown open, whole, with no trailing separator except on the root; at first
  // the current directory.
  const std::string& Path() const { return path_; }
  // Opens a folder; raises Change when it differs from the one shown.
  int SetPath(const std::string& folder);
  // Reads the open folder again.
  int Refresh();
  // The sub-folders of Path: List(0) to List(ListCount - 1), whole paths. List(-1) is Path
  // itself, List(-2) its parent and so on up to the root.
  int ListCount() const { return static_cast<int>(folders_.size()); }
  std::string List(int i) const;
  // Levels above the sub-folders: the open folder and its ancestors (1 on the root).
  int Depth() const;
  // The highlighted entry, -1 the open folder. Setting it raises Click; Path stays.
  int ListIndex() const { return listIndex_; }
  void SetListIndex(int index);
  // A person opens a folder: by double click on an entry, or by choosing it otherwise.
  int UserOpen(int index) { return SetPath(List(index)); }
  int UserPath(const std::string& folder) { return SetPath(folder); }

 private:
  std::string path_;
  std::vector<std::string> folders_;
  int listIndex_ = -1;
};

class FileListBox : public ListBox {
 public:
  FileListBox(Form& parent, std::string name, int index = -1);
  // At first the current directory.
  const std::string& Path() const { return path_; }
  // Shows the files of a folder that suit Pattern; raises PathChange when it differs.
  int SetPath(const std::string& folder);
  // Wildcards separated by ";" ("*.wav;*.vox"); raises PatternChange when it differs.
  const std::string& Pattern() const { return pattern_; }
  void SetPattern(std::string pattern);
  // Plain files are shown (the only kind this platform lists).
  bool Normal() const { return normal_; }
  void SetNormal(bool normal);
  int Refresh();
  // The file with the focus, empty when none.
  std::string FileName() const { return List(ListIndex()); }
  int UserPath(const std::string& folder) { return SetPath(folder); }

  std::function<void()> OnPathChange;
  std::function<void()> OnPatternChange;

 private:
  int Fill(const std::string& folder);
  std::string path_;
  std::string pattern_ = "*.*";
  bool normal_ = true;
};

}  // namespace ui
