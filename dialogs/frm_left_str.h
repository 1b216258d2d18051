// Left String (47): the leftmost count characters of the source.
#pragma once

#include "dialogs/string_op_dialog.h"

namespace kq {

class frmLeftStr : public StringOpDialog {
 public:
  frmLeftStr();
};

}  // namespace kq
