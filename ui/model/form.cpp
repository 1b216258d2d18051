#include "ui/model/form.h"

#include <algorithm>

#include "ui/model/controls.h"
#include "ui/model/menu.h"
#include "ui/platform/platform.h"

namespace ui {

Form::Form(std::string name, std::string caption)
    : name_(std::move(name)), caption_(std::move(caption)) {}

Form::~Form() = default;

void Form::SetCaption(std::string caption) {
  if (caption == caption_) return;
  caption_ = std::move(caption);
  Notify();
}

void Form::Move(int left, int top, int width, int height) {
  const bool resized = width != width_ || height != height_;
  left_ = left;
  top_ = top;
  width_ = width;
  height_ = height;
  Notify();
  if (resized && loaded_) Form_Resize();
}

void Form::SetWindowState(int state) {
  if (state == windowState_) return;
  windowState_ = state;
  Notify();
  if (loaded_) Form_Resize();
}

void Form::ShowModal() {
  platform().ShowModal(*this);
}

void Form::DoLoad() {
  loaded_ = true;
  visible_ = true;
  Form_Load();
  Notify();
}

bool Form::Unload() {
  return UnloadWith(UnloadMode::Code);
}

bool Form::Close() {
  return UnloadWith(UnloadMode::CloseButton);
}

bool Form::UnloadWith(UnloadMode mode) {
  if (!loaded_) return true;
  bool cancel = false;
  Form_QueryUnload(cancel, mode);
  if (cancel) return false;
  Form_Unload();
  loaded_ = false;
  visible_ = false;
  Notify();
  platform().FormUnloaded(*this);
  return true;
}

void Form::SetActiveControl(Control* control) {
  active_ = control;
}

Control* Form::FindControl(const std::string& name, int index) const {
  for (Control* c : controls_) {
    if (c->Name() == name && c->Index() == index) return c;
  }
  return nullptr;
}

void Form::Place(Control& control, int row, int column, int rowSpan, int columnSpan) {
  layout_.Add(control, row, column, rowSpan, columnSpan);
}

CommandButton* Form::FindButton(bool isDefault) const {
  for (Control* c : controls_) {
    if (c->Kind() != ControlKind::CommandButton || !c->Usable()) continue;
    auto* b = static_cast<CommandButton*>(c);
    if (isDefault ? b->Default() : b->Cancel()) return b;
  }
  return nullptr;
}

void Form::UserKey(Control& control, int keyAscii) {
  if (control.Kind() != ControlKind::CommandButton) {
    if (keyAscii == 13) {
      if (CommandButton* b = FindButton(true)) {
        b->UserClick();
        return;
      }
    } else if (keyAscii == 27) {
      if (CommandButton* b = FindButton(false)) {
        b->UserClick();
        return;
      }
    }
  }
  control.UserKey(keyAscii);
}

void Form::Register(Control& control) {
  controls_.push_back(&control);
}

void Form::Unregister(Control& control) {
  controls_.erase(std::remove(controls_.begin(), controls_.end(), &control), controls_.end());
  if (active_ == &control) active_ = nullptr;
}

void Form::Notify() {
  if (observer) observer(*this);
}

}  // namespace ui
