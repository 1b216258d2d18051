// Get Next Record (32): read the record after the current one.
#pragma once

#include "dialogs/table_dialog.h"

namespace kq {

class frmGetNextRec : public TableNavDialog {
 public:
  frmGetNextRec();

  ui::Label LblNoData{*this, "LblNoData", "On no data goto:"};
  ui::ComboBox cboNoData{*this, "cboNoData"};
};

}  // namespace kq
