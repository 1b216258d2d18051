#include "ui/platform/clipboard.h"

namespace ui {

namespace {

MemoryClipboard& MemoryOne() {
  static MemoryClipboard memory;
  return memory;
}

Clipboard* g_clipboard = nullptr;

}  // namespace

Clipboard& clipboard() {
  return g_clipboard != nullptr ? *g_clipboard : MemoryOne();
}

void SetClipboard(Clipboard* c) {
  g_clipboard = c;
}

}  // namespace ui
