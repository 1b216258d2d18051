#include "ui/headless/script_runner.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <optional>
#include <string_view>
#include <vector>

#include "ui/headless/headless_platform.h"
#include "ui/headless/script_actions.h"
#include "ui/headless/script_parser.h"
#include "ui/headless/script_state.h"
#include "ui/model/controls.h"
#include "ui/model/file_controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"
#include "ui/model/menu.h"
#include "ui/platform/clipboard.h"

namespace ui {

namespace {

// A fault of the script itself: the run stops with exit status 3.
struct ScriptError {
  int line;
  std::string message;
};

// The script does not fit what the program did: the run stops with exit status 4.
struct ScriptMismatch {
  int line;
  std::string message;
};

class Runner {
 public:
  Runner(HeadlessPlatform& platform, const ScriptHooks& hooks) : p_(platform), hooks_(hooks) {}

  int Run(std::istream& script) {
    std::string line;
    while (std::getline(script, line)) lines_.push_back(line);
    // A byte order mark that an editor put in front of the first line is not part of it.
    if (!lines_.empty() && lines_[0].rfind("\xEF\xBB\xBF", 0) == 0) lines_[0].erase(0, 3);
    p_.modalDriver = [this](Form& form) { RunUntilUnloaded(&form); };
    const bool wasStrict = p_.strictAnswers;
    p_.strictAnswers = true;
    int status = kScriptOk;
    try {
      if (hooks_.start) hooks_.start();
      RunUntilUnloaded(nullptr);
      ExpectFileRepliesTaken(awaiting_, 0);  // none left at the end either
    } catch (const ProgramEnded& e) {
      Json j;
      j.Set("event", "programend");
      j.Set("text", e.what());
      p_.Record(std::move(j));
      status = kScriptProgramEnded;
    } catch (const ScriptError& e) {
      Error(e.line, e.message);
      status = kScriptWrong;
    } catch (const ModalNotDriven& e) {
      Error(current_, e.what());
      status = kScriptWrong;
    } catch (const ScriptMismatch& e) {
      Error(e.line, e.message);
      status = kScriptMismatch;
    } catch (const ReplyMismatch& e) {
      Error(e.line, e.what());
      status = kScriptMismatch;
    }
    p_.strictAnswers = wasStrict;
    p_.modalDriver = nullptr;
    return status;
  }

 private:
  void Error(int line, const std::string& message) {
    Json j;
    j.Set("event", "error");
    j.Set("line", line);
    j.Set("message", message);
    p_.Record(std::move(j));
  }

  void Refused(const std::string& reason) {
    Json j;
    j.Set("event", "refused");
    j.Set("line", current_);
    j.Set("reason", reason);
    p_.Record(std::move(j));
  }

  // Runs lines until the modal form has unloaded (or, for none, to the end).
  void RunUntilUnloaded(Form* modal) {
    while (next_ < lines_.size()) {
      if (modal != nullptr && !modal->Loaded()) return;
      const size_t at = next_++;
      const int saved = current_;
      current_ = static_cast<int>(at) + 1;
      RunLine(lines_[at]);
      current_ = saved;
    }
    if (modal != nullptr && modal->Loaded()) {
      throw ScriptError{static_cast<int>(lines_.size()),
                        "the modal dialog " + modal->Name() + " is left open at the end"};
    }
  }

  [[noreturn]] void Wrong(const std::string& message) { throw ScriptError{current_, message}; }
  [[noreturn]] void Mismatch(int line, const std::string& message) {
    throw ScriptMismatch{line, message};
  }

  // The file replies queued for a line must have been taken by a file dialog when it is
  // done: a reply left over would answer some later dialog by a guess.
  void ExpectFileRepliesTaken(const std::vector<int>& queuedAt, int actingLine) {
    if (queuedAt.empty()) return;
    const std::vector<int> pending = p_.PendingFileLines();
    for (int line : queuedAt) {
      if (std::find(pending.begin(), pending.end(), line) == pending.end()) continue;
      Mismatch(line, actingLine > 0 ? "no file dialog came for this reply (line " +
                                          std::to_string(actingLine) + " opened none)"
                                    : "no file dialog came for this reply");
    }
  }

  void RunLine(const std::string& raw) {
    std::string_view line(raw);
    while (!line.empty() && (line.front() == ' ' || line.front() == '\t')) line.remove_prefix(1);
    if (line.empty() || line.front() == '#' || line == "\r") return;
    // The script is UTF-8; every word of it, quoted or not, is taken in the system's code
    // page (quotes, blanks and backslashes are the same in both).
    const std::string text = Utf8ToCp1252(std::string(line));
    std::string problem;
    auto tokens = Tokenize(text, problem);
    if (!tokens) Wrong(problem);
    if (tokens->empty()) return;
    const std::vector<Token>& t = *tokens;
    const std::string& head = t[0].text;
    if (t[0].quoted) Wrong("a line must start with a command or a target");
    if (head == "answer") return Answer(t);
    if (head == "file") return File(t);
    if (head == "printdialog") return PrintDialog(t);
    if (head == "setting") return Setting(t);
    if (head == "show") return Show(t);
    if (head == "dump") return Dump(t);
    if (head == "clipboard") return ClipboardLine(t);
    if (head == "samefile") return SameFile(t);
    // The file replies queued so far are for this line and the dialogs it opens.
    std::vector<int> queuedAt;
    queuedAt.swap(awaiting_);
    Act(t);
    ExpectFileRepliesTaken(queuedAt, current_);
  }

  void Arity(const std::vector<Token>& t, size_t n) {
    if (t.size() != n) Wrong(t[0].text + " takes " + std::to_string(n - 1) + " argument(s)");
  }

  void Answer(const std::vector<Token>& t) {
    Arity(t, 2);
    const auto code = AnswerCode(t[1].text);
    if (!code || t[1].quoted) Wrong("unknown answer " + t[1].text);
    p_.QueueAnswer(*code, current_);
  }

  void File(const std::vector<Token>& t) {
    Arity(t, 2);
    if (!t[1].quoted && t[1].text == "cancel") {
      p_.QueueFile(std::nullopt, current_);
    } else if (t[1].quoted) {
      p_.QueueFile(t[1].text, current_);
    } else {
      Wrong("file takes a quoted path or cancel");
    }
    awaiting_.push_back(current_);
  }

  void PrintDialog(const std::vector<Token>& t) {
    if (t.size() == 2 && t[1].text == "cancel" && !t[1].quoted) {
      p_.QueuePrint(std::nullopt);
      return;
    }
    Arity(t, 4);
    PrintDialogRequest r;
    const auto from = ParseInt(t[1].text), to = ParseInt(t[2].text), copies = ParseInt(t[3].text);
    if (!from || !to || !copies) Wrong("printdialog takes from, to and copies");
    r.fromPage = *from;
    r.toPage = *to;
    r.copies = *copies;
    p_.QueuePrint(r);
  }

  void Setting(const std::vector<Token>& t) {
    Arity(t, 3);
    if (!t[1].quoted || !t[2].quoted) Wrong("setting takes a quoted key and a quoted value");
    p_.SaveSetting(kSettingsApplication, kSettingsSection, t[1].text, t[2].text);
  }

  // clipboard "type" "bytes" puts one format on the clipboard (as another program would);
  // clipboard show prints the formats it holds and its plain text.
  void ClipboardLine(const std::vector<Token>& t) {
    if (t.size() == 2 && !t[1].quoted && t[1].text == "show") {
      Json j;
      j.Set("event", "clipboard");
      Json::Array formats;
      const ClipboardData data = clipboard().Get();
      for (const auto& entry : data) formats.emplace_back(entry.first);
      j.Set("formats", std::move(formats));
      const auto text = data.find(kPlainTextMime);
      j.Set("text", text == data.end() ? Json() : Json(text->second));
      p_.Record(std::move(j));
      return;
    }
    Arity(t, 3);
    if (!t[1].quoted || !t[2].quoted) Wrong("clipboard takes a quoted type and quoted bytes");
    clipboard().Set(ClipboardData{{t[1].text, t[2].text}});
  }

  // samefile "a" "b" tells whether two files hold the same bytes.
  void SameFile(const std::vector<Token>& t) {
    Arity(t, 3);
    if (!t[1].quoted || !t[2].quoted) Wrong("samefile takes two quoted paths");
    auto read = [](const std::string& path) -> std::optional<std::string> {
      std::ifstream in(path, std::ios::binary);
      if (!in) return std::nullopt;
      return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    };
    const auto a = read(t[1].text);
    const auto b = read(t[2].text);
    Json j;
    j.Set("event", "samefile");
    j.Set("same", a.has_value() && b.has_value() && *a == *b);
    p_.Record(std::move(j));
  }

  void Dump(const std::vector<Token>& t) {
    Arity(t, 1);
    Json state;
    state.Set("event", "state");
    if (hooks_.dump) {
      const Json dumped = hooks_.dump();
      for (const auto& [key, value] : dumped.Obj()) state.Set(key, value);
    }
    p_.Record(std::move(state));
  }

  Form* OpenForm(const std::string& name) const {
    for (Form* f : p_.OpenForms()) {
      if (f->Name() == name) return f;
    }
    return nullptr;
  }

  void Show(const std::vector<Token>& t) {
    Arity(t, 2);
    const auto target = ParseTarget(t[1].text);
    if (!target) Wrong("bad target " + t[1].text);
    CheckKnownForm(target->form);
    Form* form = OpenForm(target->form);
    if (target->control.empty()) {
      if (form != nullptr) {
        p_.Record(FormState(*form));
      } else {
        Json j;
        j.Set("event", "state");
        j.Set("form", target->form);
        j.Set("visible", false);
        p_.Record(std::move(j));
      }
      return;
    }
    if (form == nullptr) return Refused("form " + target->form + " is not shown");
    Control* c = form->FindControl(target->control, target->index);
    if (c == nullptr) Mismatch(current_, "unknown control " + t[1].text);
    p_.Record(ControlState(*c));
  }

  void CheckKnownForm(const std::string& name) {
    if (hooks_.knownForm && !hooks_.knownForm(name)) Wrong("unknown form " + name);
  }

  // The form a person can act on: shown, and the one on top.
  Form* ActiveForm(const std::string& name) {
    Form* form = OpenForm(name);
    if (form == nullptr) {
      Refused("form " + name + " is not shown");
      return nullptr;
    }
    if (const Form* blocker = p_.BlockingForm(*form)) {
      Refused("form " + name + " is behind " + blocker->Name());
      return nullptr;
    }
    return form;
  }

  void Act(const std::vector<Token>& t) {
    const std::string& head = t[0].text;
    const auto dot = head.rfind('.');
    if (dot == std::string::npos) Wrong("unknown command " + head);
    const std::string action = head.substr(dot + 1);
    const auto target = ParseTarget(head.substr(0, dot));
    if (!target || action.empty()) Wrong("bad target " + head);
    CheckKnownForm(target->form);

    if (target->control.empty()) {
      if (action != "Close") Wrong("a form takes only Close");
      Arity(t, 1);
      if (Form* form = ActiveForm(target->form)) form->Close();
      return;
    }
    Form* form = ActiveForm(target->form);
    if (form == nullptr) return;
    Control* c = form->FindControl(target->control, target->index);
    if (c == nullptr) Mismatch(current_, "unknown control " + head.substr(0, dot));
    const std::string refusal = RefusalOf(*c);
    if (!refusal.empty()) return Refused(refusal);
    try {
      PerformAction(
          *form, *c, action, t, [this](const std::string& r) { Refused(r); }, hooks_.extra);
    } catch (const WrongAction& e) {
      Wrong(e.message);
    }
  }

  HeadlessPlatform& p_;
  const ScriptHooks& hooks_;
  std::vector<std::string> lines_;
  size_t next_ = 0;
  int current_ = 0;            // the line being run, from 1
  std::vector<int> awaiting_;  // file replies queued since the last acting line
};

}  // namespace

int RunScriptOn(HeadlessPlatform& platform, std::istream& script, const ScriptHooks& hooks) {
  SetPlatform(&platform);
  clipboard().Set({});  // every run starts with an empty clipboard
  Runner runner(platform, hooks);
  const int status = runner.Run(script);
  if (hooks.stop) {
    try {
      hooks.stop();
    } catch (const ProgramEnded&) {
      // a window that ends the program while it is dropped changes nothing any more
    }
  }
  return status;
}

int RunScript(std::istream& script, std::ostream& out, const ScriptOptions& options,
              const ScriptHooks& hooks) {
  HeadlessPlatform platform;
  platform.SetScreen(options.screenWidth, options.screenHeight);
  platform.SetDataDirectory(options.dataDir);
  platform.SetUserDirectory(options.homeDir);
  platform.SetTempDirectory(options.homeDir);
  if (!options.settingsFile.empty()) platform.LoadSettingsFile(options.settingsFile);
  platform.SetEventStream(&out);
  const int status = RunScriptOn(platform, script, hooks);
  if (!options.settingsFile.empty()) platform.SaveSettingsFile(options.settingsFile);
  SetPlatform(nullptr);  // the platform of this run ends here
  return status;
}

}  // namespace ui
