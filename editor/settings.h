// The editor's settings: one table of keys with the defaults given to their reads, and the
// readers and writers of the settings store (application "KQEdit", section "Settings").
#pragma once

#include <cstdint>
#include <string>

namespace kq {

enum class EditorSetting {
  WindowState,
  Top,
  Left,
  Width,
  Height,
  SpeechFormat,
  PathName,
  Recent1,
  Recent2,
  Recent3,
  Recent4,
};

struct SettingKey {
  EditorSetting id;
  const char* key;
  const char* def;  // the default given to the read
};

// Every key of the editor, with its default.
const SettingKey& SettingOf(EditorSetting id);
inline constexpr int kRecentFiles = 4;
EditorSetting RecentSetting(int i);  // 1 to 4

std::string ReadSetting(EditorSetting id);
void WriteSetting(EditorSetting id, const std::string& value);
// A 16-bit number held as text; text that is no number reads as 0, and values beyond the
// 16-bit range are held at its ends.
int16_t ReadSetting16(EditorSetting id);
void WriteSetting16(EditorSetting id, int value);
int16_t ToInt16(double value);

// "ApplPathName": empty becomes the user's documents folder.
void LoadApplPathName();
void SaveApplPathName();

}  // namespace kq
