// The disk as the drive, directory and file lists read it: the entries of a folder, and the
// process's current directory. Texts are the system's (Windows-1252); failures are the
// system's run-time error numbers, 0 for none.
#pragma once

#include <string>
#include <vector>

namespace ui {

// The run-time error numbers that reading a folder can give.
inline constexpr int kErrorDeviceUnavailable = 68;
inline constexpr int kErrorPermissionDenied = 70;
inline constexpr int kErrorFileAccess = 75;
inline constexpr int kErrorPathNotFound = 76;

class Disk {
 public:
  virtual ~Disk() = default;
  // The visible sub-folders and plain files of a folder, names only, each list in the
  // order of the sorted lists.
  virtual int ReadFolder(const std::string& folder, std::vector<std::string>& folders,
                         std::vector<std::string>& files) = 0;
  virtual std::string CurrentDirectory() = 0;
  virtual int ChangeDirectory(const std::string& folder) = 0;
};

// The disk of this machine, unless a test has put another in its place.
Disk& disk();
// nullptr gives back the disk of this machine.
void SetDisk(Disk* d);

// A folder text made whole: relative to the current directory, "." and ".." resolved,
// no trailing separator except on the root "/".
std::string FullFolder(const std::string& folder);

// The folder with one trailing separator of this platform: added unless it ends in one
// (an empty folder gives the root).
std::string WithTrailingSeparator(std::string folder);

// A drive letter and colon ("C:", "C:\DATA\") names a drive this platform does not have.
bool NamesForeignDrive(const std::string& path);

// Wildcard match of a file name against a pattern of "*" and "?", case ignored; "*.*"
// takes every name, with or without a dot.
bool MatchesPattern(const std::string& name, const std::string& pattern);

}  // namespace ui
