#include "tests/support/layout_check.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <utility>

#include "ui/model/controls.h"

namespace kq::test {

void ExpectLaidOut(const ui::Form& form) {
  std::set<const ui::Control*> placed;
  std::function<void(const ui::Layout&)> collect = [&](const ui::Layout& layout) {
    std::set<std::pair<int, int>> cells;
    for (const ui::LayoutItem& item : layout.Items()) {
      EXPECT_TRUE(placed.insert(item.control).second) << item.control->Name();
      for (int r = item.row; r < item.row + item.rowSpan; ++r) {
        for (int c = item.column; c < item.column + item.columnSpan; ++c) {
          EXPECT_TRUE(cells.insert({r, c}).second) << form.Name() << " cell " << r << "," << c;
        }
      }
      if (item.control->Kind() == ui::ControlKind::Frame) {
        collect(static_cast<const ui::Frame*>(item.control)->layout());
      }
    }
  };
  collect(form.layout());
  for (const ui::Control* c : form.Controls()) {
    EXPECT_EQ(placed.count(c), c->Visible() ? 1u : 0u) << form.Name() << "." << c->Name();
  }
  EXPECT_GT(form.Width(), 0);
  EXPECT_GT(form.Height(), 0);
}

}  // namespace kq::test
