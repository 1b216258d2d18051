// The one interface through which the logic reaches the world: message boxes, beeps,
// modal forms, file and print dialogs, the settings store, the printer, help and the end
// of the program. The desktop program and the headless runner each provide one.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "ui/platform/media.h"

namespace ui {

// The application and section under which the program keeps its settings.
inline constexpr char kSettingsApplication[] = "KQEdit";
inline constexpr char kSettingsSection[] = "Settings";

class Form;
class Control;

// Message box flags and answers, with the values of the original toolkit.
enum MsgBoxFlags : int {
  vbOKOnly = 0,
  vbOKCancel = 1,
  vbAbortRetryIgnore = 2,
  vbYesNoCancel = 3,
  vbYesNo = 4,
  vbRetryCancel = 5,
  vbCritical = 16,
  vbQuestion = 32,
  vbExclamation = 48,
  vbInformation = 64,
  vbDefaultButton2 = 256,
  vbDefaultButton3 = 512,
};
enum MsgBoxAnswer : int {
  vbOK = 1,
  vbCancel = 2,
  vbAbort = 3,
  vbRetry = 4,
  vbIgnore = 5,
  vbYes = 6,
  vbNo = 7
};

inline constexpr int kButtonsMask = 7;
inline constexpr int kIconMask = 112;

// Mouse pointers.
inline constexpr int vbDefault = 0;
inline constexpr int vbHourglass = 11;

struct FileDialogRequest {
  enum class Kind { Open, Save };
  Kind kind = Kind::Open;
  std::string initDir;   // initial directory
  std::string fileName;  // initial file name
  std::string filter;    // "Description|pattern" pairs
  int filterIndex = 1;
};

struct PrintDialogRequest {
  int fromPage = 0;  // 0 with toPage 0: all pages
  int toPage = 0;
  int copies = 1;
  int maxPage = 0;  // pages the document has, when known
};

enum class HelpCommand { Contents, Index, Search, CloseAll };

class Platform {
 public:
  virtual ~Platform() = default;

  virtual int MsgBox(const std::string& text, int flags, const std::string& title) = 0;
  virtual void Beep() = 0;
  virtual void SetMousePointer(int pointer) = 0;
  virtual int MousePointer() const = 0;

  // Runs the form's Load, then the modal loop until the form unloads.
  virtual void ShowModal(Form& form) = 0;
  // Shows a form without a modal loop (the main window).
  virtual void Show(Form& form) = 0;
  // Shows a window beside the main window, without a modal loop; it stays until its form
  // unloads. A platform without such windows shows it modally.
  virtual void ShowModeless(Form& form) { ShowModal(form); }
  // Called by the model when a form has unloaded, so the window goes away.
  virtual void FormUnloaded(Form& form) = 0;
  // Called by the model whenever a control takes the focus.
  virtual void FocusChanged(Form& form, Control& control) = 0;

  // Cancel gives no value.
  virtual std::optional<std::string> FileDialog(const FileDialogRequest& request) = 0;

  virtual std::string GetSetting(const std::string& app, const std::string& section,
                                 const std::string& key, const std::string& def) = 0;
  virtual void SaveSetting(const std::string& app, const std::string& section,
                           const std::string& key, const std::string& value) = 0;

  // Printer. PrintDialog returns false on cancel and fills pages and copies.
  virtual bool PrintDialog(PrintDialogRequest& request) = 0;
  virtual void PrintRow(const std::string& row) = 0;
  virtual void NewPage() = 0;
  virtual void EndDoc() = 0;

  // Screen size in twips.
  virtual int ScreenWidth() const = 0;
  virtual int ScreenHeight() const = 0;
  // The installed data folder (read only), the user's documents folder, and a per-user
  // folder for temporary files.
  virtual std::string DataDirectory() const = 0;
  virtual std::string UserDirectory() const = 0;
  virtual std::string TempDirectory() const = 0;

  virtual void Help(HelpCommand command) = 0;

  // A fresh media device for a media control. The plain one reads WAVE headers and plays
  // nothing.
  virtual std::unique_ptr<MediaDevice> CreateMediaDevice() {
    return std::make_unique<MediaDevice>();
  }

  // Ends the program at once, without saving.
  [[noreturn]] virtual void End() = 0;
};

Platform& platform();
void SetPlatform(Platform* p);
// The platform installed now, or null.
Platform* InstalledPlatform();

// A state that cannot occur: the critical box titled "Program Error", then the end.
[[noreturn]] void ProgramError(const std::string& text);
// The text of the last program error shown, for the runner's report.
const std::string& LastProgramError();

}  // namespace ui
