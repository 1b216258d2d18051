// The base of every control of the window model: name and index, the common properties,
// the events that handlers are wired to, and the notifications a binding listens to.
#pragma once

#include <functional>
#include <string>

namespace ui {

class Form;
class Frame;

enum class ControlKind {
  Label,
  CommandButton,
  TextBox,
  CheckBox,
  OptionButton,
  ComboBox,
  ListBox,
  Frame,
  Menu,
  DriveListBox,
  DirListBox,
  FileListBox,
  MediaControl,
  ScrollBar,
  SvgView,
};

// What changed, for a binding that mirrors the control. Items: first and count of the
// items concerned. Selection: count 1 when only item first changed its mark, count 0 when
// any mark may have changed.
struct Change {
  enum class What { Property, ItemsInserted, ItemsRemoved, ItemsChanged, ItemsReset, Selection };
  What what = What::Property;
  int first = 0;
  int count = 0;
};

// Key codes of KeyDown, with the values of the original toolkit.
inline constexpr int vbKeyBack = 8;
inline constexpr int vbKeyReturn = 13;
inline constexpr int vbKeyEscape = 27;
inline constexpr int vbKeyInsert = 45;
inline constexpr int vbKeyDelete = 46;

class Control {
 public:
  Control(Form& parent, ControlKind kind, std::string name, int index = -1);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  ControlKind Kind() const { return kind_; }
  const std::string& Name() const { return name_; }
  int Index() const { return index_; }  // -1 when not part of a control array
  Form& Parent() const { return parent_; }
  // The frame that holds the control, if any; option buttons group by it.
  Frame* Container() const { return container_; }
  void SetContainer(Frame* frame) { container_ = frame; }

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption);
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  // Usable by a person: enabled and visible, its frame too, on a loaded form.
  virtual bool Usable() const;

  // Sizes in twips, as declared by the form; the binding takes them as a hint.
  int Width() const { return width_; }
  void SetWidth(int w) { width_ = w; }

  void SetFocus();

  // Events. A form wires its handlers here in its constructor.
  std::function<void()> OnClick;
  std::function<void()> OnDblClick;
  std::function<void()> OnChange;
  std::function<void()> OnGotFocus;
  std::function<void(int& keyAscii)> OnKeyPress;
  std::function<void(int& keyCode, int shift)> OnKeyDown;

  void RaiseClick();
  void RaiseDblClick();
  void RaiseChange();
  // Returns the key as the handler left it (0 when refused or swallowed).
  int RaiseKeyPress(int keyAscii);
  int RaiseKeyDown(int keyCode, int shift = 0);

  // A person's actions, as the script runner and the desktop binding deliver them.
  virtual void UserClick();
  // One key typed while the control has the focus: KeyPress first, then the control's
  // own handling of what is left.
  virtual void UserKey(int keyAscii);

  // The binding's listener; one per control.
  std::function<void(Control&, const Change&)> observer;

 protected:
  void Notify(Change::What what = Change::What::Property, int first = 0, int count = 0);

 private:
  Form& parent_;
  ControlKind kind_;
  std::string name_;
  int index_;
  Frame* container_ = nullptr;
  std::string caption_;
  bool enabled_ = true;
  bool visible_ = true;
  int width_ = 0;
};

}  // namespace ui
