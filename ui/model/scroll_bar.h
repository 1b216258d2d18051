// The horizontal scroll bar: a value between Min and Max that code sets and a person
// drags; a change of the value raises Change.
#pragma once

#include "ui/model/control.h"

namespace ui {

class HScrollBar : public Control {
 public:
  HScrollBar(Form& parent, std::string name, int index = -1);
  int Min() const { return min_; }
  int Max() const { return max_; }
  void SetRange(int min, int max);
  int Value() const { return value_; }
  // Raises Change when the value differs; a value out of range is brought into it.
  void SetValue(int value);

 private:
  int min_ = 0;
  int max_ = 32767;
  int value_ = 0;
};

}  // namespace ui
