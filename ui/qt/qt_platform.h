// The platform of the desktop program: Qt message boxes, file and print dialogs, QSettings,
// the printer, the help window, and the windows of the forms. Tests can answer the next
// boxes and dialogs from queues (as the headless platform does) and act inside a modal
// dialog's loop on its real widgets.
#pragma once

#include <QPointer>
#include <QString>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ui/platform/platform.h"

class QDialog;
class QWidget;

namespace ui::qt {

class DialogWindow;
class MainWindow;
class FormBinding;
class HelpWindow;
class PrintJob;

class QtPlatform : public Platform {
 public:
  QtPlatform();
  ~QtPlatform() override;

  // ---- Where things are
  // The data folder, when it is not the installed one beside the program.
  void SetDataDirectory(std::string dir) { dataDir_ = std::move(dir); }
  // Whether the end of the main window ends the event loop (not in tests).
  void SetQuitOnMainUnload(bool quit) { quitOnMainUnload_ = quit; }

  // ---- Test hooks: answers for the next boxes and dialogs, so no test ever blocks.
  void QueueAnswer(int answer) { answers_.push_back(answer); }
  void QueueFile(std::optional<std::string> path) { files_.push_back(std::move(path)); }
  void QueuePrint(std::optional<PrintDialogRequest> r) { prints_.push_back(std::move(r)); }
  // Runs inside the loop of the next modal dialog, once it is shown.
  void QueueModal(std::function<void(QDialog&, FormBinding&)> action) {
    modal_.push_back(std::move(action));
  }
  // Where printing goes as PDF when the print dialog was answered from the queue.
  void SetPrintFile(std::string path) { printFile_ = std::move(path); }

  struct ShownBox {
    std::string title, text;
    int flags = 0;
    int answer = 0;
  };
  const std::vector<ShownBox>& Boxes() const { return boxes_; }
  int BeepCount() const { return beeps_; }
  std::vector<FileDialogRequest>& FileRequests() { return fileRequests_; }

  // ---- The windows of the forms now shown
  MainWindow* Main() const { return main_; }
  // Takes the main window down; call it before its form goes away.
  void CloseMain();
  FormBinding* BindingOf(const Form& form) const;
  QWidget* WindowOf(const Form& form) const;
  HelpWindow* HelpWindowShown() const;

  // ---- Platform
  int MsgBox(const std::string& text, int flags, const std::string& title) override;
  void Beep() override;
  void SetMousePointer(int pointer) override;
  int MousePointer() const override { return pointer_; }
  void ShowModal(Form& form) override;
  void Show(Form& form) override;
  void ShowModeless(Form& form) override;
  void FormUnloaded(Form& form) override;
  void FocusChanged(Form& form, Control& control) override;
  std::optional<std::string> FileDialog(const FileDialogRequest& request) override;
  std::string GetSetting(const std::string& app, const std::string& section, const std::string& key,
                         const std::string& def) override;
  void SaveSetting(const std::string& app, const std::string& section, const std::string& key,
                   const std::string& value) override;
  bool PrintDialog(PrintDialogRequest& request) override;
  void PrintRow(const std::string& row) override;
  void NewPage() override;
  void EndDoc() override;
  int ScreenWidth() const override;
  int ScreenHeight() const override;
  std::unique_ptr<MediaDevice> CreateMediaDevice() override;
  std::string DataDirectory() const override;
  std::string UserDirectory() const override;
  std::string TempDirectory() const override;
  void Help(HelpCommand command) override;
  [[noreturn]] void End() override;

 private:
  QWidget* TopWindow() const;

  std::deque<int> answers_;
  std::deque<std::optional<std::string>> files_;
  std::deque<std::optional<PrintDialogRequest>> prints_;
  std::deque<std::function<void(QDialog&, FormBinding&)>> modal_;
  std::vector<ShownBox> boxes_;
  std::vector<FileDialogRequest> fileRequests_;
  int beeps_ = 0;
  int pointer_ = vbDefault;
  std::string dataDir_;
  std::string printFile_;
  bool quitOnMainUnload_ = true;

  MainWindow* main_ = nullptr;
  std::vector<std::pair<Form*, DialogWindow*>> dialogs_;  // innermost last
  std::vector<std::pair<Form*, DialogWindow*>> modeless_;
  QPointer<HelpWindow> help_;
  std::unique_ptr<PrintJob> print_;
};

// "Description|pattern|Description|pattern" as the toolkit's "Description (pattern);;...".
QString QtFilter(const std::string& filter, int filterIndex, QString* selected);
// The answer of a message box for the button pressed, and the buttons of the flags.
int AnswerOfButton(int standardButton);

}  // namespace ui::qt
