// The window system's clipboard behind ui::Clipboard: every format goes through QMimeData,
// so another program (another KQEdit included) sees what this one copied. Plain text is
// converted between the system's Windows-1252 and Unicode here.
#pragma once

#include "ui/platform/clipboard.h"

namespace ui::qt {

class QtClipboard : public Clipboard {
 public:
  void Set(const ClipboardData& data) override;
  ClipboardData Get() const override;
};

}  // namespace ui::qt
