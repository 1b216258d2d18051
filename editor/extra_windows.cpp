#include "editor/extra_windows.h"

namespace kq {

ExtraWindows& Extras() {
  static ExtraWindows extras;
  return extras;
}

}  // namespace kq
