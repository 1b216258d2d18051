// Windows beyond the described ones whose forms live in libraries above the editor (the
// check of the whole application, the call-flow diagram). The program installs them at
// start; the main window's menu items call them when they are there.
#pragma once

#include <functional>

namespace kq {

struct ExtraWindows {
  std::function<void()> checkAll;
  std::function<void()> callFlow;
};
ExtraWindows& ExtraWindowHooks();

}  // namespace kq
