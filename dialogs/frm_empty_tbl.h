// Empty Table (40): remove every record of a table.
#pragma once

#include "dialogs/table_dialog.h"

namespace kq {

class frmEmptyTbl : public TableErrorDialog {
 public:
  frmEmptyTbl();
};

}  // namespace kq
