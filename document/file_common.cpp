#include "document/file_common.h"

#include "document/disk_error.h"
#include "document/file_io.h"
#include "document/kqx_format.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

bool ReadFileForCommand(const std::string& title, const std::string& path,
                        std::vector<uint8_t>& bytes) {
  // Leave, raise and any other answer end the command; the document is untouched.
  return RetryDiskOperation(title, [&] { return ReadWholeFile(path, bytes, kMaxKqxFileSize); }) ==
         0;
}

Hourglass::Hourglass() {
  ui::platform().SetMousePointer(ui::vbHourglass);
}

Hourglass::~Hourglass() {
  ui::platform().SetMousePointer(ui::vbDefault);
}

void FileErrorBox(const std::string& text) {
  ui::platform().MsgBox(text, ui::vbOKOnly | ui::vbExclamation, "File Error");
}

void SetLineNumber(std::string& displayLine, int number) {
  const std::string digits = Format0000(number);
  for (size_t k = 0; k < 4 && k < displayLine.size() && k < digits.size(); ++k) {
    displayLine[k] = digits[k];
  }
}

}  // namespace kq
