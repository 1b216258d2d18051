// In String (48): the position of the search text in the source.
#pragma once

#include "dialogs/string_op_dialog.h"

namespace kq {

class frmInStr : public StringOpDialog {
 public:
  frmInStr();
};

}  // namespace kq
