#include "ui/headless/headless_platform.h"

#include <algorithm>
#include <fstream>

#include "ui/model/control.h"
#include "ui/model/form.h"
#include "ui/platform/durable_file.h"

namespace ui {

namespace {

const char* ButtonsName(int flags) {
  switch (flags & kButtonsMask) {
    case vbOKCancel:
      return "OKCancel";
    case vbAbortRetryIgnore:
      return "AbortRetryIgnore";
    case vbYesNoCancel:
      return "YesNoCancel";
    case vbYesNo:
      return "YesNo";
    case vbRetryCancel:
      return "RetryCancel";
    default:
      return "OK";
  }
}

int FirstButton(int flags) {
  switch (flags & kButtonsMask) {
    case vbOKCancel:
      return vbOK;
    case vbAbortRetryIgnore:
      return vbAbort;
    case vbYesNoCancel:
    case vbYesNo:
      return vbYes;
    case vbRetryCancel:
      return vbRetry;
    default:
      return vbOK;
  }
}

bool HasButton(int flags, int answer) {
  switch (flags & kButtonsMask) {
    case vbOKCancel:
      return answer == vbOK || answer == vbCancel;
    case vbAbortRetryIgnore:
      return answer == vbAbort || answer == vbRetry || answer == vbIgnore;
    case vbYesNoCancel:
      return answer == vbYes || answer == vbNo || answer == vbCancel;
    case vbYesNo:
      return answer == vbYes || answer == vbNo;
    case vbRetryCancel:
      return answer == vbRetry || answer == vbCancel;
    default:
      return answer == vbOK;
  }
}

const char* IconName(int flags) {
  switch (flags & kIconMask) {
    case vbCritical:
      return "critical";
    case vbQuestion:
      return "question";
    case vbExclamation:
      return "exclamation";
    case vbInformation:
      return "information";
    default:
      return "none";
  }
}

const char* AnswerName(int answer) {
  switch (answer) {
    case vbOK:
      return "OK";
    case vbCancel:
      return "Cancel";
    case vbAbort:
      return "Abort";
    case vbRetry:
      return "Retry";
    case vbIgnore:
      return "Ignore";
    case vbYes:
      return "Yes";
    case vbNo:
      return "No";
    default:
      return "?";
  }
}

Json Object(const char* kind) {
  Json j;
  j.Set("event", kind);
  return j;
}

}  // namespace

HeadlessPlatform::HeadlessPlatform() = default;
HeadlessPlatform::~HeadlessPlatform() = default;

void HeadlessPlatform::QueueModal(std::string form, std::function<void(Form&)> action) {
  modal_.emplace_back(std::move(form), std::move(action));
}

std::vector<Event> HeadlessPlatform::EventsOf(const std::string& kind) const {
  std::vector<Event> out;
  std::copy_if(events_.begin(), events_.end(), std::back_inserter(out),
               [&](const Event& e) { return e.kind == kind; });
  return out;
}

int HeadlessPlatform::CountOf(const std::string& kind) const {
  return static_cast<int>(std::count_if(events_.begin(), events_.end(),
                                        [&](const Event& e) { return e.kind == kind; }));
}

void HeadlessPlatform::Record(Json fields) {
  Emit(std::move(fields));
}

void HeadlessPlatform::Emit(Json fields) {
  Event e{fields["event"].Str(), std::move(fields)};
  if (stream_) *stream_ << e.ToJson() << '\n' << std::flush;
  events_.push_back(std::move(e));
}

std::vector<int> HeadlessPlatform::PendingFileLines() const {
  std::vector<int> lines;
  for (const auto& reply : files_) lines.push_back(reply.second);
  return lines;
}

int HeadlessPlatform::MsgBox(const std::string& text, int flags, const std::string& title) {
  const bool queued = !answers_.empty();
  int answer = FirstButton(flags);
  if (queued) {
    const auto [code, line] = answers_.front();
    answers_.pop_front();
    if (strictAnswers && !HasButton(flags, code)) {
      throw ReplyMismatch(line, std::string("answer ") + AnswerName(code) +
                                    " names no button of the box \"" + title + "\" (" +
                                    ButtonsName(flags) + ")");
    }
    answer = code;
  }
  Json j = Object("msgbox");
  j.Set("title", title);
  j.Set("text", text);
  j.Set("icon", IconName(flags));
  j.Set("buttons", ButtonsName(flags));
  j.Set("answer", AnswerName(answer));
  j.Set("default", !queued);
  Emit(std::move(j));
  return answer;
}

void HeadlessPlatform::Beep() {
  Emit(Object("beep"));
}

Form* HeadlessPlatform::BlockingForm(const Form& form) const {
  for (auto it = open_.rbegin(); it != open_.rend() && *it != &form; ++it) {
    if (std::find(modalShown_.begin(), modalShown_.end(), *it) != modalShown_.end()) return *it;
  }
  return nullptr;
}

void HeadlessPlatform::ShowModal(Form& form) {
  open_.push_back(&form);
  modalShown_.push_back(&form);
  Json j = Object("show");
  j.Set("form", form.Name());
  Emit(std::move(j));
  form.DoLoad();
  if (form.Loaded()) {
    std::function<void(Form&)> action;
    if (!modal_.empty() && (modal_.front().first.empty() || modal_.front().first == form.Name())) {
      action = std::move(modal_.front().second);
      modal_.pop_front();
    } else if (modalDriver) {
      action = modalDriver;
    }
    if (!action) {
      open_.erase(std::remove(open_.begin(), open_.end(), &form), open_.end());
      modalShown_.erase(std::remove(modalShown_.begin(), modalShown_.end(), &form),
                        modalShown_.end());
      throw ModalNotDriven(form.Name());
    }
    action(form);
    if (form.Loaded()) {
      open_.erase(std::remove(open_.begin(), open_.end(), &form), open_.end());
      modalShown_.erase(std::remove(modalShown_.begin(), modalShown_.end(), &form),
                        modalShown_.end());
      throw ModalNotDriven(form.Name());
    }
  }
}

void HeadlessPlatform::Show(Form& form) {
  open_.push_back(&form);
  Json j = Object("show");
  j.Set("form", form.Name());
  Emit(std::move(j));
  form.DoLoad();
}

void HeadlessPlatform::FormUnloaded(Form& form) {
  open_.erase(std::remove(open_.begin(), open_.end(), &form), open_.end());
  modalShown_.erase(std::remove(modalShown_.begin(), modalShown_.end(), &form), modalShown_.end());
  Json j = Object("unload");
  j.Set("form", form.Name());
  Emit(std::move(j));
}

void HeadlessPlatform::FocusChanged(Form& form, Control& control) {
  Json j = Object("focus");
  j.Set("form", form.Name());
  j.Set("control", control.Name());
  j.Set("index", control.Index() < 0 ? Json() : Json(control.Index()));
  Emit(std::move(j));
}

std::optional<std::string> HeadlessPlatform::FileDialog(const FileDialogRequest& request) {
  std::optional<std::string> answer;
  if (!files_.empty()) {
    answer = std::move(files_.front().first);
    files_.pop_front();
  }
  Json j = Object("filedialog");
  j.Set("kind", request.kind == FileDialogRequest::Kind::Open ? "open" : "save");
  j.Set("filter", request.filter);
  j.Set("answer", answer ? Json(*answer) : Json());
  Emit(std::move(j));
  return answer;
}

std::map<std::string, std::string>& HeadlessPlatform::SettingsOf(const std::string& app,
                                                                 const std::string& section) {
  return settings_[app + '\n' + section];
}

std::string HeadlessPlatform::GetSetting(const std::string& app, const std::string& section,
                                         const std::string& key, const std::string& def) {
  const auto& s = SettingsOf(app, section);
  auto it = s.find(key);
  return it == s.end() ? def : it->second;
}

void HeadlessPlatform::SaveSetting(const std::string& app, const std::string& section,
                                   const std::string& key, const std::string& value) {
  SettingsOf(app, section)[key] = value;
}

bool HeadlessPlatform::LoadSettingsFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return false;
  auto& s = SettingsOf(kSettingsApplication, kSettingsSection);
  std::string line;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const auto eq = line.find('=');
    if (eq == std::string::npos) continue;
    s[line.substr(0, eq)] = line.substr(eq + 1);
  }
  return true;
}

bool HeadlessPlatform::SaveSettingsFile(const std::string& path) const {
  std::string text;
  auto it = settings_.find(std::string("KQEdit\nSettings"));
  if (it != settings_.end()) {
    for (const auto& [k, v] : it->second) text += k + '=' + v + '\n';
  }
  return WriteFileDurably(path, text.data(), text.size()) == 0;
}

bool HeadlessPlatform::PrintDialog(PrintDialogRequest& request) {
  std::optional<PrintDialogRequest> answer;
  if (!prints_.empty()) {
    answer = prints_.front();
    prints_.pop_front();
  }
  Json j = Object("printdialog");
  if (answer) {
    request.fromPage = answer->fromPage;
    request.toPage = answer->toPage;
    request.copies = answer->copies;
    j.Set("from", request.fromPage);
    j.Set("to", request.toPage);
    j.Set("copies", request.copies);
    j.Set("answer", "OK");
  } else {
    j.Set("answer", "Cancel");
  }
  Emit(std::move(j));
  return answer.has_value();
}

void HeadlessPlatform::PrintRow(const std::string& row) {
  page_.push_back(row);
  printed_.push_back(row);
}

void HeadlessPlatform::FlushPage() {
  Json::Array rows;
  for (auto& r : page_) rows.emplace_back(r);
  Json j = Object("page");
  j.Set("rows", std::move(rows));
  Emit(std::move(j));
  page_.clear();
}

void HeadlessPlatform::NewPage() {
  FlushPage();
}

void HeadlessPlatform::EndDoc() {
  if (!page_.empty()) FlushPage();
}

void HeadlessPlatform::Help(HelpCommand) {}

namespace {

// The plain device, with each command logged as a media event.
class LoggedMedia : public MediaDevice {
 public:
  explicit LoggedMedia(HeadlessPlatform& p) : p_(p) {}
  int Open(const std::string& deviceType, const std::string& fileName) override {
    Log("Open", fileName);
    return MediaDevice::Open(deviceType, fileName);
  }
  void Close() override {
    Log("Close", OpenFile());
    MediaDevice::Close();
  }
  int Play() override {
    Log("Play", OpenFile());
    return MediaDevice::Play();
  }
  int Record() override {
    Log("Record", OpenFile());
    return MediaDevice::Record();
  }
  int Stop() override {
    Log("Stop", OpenFile());
    return MediaDevice::Stop();
  }
  int Seek(int32_t milliseconds) override {
    Log("Seek", OpenFile());
    return MediaDevice::Seek(milliseconds);
  }
  int Save(const std::string& fileName) override {
    Log("Save", fileName);
    return MediaDevice::Save(fileName);
  }

 private:
  void Log(const char* command, const std::string& file) {
    Json j;
    j.Set("event", "media");
    j.Set("command", command);
    j.Set("file", file);
    p_.Record(std::move(j));
  }
  HeadlessPlatform& p_;
};

}  // namespace

std::unique_ptr<MediaDevice> HeadlessPlatform::CreateMediaDevice() {
  return std::make_unique<LoggedMedia>(*this);
}

void HeadlessPlatform::End() {
  throw ProgramEnded(LastProgramError());
}

}  // namespace ui
