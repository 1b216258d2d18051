// Get First Record (28): read the first record of a table into its variables.
#pragma once

#include "dialogs/table_dialog.h"

namespace kq {

class frmGetFirstRec : public TableNavDialog {
 public:
  frmGetFirstRec();

  ui::Label LblNoData{*this, "LblNoData", "On no data goto:"};
  ui::ComboBox cboNoData{*this, "cboNoData"};
};

}  // namespace kq
