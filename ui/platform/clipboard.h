// The system clipboard as the logic sees it: a set of formats, each a MIME type with its
// bytes. Text formats ("text/plain") hold the system's Windows-1252 text; the desktop's
// clipboard converts it at its edge. Memory holds the clipboard of one process (the
// headless runner, the tests); the desktop program puts the window system's in its place.
#pragma once

#include <map>
#include <string>

namespace ui {

inline constexpr const char* kPlainTextMime = "text/plain";

// MIME type to bytes.
using ClipboardData = std::map<std::string, std::string>;

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  // Replaces everything the clipboard holds.
  virtual void Set(const ClipboardData& data) = 0;
  virtual ClipboardData Get() const = 0;
};

// A clipboard in memory, shared by everything in this process.
class MemoryClipboard : public Clipboard {
 public:
  void Set(const ClipboardData& data) override { data_ = data; }
  ClipboardData Get() const override { return data_; }

 private:
  ClipboardData data_;
};

// The clipboard in use: the memory one unless another has been put in its place.
Clipboard& clipboard();
// nullptr gives back the memory clipboard.
void SetClipboard(Clipboard* c);

}  // namespace ui
