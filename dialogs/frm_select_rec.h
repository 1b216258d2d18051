// SELECT Records (29): choose the records of a table that meet the conditions. The dialog has no
// caption.
#pragma once

#include "dialogs/where_dialog.h"

namespace kq {

class frmSelectRec : public WhereDialog {
 public:
  frmSelectRec();
};

}  // namespace kq
