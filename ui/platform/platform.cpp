#include "ui/platform/platform.h"

#include <cstdlib>

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

const std::string& LastProgramError() {
  return g_lastProgramError;
}

}  // namespace ui
