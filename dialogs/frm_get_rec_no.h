// Get Record No. (38): the number of the current record of a table into a Long variable.
#pragma once

#include "dialogs/table_dialog.h"

namespace kq {

class frmGetRecNo : public TableLabelDialog {
 public:
  frmGetRecNo();

  ui::Label lblRecNo{*this, "lblRecNo", "Record number:"};
  ui::ComboBox cboVariable{*this, "cboVariable"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
  std::string Decorate(std::string line) override;
};

}  // namespace kq
