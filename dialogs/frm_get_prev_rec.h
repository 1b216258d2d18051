// Get Prev. Record (33): read the record before the current one.
#pragma once

#include "dialogs/table_dialog.h"

namespace kq {

class frmGetPrevRec : public TableNavDialog {
 public:
  frmGetPrevRec();

  ui::Label LblNoData{*this, "LblNoData", "On no data goto:"};
  ui::ComboBox cboNoData{*this, "cboNoData"};
};

}  // namespace kq
