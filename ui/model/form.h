// A form: its controls, its menus, its focus, its layout, and the Load, QueryUnload and
// Unload events. A dialog is a fresh Form object for each showing, so that its controls
// start with their design-time values every time, as the original forms did.
#pragma once

#include <string>
#include <vector>

#include "ui/model/control.h"
#include "ui/model/layout.h"

namespace ui {

class Menu;
class CommandButton;

// Why a form is asked to unload.
enum class UnloadMode { CloseButton = 0, Code = 1 };

class Form {
 public:
  Form(std::string name, std::string caption);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const { return name_; }
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption);

  // Geometry in twips.
  int Left() const { return left_; }
  int Top() const { return top_; }
  int Width() const { return width_; }
  int Height() const { return height_; }
  void Move(int left, int top, int width, int height);
  void Move(int left, int top) { Move(left, top, width_, height_); }
  // 0 normal, 1 minimised, 2 maximised.
  int WindowState() const { return windowState_; }
  void SetWindowState(int state);

  bool Loaded() const { return loaded_; }
  bool Visible() const { return visible_; }

  // Shows the form modally through the platform; returns when it has unloaded.
  void ShowModal();
  // Runs Load and marks the form loaded and shown: the platform calls this.
  void DoLoad();
  // Unload as code does it ("Unload Me"): QueryUnload, then Unload. False when cancelled.
  bool Unload();
  // Close as the window's close button does it.
  bool Close();

  // The focus.
  Control* ActiveControl() const { return active_; }
  void SetActiveControl(Control* control);

  const std::vector<Control*>& Controls() const { return controls_; }
  Control* FindControl(const std::string& name, int index = -1) const;
  const std::vector<Menu*>& MenuBar() const { return menuBar_; }
  const Layout& layout() const { return layout_; }

  // A key typed on a control of this form: Enter reaches the default button and Escape
  // the cancel button before the control sees it, as in the original toolkit.
  void UserKey(Control& control, int keyAscii);

  // Binding listener for the form's own properties (caption, geometry, visibility).
  std::function<void(Form&)> observer;

 protected:
  virtual void Form_Load() {}
  virtual void Form_QueryUnload(bool& cancel, UnloadMode mode) {
    (void)cancel;
    (void)mode;
  }
  virtual void Form_Unload() {}
  virtual void Form_Resize() {}

  void Place(Control& control, int row, int column, int rowSpan = 1, int columnSpan = 1);
  void AddMenu(Menu& menu) { menuBar_.push_back(&menu); }
  void NotifyResize() { Form_Resize(); }

 private:
  friend class Control;
  void Register(Control& control);
  void Unregister(Control& control);
  bool UnloadWith(UnloadMode mode);
  void Notify();
  CommandButton* FindButton(bool isDefault) const;

  std::string name_;
  std::string caption_;
  int left_ = 0, top_ = 0, width_ = 4800, height_ = 3600;
  int windowState_ = 0;
  bool loaded_ = false;
  bool visible_ = false;
  Control* active_ = nullptr;
  std::vector<Control*> controls_;
  std::vector<Menu*> menuBar_;
  Layout layout_;
};

}  // namespace ui
