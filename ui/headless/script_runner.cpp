#include "ui/headless/script_runner.h"

#include <cstdlib>
#include <optional>
#include <string_view>
#include <vector>

#include "ui/headless/headless_platform.h"
#include "ui/model/controls.h"
#include "ui/model/file_controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"
#include "ui/model/media_control.h"
#include "ui/model/menu.h"
#include "ui/model/scroll_bar.h"
#include "ui/model/svg_view.h"

namespace ui {

namespace {

// A fault of the script itself: the run stops with exit status 3.
struct ScriptError {
  int line;
  std::string message;
};

struct Token {
  std::string text;  // in Windows-1252; a quoted string is unescaped
  bool quoted = false;
};

// Splits a line (already in Windows-1252) into words and quoted strings.
std::optional<std::vector<Token>> Tokenize(std::string_view line, std::string& problem) {
  std::vector<Token> tokens;
  size_t i = 0;
  while (i < line.size()) {
    const char c = line[i];
    if (c == ' ' || c == '\t' || c == '\r') {
      ++i;
      continue;
    }
    Token t;
    if (c == '"') {
      t.quoted = true;
      std::string raw;
      ++i;
      bool closed = false;
      while (i < line.size()) {
        char d = line[i++];
        if (d == '"') {
          closed = true;
          break;
        }
        if (d == '\\') {
          if (i >= line.size()) break;
          const char e = line[i++];
          switch (e) {
            case '"':
              d = '"';
              break;
            case '\\':
              d = '\\';
              break;
            case 't':
              d = '\t';
              break;
            case 'r':
              d = '\r';
              break;
            case 'n':
              d = '\n';
              break;
            default:
              problem = std::string("unknown escape \\") + e;
              return std::nullopt;
          }
        }
        raw += d;
      }
      if (!closed) {
        problem = "string without its closing quote";
        return std::nullopt;
      }
      t.text = std::move(raw);
    } else {
      while (i < line.size() && line[i] != ' ' && line[i] != '\t' && line[i] != '\r') {
        if (line[i] == '"') {
          problem = "quote inside a word";
          return std::nullopt;
        }
        t.text += line[i++];
      }
    }
    tokens.push_back(std::move(t));
  }
  return tokens;
}

// form, form.control or form.control(index), with an action behind a last dot or not.
struct Target {
  std::string form;
  std::string control;  // empty: the form itself
  int index = -1;
};

std::optional<int> ParseInt(const std::string& s) {
  if (s.empty()) return std::nullopt;
  char* end = nullptr;
  const long v = std::strtol(s.c_str(), &end, 10);
  if (*end != '\0' || v < -1000000000L || v > 1000000000L) return std::nullopt;
  return static_cast<int>(v);
}

std::optional<Target> ParseTarget(const std::string& text) {
  Target t;
  const auto dot = text.find('.');
  t.form = text.substr(0, dot);
  if (t.form.empty()) return std::nullopt;
  if (dot == std::string::npos) return t;
  std::string rest = text.substr(dot + 1);
  if (rest.empty() || rest.find('.') != std::string::npos) return std::nullopt;
  const auto open = rest.find('(');
  if (open != std::string::npos) {
    if (rest.back() != ')') return std::nullopt;
    const auto index = ParseInt(rest.substr(open + 1, rest.size() - open - 2));
    if (!index || *index < 0) return std::nullopt;
    t.index = *index;
    rest = rest.substr(0, open);
  }
  if (rest.empty()) return std::nullopt;
  t.control = rest;
  return t;
}

std::string ControlLabel(const Control& c) {
  return c.Index() < 0 ? c.Name() : c.Name() + "(" + std::to_string(c.Index()) + ")";
}

std::optional<int> AnswerCode(const std::string& name) {
  if (name == "OK") return vbOK;
  if (name == "Cancel") return vbCancel;
  if (name == "Yes") return vbYes;
  if (name == "No") return vbNo;
  if (name == "Retry") return vbRetry;
  if (name == "Abort") return vbAbort;
  if (name == "Ignore") return vbIgnore;
  return std::nullopt;
}

// Why a person could not use the control, or empty when they could.
std::string RefusalOf(const Control& c) {
  if (c.Usable()) return {};
  if (!c.Enabled()) return ControlLabel(c) + " is disabled";
  if (!c.Visible()) return ControlLabel(c) + " is not visible";
  if (c.Kind() == ControlKind::Menu) {
    const auto& m = static_cast<const Menu&>(c);
    if (m.IsSeparator()) return ControlLabel(c) + " is a separator";
    return ControlLabel(c) + " is under a menu that is disabled";
  }
  return ControlLabel(c) + " is in a frame that is disabled";
}

Json ControlState(const Control& c) {
  Json j;
  j.Set("event", "state");
  j.Set("form", c.Parent().Name());
  j.Set("control", c.Name());
  j.Set("index", c.Index() < 0 ? Json() : Json(c.Index()));
  auto items = [&j](const std::vector<std::string>& list) {
    Json::Array a;
    for (const auto& s : list) a.emplace_back(s);
    j.Set("items", std::move(a));
  };
  switch (c.Kind()) {
    case ControlKind::Label:
    case ControlKind::CommandButton:
    case ControlKind::Frame:
    case ControlKind::Menu:
      j.Set("caption", c.Caption());
      break;
    case ControlKind::TextBox:
      j.Set("text", static_cast<const TextBox&>(c).Text());
      break;
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
      j.Set("caption", c.Caption());
      break;
    case ControlKind::ComboBox: {
      const auto& cb = static_cast<const ComboBox&>(c);
      j.Set("text", cb.Text());
      break;
    }
    case ControlKind::ListBox:
    case ControlKind::FileListBox:
      break;
    case ControlKind::DriveListBox:
      j.Set("text", static_cast<const DriveListBox&>(c).Drive());
      break;
    case ControlKind::DirListBox:
    case ControlKind::MediaControl:
      break;
    case ControlKind::ScrollBar:
      j.Set("value", static_cast<const HScrollBar&>(c).Value());
      break;
    case ControlKind::SvgView:
      j.Set("text", static_cast<const SvgView&>(c).Marked());
      break;
  }
  j.Set("enabled", c.Enabled());
  j.Set("visible", c.Visible());
  if (c.Kind() == ControlKind::CheckBox) j.Set("value", static_cast<const CheckBox&>(c).Value());
  if (c.Kind() == ControlKind::OptionButton) {
    j.Set("value", static_cast<const OptionButton&>(c).Value());
  }
  if (c.Kind() == ControlKind::Menu) j.Set("checked", static_cast<const Menu&>(c).Checked());
  if (c.Kind() == ControlKind::ComboBox) {
    const auto& cb = static_cast<const ComboBox&>(c);
    j.Set("ListIndex", cb.ListIndex());
    std::vector<std::string> list;
    for (int i = 0; i < cb.ListCount(); ++i) list.push_back(cb.List(i));
    items(list);
  } else if (c.Kind() == ControlKind::ListBox || c.Kind() == ControlKind::FileListBox) {
    const auto& lb = static_cast<const ListBox&>(c);
    j.Set("ListIndex", lb.ListIndex());
    items(lb.Items());
    Json::Array sel;
    for (int i : lb.SelectedIndexes()) sel.emplace_back(i);
    j.Set("selected", std::move(sel));
    if (c.Kind() == ControlKind::FileListBox) {
      const auto& fl = static_cast<const FileListBox&>(c);
      j.Set("path", fl.Path());
      j.Set("pattern", fl.Pattern());
    }
  } else if (c.Kind() == ControlKind::DirListBox) {
    const auto& dl = static_cast<const DirListBox&>(c);
    j.Set("ListIndex", dl.ListIndex());
    std::vector<std::string> list;
    for (int i = 0; i < dl.ListCount(); ++i) list.push_back(dl.List(i));
    items(list);
    j.Set("path", dl.Path());
  }
  return j;
}

Json FormState(const Form& f) {
  Json j;
  j.Set("event", "state");
  j.Set("form", f.Name());
  j.Set("caption", f.Caption());
  j.Set("visible", f.Visible());
  j.Set("active", f.ActiveControl() ? Json(ControlLabel(*f.ActiveControl())) : Json());
  return j;
}

class Runner {
 public:
  Runner(HeadlessPlatform& platform, const ScriptHooks& hooks) : p_(platform), hooks_(hooks) {}

  int Run(std::istream& script) {
    std::string line;
    while (std::getline(script, line)) lines_.push_back(line);
    // A byte order mark that an editor put in front of the first line is not part of it.
    if (!lines_.empty() && lines_[0].rfind("\xEF\xBB\xBF", 0) == 0) lines_[0].erase(0, 3);
    p_.modalDriver = [this](Form& form) { RunUntilUnloaded(&form); };
    int status = kScriptOk;
    try {
      if (hooks_.start) hooks_.start();
      RunUntilUnloaded(nullptr);
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
    }
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
    Act(t);
  }

  void Arity(const std::vector<Token>& t, size_t n) {
    if (t.size() != n) Wrong(t[0].text + " takes " + std::to_string(n - 1) + " argument(s)");
  }

  void Answer(const std::vector<Token>& t) {
    Arity(t, 2);
    const auto code = AnswerCode(t[1].text);
    if (!code || t[1].quoted) Wrong("unknown answer " + t[1].text);
    p_.QueueAnswer(*code);
  }

  void File(const std::vector<Token>& t) {
    Arity(t, 2);
    if (!t[1].quoted && t[1].text == "cancel") {
      p_.QueueFile(std::nullopt);
    } else if (t[1].quoted) {
      p_.QueueFile(t[1].text);
    } else {
      Wrong("file takes a quoted path or cancel");
    }
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
    p_.SaveSetting("KQEdit", "Settings", t[1].text, t[2].text);
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
    if (c == nullptr) Wrong("unknown control " + t[1].text);
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
    if (form != p_.TopForm()) {
      Refused("form " + name + " is behind " + p_.TopForm()->Name());
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
    if (c == nullptr) Wrong("unknown control " + head.substr(0, dot));
    const std::string refusal = RefusalOf(*c);
    if (!refusal.empty()) return Refused(refusal);
    Perform(*form, *c, action, t);
  }

  const std::string& StringArg(const std::vector<Token>& t, const std::string& action) {
    if (t.size() != 2 || !t[1].quoted) Wrong(action + " takes one quoted string");
    return t[1].text;
  }

  int IntArg(const std::vector<Token>& t, size_t i, const std::string& action) {
    if (t.size() <= i || t[i].quoted) Wrong(action + " takes a number");
    const auto v = ParseInt(t[i].text);
    if (!v) Wrong(action + " takes a number");
    return *v;
  }

  [[noreturn]] void NotFor(const Control& c, const std::string& action) {
    Wrong(ControlLabel(c) + " has no " + action);
  }

  void Perform(Form& form, Control& c, const std::string& action, const std::vector<Token>& t) {
    const ControlKind kind = c.Kind();
    if (action == "Click") {
      Arity(t, 1);
      c.UserClick();
    } else if (action == "DblClick") {
      Arity(t, 1);
      if (kind == ControlKind::DirListBox) {
        // A double click opens the highlighted folder.
        auto& dir = static_cast<DirListBox&>(c);
        const int error = dir.UserOpen(dir.ListIndex());
        if (error != 0) Refused("run-time error " + std::to_string(error));
      }
      c.RaiseDblClick();
    } else if (action == "Text") {
      const std::string& s = StringArg(t, action);
      if (kind == ControlKind::TextBox) {
        static_cast<TextBox&>(c).SetText(s);
      } else if (kind == ControlKind::ComboBox) {
        static_cast<ComboBox&>(c).SetText(s);
      } else {
        NotFor(c, action);
      }
    } else if (action == "Type") {
      const std::string s = StringArg(t, action);
      if (kind != ControlKind::TextBox && kind != ControlKind::ComboBox) NotFor(c, action);
      for (unsigned char ch : s) {
        if (!c.Usable() || !c.Parent().Loaded()) break;
        c.UserKey(ch);
      }
    } else if (action == "Key") {
      Arity(t, 2);
      form.UserKey(c, IntArg(t, 1, action));
    } else if (action == "KeyDown") {
      Arity(t, 2);
      c.RaiseKeyDown(IntArg(t, 1, action), 0);
    } else if (action == "Select") {
      Arity(t, 2);
      Select(c, t[1]);
    } else if (action == "Selected") {
      Arity(t, 3);
      if (kind != ControlKind::ListBox && kind != ControlKind::FileListBox) NotFor(c, action);
      auto& list = static_cast<ListBox&>(c);
      const int i = IntArg(t, 1, action);
      if (t[2].quoted || (t[2].text != "true" && t[2].text != "false")) {
        Wrong("Selected takes an index and true or false");
      }
      if (i < 0 || i >= list.ListCount())
        return Refused(ControlLabel(c) + " has no item " + t[1].text);
      list.SetSelected(i, t[2].text == "true");
    } else if (action == "SelectAll") {
      Arity(t, 1);
      if (kind == ControlKind::TextBox) {
        static_cast<TextBox&>(c).SelectAll();
      } else if (kind == ControlKind::ComboBox) {
        static_cast<ComboBox&>(c).SelectAll();
      } else {
        NotFor(c, action);
      }
    } else if (action == "Focus") {
      Arity(t, 1);
      c.SetFocus();
    } else if (action == "Value") {
      Arity(t, 2);
      const int v = IntArg(t, 1, action);
      if (kind == ControlKind::CheckBox) {
        if (v != 0 && v != 1) Wrong("a check box takes 0 or 1");
        static_cast<CheckBox&>(c).SetValue(v);
      } else if (kind == ControlKind::OptionButton) {
        if (v != 1) Wrong("an option button takes 1");
        static_cast<OptionButton&>(c).SetValue(true);
      } else if (kind == ControlKind::ScrollBar) {
        static_cast<HScrollBar&>(c).SetValue(v);
      } else {
        NotFor(c, action);
      }
    } else if (action == "Path" && IsDiskList(kind)) {
      ChoosePath(c, StringArg(t, action));
    } else if (action == "Press" && kind == ControlKind::MediaControl) {
      Arity(t, 2);
      const int b = MediaButtonOfName(t[1].text);
      if (b < 0) Wrong("no media button " + t[1].text);
      if (!static_cast<MMControl&>(c).UserPress(static_cast<MediaButton>(b))) {
        Refused(ControlLabel(c) + " button " + t[1].text + " cannot be pressed");
      }
    } else if (action == "Path" || action == "Press") {
      Arity(t, 2);
      if (action == "Path" && !t[1].quoted) Wrong("Path takes a quoted folder");
      if (!hooks_.extra || !hooks_.extra(c, action, t[1].text)) NotFor(c, action);
    } else {
      Wrong("unknown action " + action);
    }
  }

  static bool IsDiskList(ControlKind kind) {
    return kind == ControlKind::DriveListBox || kind == ControlKind::DirListBox ||
           kind == ControlKind::FileListBox;
  }

  // A person points a drive, directory or file list at a folder. A folder that cannot be
  // read is the system's run-time error, which no handler of the person's own stands to
  // catch: the line reports it and the control stays as it was.
  void ChoosePath(Control& c, const std::string& folder) {
    int error = 0;
    switch (c.Kind()) {
      case ControlKind::DriveListBox:
        error = static_cast<DriveListBox&>(c).UserPath(folder);
        break;
      case ControlKind::DirListBox:
        error = static_cast<DirListBox&>(c).UserPath(folder);
        break;
      default:
        error = static_cast<FileListBox&>(c).UserPath(folder);
        break;
    }
    if (error != 0) Refused("run-time error " + std::to_string(error) + " on " + folder);
  }

  void Select(Control& c, const Token& arg) {
    if (c.Kind() == ControlKind::DirListBox) return SelectFolder(static_cast<DirListBox&>(c), arg);
    const bool isList = c.Kind() == ControlKind::ListBox || c.Kind() == ControlKind::FileListBox;
    if (!isList && c.Kind() != ControlKind::ComboBox) NotFor(c, "Select");
    const ItemList& items = isList ? static_cast<const ItemList&>(static_cast<ListBox&>(c))
                                   : static_cast<const ItemList&>(static_cast<ComboBox&>(c));
    int index = -1;
    if (arg.quoted) {
      for (int i = 0; i < items.ListCount(); ++i) {
        std::string text = items.List(i);
        while (!text.empty() && text.back() == ' ') text.pop_back();
        if (text == arg.text) {
          index = i;
          break;
        }
      }
      if (index < 0) return Refused(ControlLabel(c) + " has no item \"" + arg.text + "\"");
    } else {
      const auto v = ParseInt(arg.text);
      if (!v) Wrong("Select takes an index or a quoted text");
      index = *v;
      if (index < 0 || index >= items.ListCount()) {
        return Refused(ControlLabel(c) + " has no item " + arg.text);
      }
    }
    if (isList) {
      static_cast<ListBox&>(c).UserSelect(index);
    } else {
      static_cast<ComboBox&>(c).UserSelect(index);
    }
  }

  // A folder of a directory list by its index (from -Depth) or its whole path.
  void SelectFolder(DirListBox& dir, const Token& arg) {
    int index = dir.ListCount();
    if (arg.quoted) {
      for (int i = -dir.Depth(); i < dir.ListCount(); ++i) {
        if (dir.List(i) == arg.text) index = i;
      }
    } else if (const auto v = ParseInt(arg.text)) {
      index = *v;
    } else {
      Wrong("Select takes an index or a quoted text");
    }
    if (index < -dir.Depth() || index >= dir.ListCount()) {
      return Refused(ControlLabel(dir) + " has no item " + arg.text);
    }
    dir.SetListIndex(index);
  }

  HeadlessPlatform& p_;
  const ScriptHooks& hooks_;
  std::vector<std::string> lines_;
  size_t next_ = 0;
  int current_ = 0;  // the line being run, from 1
};

}  // namespace

int RunScriptOn(HeadlessPlatform& platform, std::istream& script, const ScriptHooks& hooks) {
  SetPlatform(&platform);
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
