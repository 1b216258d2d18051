// The platform without a window system: message boxes and dialogs answered from queues,
// every box, beep, focus change and dialog kept in an event log (and optionally written
// as JSON lines), settings in memory, and End() raising ProgramEnded.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "ui/headless/json.h"
#include "ui/platform/platform.h"

namespace ui {

// Thrown by End(): the program has ended after a "Program Error".
struct ProgramEnded : std::runtime_error {
  explicit ProgramEnded(const std::string& text) : std::runtime_error(text) {}
};

// Thrown when a modal form is shown with nothing to drive it.
struct ModalNotDriven : std::logic_error {
  explicit ModalNotDriven(const std::string& form)
      : std::logic_error("modal form " + form + " shown with nothing to drive it") {}
};

// Thrown, when the replies are strict, by a box that a queued answer names no button of.
// `line` is the script line that queued the answer.
struct ReplyMismatch : std::logic_error {
  ReplyMismatch(int atLine, const std::string& text) : std::logic_error(text), line(atLine) {}
  int line;
};

struct Event {
  std::string kind;  // the "event" field
  Json fields;       // the whole object, "event" included
  std::string ToJson() const { return fields.Dump(); }
};

class HeadlessPlatform : public Platform {
 public:
  HeadlessPlatform();
  ~HeadlessPlatform() override;

  // ---- Queues of answers
  // `line` names the script line that queued the reply (0: none).
  void QueueAnswer(int answer, int line = 0) { answers_.push_back({answer, line}); }
  void QueueFile(std::optional<std::string> path, int line = 0) {
    files_.push_back({std::move(path), line});
  }
  // The lines of the file replies that no dialog has taken yet, oldest first.
  std::vector<int> PendingFileLines() const;
  // An answer that names no button of the box it meets throws ReplyMismatch instead of
  // being returned as it is (the script runner).
  bool strictAnswers = false;
  // from, to, copies; nullopt cancels
  void QueuePrint(std::optional<PrintDialogRequest> r) { prints_.push_back(std::move(r)); }
  // Drives the next modal form that is shown (by name; empty matches any form).
  void QueueModal(std::string form, std::function<void(Form&)> action);
  // Drives every modal form for which no queued action waits (the script runner).
  std::function<void(Form&)> modalDriver;

  // ---- Event log
  const std::vector<Event>& Events() const { return events_; }
  void ClearEvents() { events_.clear(); }
  std::vector<Event> EventsOf(const std::string& kind) const;
  int CountOf(const std::string& kind) const;
  // Writes each event as a JSON line as it happens.
  void SetEventStream(std::ostream* out) { stream_ = out; }
  // Adds an event of the caller's own (state dumps, results).
  void Record(Json fields);

  // ---- Settings: section "Settings" of application "KQEdit" as key=value lines.
  std::map<std::string, std::string>& SettingsOf(const std::string& app,
                                                 const std::string& section);
  bool LoadSettingsFile(const std::string& path);
  bool SaveSettingsFile(const std::string& path) const;

  // ---- Configuration
  void SetScreen(int width, int height) { screenW_ = width, screenH_ = height; }
  void SetDataDirectory(std::string d) { dataDir_ = std::move(d); }
  void SetUserDirectory(std::string d) { userDir_ = std::move(d); }
  void SetTempDirectory(std::string d) { tempDir_ = std::move(d); }
  // The forms shown and not yet unloaded, outermost first.
  const std::vector<Form*>& OpenForms() const { return open_; }
  Form* TopForm() const { return open_.empty() ? nullptr : open_.back(); }
  // The modal form above `form` that keeps a person from it, or null: windows shown
  // without a modal loop (the main window, Simulate, Call Flow) take clicks side by side.
  Form* BlockingForm(const Form& form) const;
  const std::vector<std::string>& PrintedRows() const { return printed_; }

  // ---- Platform
  int MsgBox(const std::string& text, int flags, const std::string& title) override;
  void Beep() override;
  void SetMousePointer(int pointer) override { pointer_ = pointer; }
  int MousePointer() const override { return pointer_; }
  void ShowModal(Form& form) override;
  void Show(Form& form) override;
  void ShowModeless(Form& form) override { Show(form); }
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
  int ScreenWidth() const override { return screenW_; }
  int ScreenHeight() const override { return screenH_; }
  std::string DataDirectory() const override { return dataDir_; }
  std::string UserDirectory() const override { return userDir_; }
  std::string TempDirectory() const override { return tempDir_; }
  void Help(HelpCommand command) override;
  // Plays nothing; every command given to it is logged as a media event.
  std::unique_ptr<MediaDevice> CreateMediaDevice() override;
  [[noreturn]] void End() override;

 private:
  void Emit(Json fields);
  void FlushPage();

  std::deque<std::pair<int, int>> answers_;                       // answer, line
  std::deque<std::pair<std::optional<std::string>, int>> files_;  // path, line
  std::deque<std::optional<PrintDialogRequest>> prints_;
  std::deque<std::pair<std::string, std::function<void(Form&)>>> modal_;
  std::vector<const Form*> modalShown_;  // the forms of open_ shown modally
  std::vector<Event> events_;
  std::ostream* stream_ = nullptr;
  std::map<std::string, std::map<std::string, std::string>> settings_;
  std::vector<Form*> open_;
  std::vector<std::string> page_;
  std::vector<std::string> printed_;
  int pointer_ = vbDefault;
  int screenW_ = 28800, screenH_ = 16200;
  std::string dataDir_, userDir_, tempDir_;
};

}  // namespace ui
