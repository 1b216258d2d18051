// The desktop binding builds each form from its layout: every visible control has one cell
// of its own (frames hold their own grids), and the form has a size.
#pragma once

#include "ui/model/form.h"

namespace kq::test {

void ExpectLaidOut(const ui::Form& form);

}  // namespace kq::test
