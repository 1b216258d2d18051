#include "speech/forms/speech_forms.h"

#include <filesystem>

#include "dialogs/services.h"
#include "document/disk_error.h"
#include "document/state.h"
#include "document/text.h"
#include "speech/codec/convert.h"
#include "ui/platform/disk.h"
#include "ui/platform/durable_file.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

constexpr const char* kApp = ui::kSettingsApplication;
constexpr const char* kSection = ui::kSettingsSection;
constexpr int kWaveFormat = 4;
constexpr int16_t kRate = 8;

std::string WithSeparator(std::string folder) {
  return ui::WithTrailingSeparator(std::move(folder));
}

}  // namespace

std::string JoinPath(const std::string& folder, const std::string& name) {
  return WithSeparator(folder) + name;
}

std::string TempFile(const std::string& name) {
  return JoinPath(ui::platform().TempDirectory(), name);
}

std::string DataFile(const std::string& name) {
  return JoinPath(ui::platform().DataDirectory(), name);
}

FileSetting ReadFileSetting(const std::string& key) {
  const std::string value =
      ui::platform().GetSetting(kApp, kSection, key, WithSeparator(ui::platform().UserDirectory()));
  const size_t cut = value.rfind('/');
  if (cut == std::string::npos) return {"/", value};
  return {value.substr(0, cut + 1), value.substr(cut + 1)};
}

void SaveFileSetting(const std::string& key, const ui::FileListBox& files) {
  ui::platform().SaveSetting(kApp, kSection, key, JoinPath(files.Path(), files.FileName()));
}

void ShowFileSetting(DiskLists lists, const FileSetting& setting, bool selectFile) {
  if (lists.drive.SetDrive(setting.folder) != 0) return;
  if (lists.dir.SetPath(setting.folder) != 0) return;
  // The file list follows the directory list's Change; when the folder was already open it
  // did not change, so the files are read here all the same.
  if (lists.files.SetPath(lists.dir.Path()) != 0) return;
  ui::disk().ChangeDirectory(lists.dir.Path());
  if (!selectFile || lists.files.ListCount() == 0) return;
  int index = 0;
  for (int i = 0; i < lists.files.ListCount(); ++i) {
    if (lists.files.List(i) == setting.file) index = i;
  }
  lists.files.SetListIndex(index);
}

void FollowDrive(DiskLists lists, const std::string& title) {
  RetryDiskOperation(title, [&lists] {
    const int error = lists.dir.SetPath(ui::disk().CurrentDirectory());
    return error != 0 ? error : ui::disk().ChangeDirectory(lists.dir.Path());
  });
}

void FollowDirectory(DiskLists lists) {
  if (lists.files.SetPath(lists.dir.Path()) == 0) ui::disk().ChangeDirectory(lists.dir.Path());
}

std::string SelectedFile(const ui::FileListBox& files) {
  const std::string name = files.FileName();
  return name.empty() ? std::string() : JoinPath(files.Path(), name);
}

void PlayWave(ui::MMControl& media, const std::string& fileName) {
  media.SetNotify(false);
  media.SetWait(true);
  media.SetShareable(false);
  media.SetDeviceType("WaveAudio");
  media.SetFileName(fileName);
  media.SetCommand("Open");
  media.SetCommand("Play");
}

void PlaySpeechFile(ui::MMControl& media, const ui::FileListBox& files,
                    const std::string& noSelectionText, const std::string& tempName) {
  const std::string source = SelectedFile(files);
  if (source.empty()) {
    ui::platform().MsgBox(noSelectionText, ui::vbExclamation, "Play Function");
    return;
  }
  const std::string temp = TempFile(tempName);
  const int format = speech::SpeechFormatOfFile(source, SpeechAudioFormat);
  if (format == speech::kIllegalSpeechFormat) {
    ui::platform().MsgBox("Illegal speech file extension selected.", ui::vbExclamation,
                          "Play Function");
    return;
  }
  if (format == kWaveFormat) {
    if (const int err = ui::CopyFileDurably(source, temp); err != 0) {
      HandleDiskError("Play Function", SystemErrorNumber(err));
      return;
    }
  } else {
    ConvertMessage(speech::Convert(source.c_str(), static_cast<int16_t>(format), kRate,
                                   temp.c_str(), kWaveFormat, kRate));
  }
  PlayWave(media, temp);
}

std::string speech::GetSpeechFileExt() {
  const std::string_view ext = SpeechFileExt(SpeechAudioFormat);
  if (ext.empty()) {
    ui::ProgramError("Illegal speech format = " + Str(int64_t{SpeechAudioFormat}) +
                     " in GetSpeechFileExt.");
  }
  return std::string(ext);
}

}  // namespace kq
