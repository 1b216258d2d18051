// Add Record (26): add the record held in the table's variables.
#pragma once

#include "dialogs/table_dialog.h"

namespace kq {

class frmAddRec : public TableErrorDialog {
 public:
  frmAddRec();
};

}  // namespace kq
