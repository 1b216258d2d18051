// A form's declared layout: its controls on a grid of rows and columns, with spans.
// The desktop binding builds every dialog from this alone.
#pragma once

#include <vector>

namespace ui {

class Control;

struct LayoutItem {
  Control* control = nullptr;
  int row = 0;
  int column = 0;
  int rowSpan = 1;
  int columnSpan = 1;
};

class Layout {
 public:
  void Add(Control& control, int row, int column, int rowSpan = 1, int columnSpan = 1) {
    items_.push_back({&control, row, column, rowSpan, columnSpan});
  }
  const std::vector<LayoutItem>& Items() const { return items_; }

 private:
  std::vector<LayoutItem> items_;
};

}  // namespace ui
