// The actions of a script line on a control: Click, Type, Select and the others, each
// checked against what the control can take. A line the program would not take is
// refused (the script goes on); a line that is itself wrong ends the run.
#include "ui/headless/script_actions.h"

#include "ui/headless/script_state.h"
#include "ui/model/controls.h"
#include "ui/model/file_controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"
#include "ui/model/media_control.h"
#include "ui/model/scroll_bar.h"

namespace ui {

namespace {

class Actions {
 public:
  Actions(const RefuseAction& refused, const ExtraAction& extra)
      : refused_(refused), extra_(extra) {}

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
        if (error != 0) refused_("run-time error " + std::to_string(error));
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
        return refused_(ControlLabel(c) + " has no item " + t[1].text);
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
      const std::string& folder = StringArg(t, action);
      // A folder that cannot be read is the system's run-time error, which no handler of
      // the person's own stands to catch: the line reports it, the control stays as it was.
      if (const int error = ChooseFolder(c, folder)) {
        refused_("run-time error " + std::to_string(error) + " on " + folder);
      }
    } else if (action == "Press" && kind == ControlKind::MediaControl) {
      Arity(t, 2);
      const int b = MediaButtonOfName(t[1].text);
      if (b < 0) Wrong("no media button " + t[1].text);
      if (!static_cast<MMControl&>(c).UserPress(static_cast<MediaButton>(b))) {
        refused_(ControlLabel(c) + " button " + t[1].text + " cannot be pressed");
      }
    } else if (action == "Path" || action == "Press") {
      Arity(t, 2);
      if (action == "Path" && !t[1].quoted) Wrong("Path takes a quoted folder");
      if (!extra_ || !extra_(c, action, t[1].text)) NotFor(c, action);
    } else {
      Wrong("unknown action " + action);
    }
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
      if (index < 0) return refused_(ControlLabel(c) + " has no item \"" + arg.text + "\"");
    } else {
      const auto v = ParseInt(arg.text);
      if (!v) Wrong("Select takes an index or a quoted text");
      index = *v;
      if (index < 0 || index >= items.ListCount()) {
        return refused_(ControlLabel(c) + " has no item " + arg.text);
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
      return refused_(ControlLabel(dir) + " has no item " + arg.text);
    }
    dir.SetListIndex(index);
  }

 private:
  [[noreturn]] static void Wrong(const std::string& message) { throw WrongAction{message}; }
  static void Arity(const std::vector<Token>& t, size_t n) {
    if (t.size() != n) Wrong(t[0].text + " takes " + std::to_string(n - 1) + " argument(s)");
  }

  const RefuseAction& refused_;
  const ExtraAction& extra_;
};

}  // namespace

void PerformAction(Form& form, Control& control, const std::string& action,
                   const std::vector<Token>& tokens, const RefuseAction& refused,
                   const ExtraAction& extra) {
  Actions(refused, extra).Perform(form, control, action, tokens);
}

}  // namespace ui
