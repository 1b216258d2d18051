// Insert Record (30): insert the record held in the table's variables at the current place.
#pragma once

#include "dialogs/table_dialog.h"

namespace kq {

class frmInsertRec : public TableNavDialog {
 public:
  frmInsertRec();

  ui::Label lblRange{*this, "lblRange", "On out of range goto:"};
  ui::ComboBox cboRange{*this, "cboRange"};
};

}  // namespace kq
