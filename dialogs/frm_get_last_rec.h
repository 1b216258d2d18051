// Get Last Record (31): read the last record of a table into its variables.
#pragma once

#include "dialogs/table_dialog.h"

namespace kq {

class frmGetLastRec : public TableNavDialog {
 public:
  frmGetLastRec();

  ui::Label LblNoData{*this, "LblNoData", "On no data goto:"};
  ui::ComboBox cboNoData{*this, "cboNoData"};
};

}  // namespace kq
