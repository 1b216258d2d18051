#include "ui/model/control.h"

#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/platform/platform.h"

namespace ui {

Control::Control(Form& parent, ControlKind kind, std::string name, int index)
    : parent_(parent), kind_(kind), name_(std::move(name)), index_(index) {
  parent_.Register(*this);
}

Control::~Control() {
  parent_.Unregister(*this);
}

void Control::SetCaption(std::string caption) {
  if (caption == caption_) return;
  caption_ = std::move(caption);
  Notify();
}

void Control::SetEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  Notify();
}

void Control::SetVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  Notify();
}

bool Control::Usable() const {
  if (!enabled_ || !visible_ || !parent_.Loaded()) return false;
  return container_ == nullptr || container_->Usable();
}

void Control::SetFocus() {
  parent_.SetActiveControl(this);
  platform().FocusChanged(parent_, *this);
  if (OnGotFocus) OnGotFocus();
}

void Control::RaiseClick() {
  if (OnClick) OnClick();
}
void Control::RaiseDblClick() {
  if (OnDblClick) OnDblClick();
}
void Control::RaiseChange() {
  if (OnChange) OnChange();
}

int Control::RaiseKeyPress(int keyAscii) {
  if (OnKeyPress) OnKeyPress(keyAscii);
  return keyAscii;
}

int Control::RaiseKeyDown(int keyCode, int shift) {
  if (OnKeyDown) OnKeyDown(keyCode, shift);
  return keyCode;
}

void Control::UserClick() {
  RaiseClick();
}

void Control::UserKey(int keyAscii) {
  RaiseKeyPress(keyAscii);
}

void Control::Notify(Change::What what, int first, int count) {
  if (observer) observer(*this, Change{what, first, count});
}

}  // namespace ui
