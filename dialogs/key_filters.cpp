// The key filters of value fields and label-target combos. Key codes are Windows-1252.
#include "dialogs/services.h"
#include "document/text.h"
#include "ui/model/control.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

constexpr int kBackspace = 8;
constexpr int kEnter = 13;
constexpr int kMaxLabelKeys = 15;

bool IsDigit(int key) {
  return key >= '0' && key <= '9';
}

void Refuse(int& keyAscii) {
  keyAscii = 0;
  ui::platform().Beep();
}

}  // namespace

bool IsStringKey(int key) {
  if (key == 32 || IsDigit(key)) return true;
  if ((key >= 'A' && key <= 'Z') || (key >= 'a' && key <= 'z')) return true;
  switch (key) {
    // The signs.
    case 33:
    case 35:
    case 36:
    case 37:
    case 38:
    case 39:
    case 40:
    case 41:
    case 42:
    case 43:
    case 44:
    case 45:
    case 46:
    case 47:
    case 58:
    case 59:
    case 60:
    case 61:
    case 62:
    case 63:
    case 64:
    case 91:
    case 92:
    case 93:
    case 94:
    case 95:
    case 96:
    case 123:
    case 124:
    case 125:
    case 126:
    case 163:
    case 164:
    case 167:
    case 168:
    case 180:
    case 189:
    // The six letters beyond A to Z.
    case 197:
    case 198:
    case 216:
    case 229:
    case 230:
    case 248:
      return true;
    default:
      return false;
  }
}

void LegalInput(TextControl control, int dataType, int& keyAscii) {
  int limit = 0;
  switch (dataType) {
    case 0:
    case 3:
      limit = 9;
      break;
    case 1:
    case 2:
      limit = 27;
      break;
    default:
      ui::ProgramError("Illegal variable datatype " + Str(int64_t{dataType}) +
                       " in Global LegalInput.");
  }
  if (keyAscii == kBackspace) return;
  if (keyAscii == kEnter) {
    keyAscii = 0;
    return;
  }
  const std::string& text = control.Text();
  const int length = static_cast<int>(text.size());
  // Full: the limit is reached and the text is not wholly selected, so a new character
  // would not replace it.
  const bool full = length >= limit && control.SelLength() != length;
  const bool isMinus = keyAscii == '-' && (dataType == 0 || dataType == 1);
  if (isMinus) {
    if (length != 0 && control.SelLength() == 0) Refuse(keyAscii);
    return;
  }
  bool allowed = false;
  switch (dataType) {
    case 0:
    case 3:
      allowed = IsDigit(keyAscii);
      break;
    case 1:
      allowed = IsDigit(keyAscii) || (keyAscii == '.' && text.find('.') == std::string::npos);
      break;
    default:
      allowed = IsStringKey(keyAscii);
      break;
  }
  if (!allowed || full) Refuse(keyAscii);
}

void LegalLabelKey(TextControl control, int& keyAscii) {
  if (keyAscii == kBackspace) return;
  if (keyAscii == kEnter) {
    keyAscii = 0;
    return;
  }
  if (!IsStringKey(keyAscii) || static_cast<int>(control.Text().size()) >= kMaxLabelKeys) {
    Refuse(keyAscii);
  }
}

void TypeText(ui::Control& control, std::string_view text) {
  for (const char c : text) control.UserKey(static_cast<unsigned char>(c));
}

}  // namespace kq
