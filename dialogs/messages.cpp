// The messages of the audio conversion's return codes, and the refusal of a name too long
// for its field.
#include "dialogs/convert_message.h"
#include "dialogs/services.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

std::string ConvertMessageText(int returnCode) {
  std::string text;
  switch (returnCode) {
    case 1:
      text = "No input filename specified.";
      break;
    case 2:
      text = "Error opening input filename.";
      break;
    case 3:
      text = "Error reading from input filename.";
      break;
    case 4:
      text = "Error opening output filename.";
      break;
    case 5:
      text = "Error writing to output filename.";
      break;
    case 6:
    case 7:
      text =
          "Illegal audio format, must be one of the following:\r\r"
          "1. Standard 24K ADPCM\r"
          "2. Standard 32K ADPCM\r"
          "3. Rhetorex 24K ADPCM\r"
          "4. Rhetorex 32K ADPCM\r"
          "5. u-Law PCM\r"
          "6. A-Law PCM\r"
          "7. Windows Wave format 8-bit\r"
          "8. Windows Wave format 16-bit\r"
          "9. Linear 128Kbit/Sec";
      break;
    case 8:
    case 9:
      text = "Illegal sample rate, must be:\r8000, 11025, 22050 or 44100 KHz.";
      break;
    case 10:
      text = "Invalid Wave file: Missing header.";
      break;
    case 11:
      text = "Invalid Wave file: Must have PCM type data.";
      break;
    case 12:
      text = "Illegal Wave file: File must be sampled at 8 or 16 bits per sample.";
      break;
    case 13:
      text = "Illegal Wave file: File must be mono.";
      break;
    case 14:
      text = "Illegal Wave file: Sample rate must be: 8000, 11025, 22050 or 44100 KHz.";
      break;
    case 15:
      text = "Illegal Wave file: Data offset mismatched.";
      break;
    case 16:
      text = "Illegal Wave file: Cannot read data section.";
      break;
    case 17:
      text = "Illegal Wave file: Fact chunk mismatched.";
      break;
    case 18:
      text = "Illegal Wave file: No data section.";
      break;
    case 19:
      text = "Illegal Wave file: No data size.";
      break;
    default:
      break;
  }
  return text;
}

void ConvertMessage(int returnCode) {
  if (returnCode == 0) return;
  const std::string text = ConvertMessageText(returnCode);
  if (text.empty()) {
    ui::ProgramError("Illegal return value " + Str(int64_t{returnCode}) +
                     " in Global ConvertMessage.");
  }
  ui::platform().MsgBox(text, ui::vbOKOnly | ui::vbExclamation, "Speech File Convert Error");
}

bool NameFits(std::string_view name, size_t width, const std::string& what,
              const std::string& title) {
  const size_t limit = width - 1;
  if (name.size() <= limit) return true;
  ui::platform().MsgBox(what + " " + std::string(name) + " has more than" +
                            Str(static_cast<int64_t>(limit)) + " characters.",
                        ui::vbOKOnly | ui::vbExclamation, title);
  return false;
}

}  // namespace kq
