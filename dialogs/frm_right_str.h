// Right String (46): the rightmost count characters of the source.
#pragma once

#include "dialogs/string_op_dialog.h"

namespace kq {

class frmRightStr : public StringOpDialog {
 public:
  frmRightStr();
};

}  // namespace kq
