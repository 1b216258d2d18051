#include "editor/extra_windows.h"

namespace kq {

ExtraWindows& ExtraWindowHooks() {
  static ExtraWindows extras;
  return extras;
}

}  // namespace kq
