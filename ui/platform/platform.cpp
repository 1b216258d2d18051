#include "ui/platform/platform.h"

#include <cstdlib>

#include "ui/platform/run_time_error.h"

namespace ui {

namespace {
Platform* g_platform = nullptr;
std::string g_lastProgramError;
}  // namespace

Platform& platform() {
  if (g_platform == nullptr) std::abort();  // no platform installed: a fault of the program
  return *g_platform;
}

Platform* InstalledPlatform() {
  return g_platform;
}

void SetPlatform(Platform* p) {
  g_platform = p;
}

void ProgramError(const std::string& text) {
  g_lastProgramError = text;
  platform().MsgBox(text, vbCritical | vbOKOnly, "Program Error");
  platform().End();
  std::abort();  // End() never returns
}

std::string RunTimeErrorText(int number) {
  switch (number) {
    case 9:
      return "Subscript out of range";
    case 61:
      return "Disk full";
    case 68:
      return "Device unavailable";
    case 70:
      return "Permission denied";
    case 71:
      return "Disk not ready";
    case 75:
      return "Path/File access error";
    case 76:
      return "Path not found";
    case 380:
      return "Invalid property value";
    default:
      return "Application-defined or object-defined error";
  }
}

void RunTimeError(int number) {
  g_lastProgramError =
      "Run-time error '" + std::to_string(number) + "':\r\r" + RunTimeErrorText(number);
  platform().MsgBox(g_lastProgramError, vbCritical | vbOKOnly, "KQEdit");
  platform().End();
  std::abort();  // End() never returns
}

const std::string& LastProgramError() {
  return g_lastProgramError;
}

}  // namespace ui
