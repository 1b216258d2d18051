// Update Record (34): update a table's records; the rows of conditions are stored as for the other
// two.
#pragma once

#include "dialogs/where_dialog.h"

namespace kq {

class frmUpdateRec : public WhereDialog {
 public:
  frmUpdateRec();
};

}  // namespace kq
