// Delete Record (27): delete the records of a table that meet the conditions.
#pragma once

#include "dialogs/where_dialog.h"

namespace kq {

class frmDeleteRec : public WhereDialog {
 public:
  frmDeleteRec();
};

}  // namespace kq
