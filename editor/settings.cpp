#include "editor/settings.h"

#include <cmath>

#include "document/state.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

constexpr const char* kApp = ui::kSettingsApplication;
constexpr const char* kSection = ui::kSettingsSection;

constexpr SettingKey kSettings[] = {
    {EditorSetting::WindowState, "frmEditWindowStateNumber", "0"},
    {EditorSetting::Top, "frmEditTopPosition", "0"},
    {EditorSetting::Left, "frmEditLeftPosition", "0"},
    {EditorSetting::Width, "frmEditWidthPosition", "0"},
    {EditorSetting::Height, "frmEditHeightPosition", "0"},
    {EditorSetting::SpeechFormat, "SpeechAudioFormat", "-1"},
    {EditorSetting::PathName, "ApplPathName", ""},
    {EditorSetting::Recent1, "RecentFileName1", ""},
    {EditorSetting::Recent2, "RecentFileName2", ""},
    {EditorSetting::Recent3, "RecentFileName3", ""},
    {EditorSetting::Recent4, "RecentFileName4", ""},
};

}  // namespace

const SettingKey& SettingOf(EditorSetting id) {
  return kSettings[static_cast<int>(id)];
}

EditorSetting RecentSetting(int i) {
  return static_cast<EditorSetting>(static_cast<int>(EditorSetting::Recent1) + i - 1);
}

std::string ReadSetting(EditorSetting id) {
  const SettingKey& s = SettingOf(id);
  return ui::platform().GetSetting(kApp, kSection, s.key, s.def);
}

void WriteSetting(EditorSetting id, const std::string& value) {
  ui::platform().SaveSetting(kApp, kSection, SettingOf(id).key, value);
}

int16_t ToInt16(double value) {
  if (!std::isfinite(value)) return 0;
  // Whole numbers round half to even, as the integer conversion of the settings did.
  const double r = std::nearbyint(value);
  if (r > INT16_MAX) return INT16_MAX;
  if (r < INT16_MIN) return INT16_MIN;
  return static_cast<int16_t>(r);
}

int16_t ReadSetting16(EditorSetting id) {
  return ToInt16(Val(ReadSetting(id)));
}

void WriteSetting16(EditorSetting id, int value) {
  WriteSetting(id, Num(ToInt16(value)));
}

void LoadApplPathName() {
  ApplPathName = ReadSetting(EditorSetting::PathName);
  if (ApplPathName.empty()) ApplPathName = ui::platform().UserDirectory();
}

void SaveApplPathName() {
  WriteSetting(EditorSetting::PathName, ApplPathName);
}

}  // namespace kq
