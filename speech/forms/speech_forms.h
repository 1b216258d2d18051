// What the speech tools share: the file settings of their lists, the drive, directory and
// file list groups, playing a WAVE file through a media control, and playing any speech
// file by converting it to a temporary WAVE file first.
#pragma once

#include <string>

#include "ui/model/file_controls.h"
#include "ui/model/media_control.h"

namespace kq {

// A folder and a file name joined with one separator between them.
std::string JoinPath(const std::string& folder, const std::string& name);
// A file of the per-user folder for temporary files ("listen.wav", "convert.wav").
std::string TempFile(const std::string& name);
// A file of the installed data folder (templates, "about.wav").
std::string DataFile(const std::string& name);

// A setting that holds a full path with file name, split at the last separator: the
// folder keeps its separator (one is added when missing). A missing key gives the user's
// documents folder and no file.
struct FileSetting {
  std::string folder;
  std::string file;
};
FileSetting ReadFileSetting(const std::string& key);
// Writes the folder of the file list with its selected file.
void SaveFileSetting(const std::string& key, const ui::FileListBox& files);

// A drive, directory and file list working together.
struct DiskLists {
  ui::DriveListBox& drive;
  ui::DirListBox& dir;
  ui::FileListBox& files;
};
// Moves the lists to a folder and selects the file, or else the first. A drive or folder
// that cannot be reached gives no message and leaves the lists where they were.
void ShowFileSetting(DiskLists lists, const FileSetting& setting);
// The drive list changed: the directory list follows and the process's directory with it;
// a failure goes through HandleDiskError under the title.
void FollowDrive(DiskLists lists, const std::string& title);
// The directory list changed: the file list follows and the process's directory with it.
void FollowDirectory(DiskLists lists);
// The full path of the selected file, empty when none is selected.
std::string SelectedFile(const ui::FileListBox& files);

// Opens a WAVE file on the media control (no notification, waiting, not shareable,
// "WaveAudio") and plays it.
void PlayWave(ui::MMControl& media, const std::string& fileName);
// Plays the selected speech file of any format: a WAVE file is copied to the temporary
// file, any other is converted into it, and the temporary file is played. The messages go
// under the title "Play Function".
void PlaySpeechFile(ui::MMControl& media, const ui::FileListBox& files,
                    const std::string& noSelectionText, const std::string& tempName);

namespace speech {
// The extension of the application's speech format (SpeechAudioFormat). A format without
// one is the program error "Illegal speech format = {n} in GetSpeechFileExt.".
std::string GetSpeechFileExt();
}  // namespace speech

}  // namespace kq
