// Get No. Of Rec. (39): the number of records of a table into a Long variable.
#pragma once

#include "dialogs/table_dialog.h"

namespace kq {

class frmGetNoRec : public TableLabelDialog {
 public:
  frmGetNoRec();

  ui::Label lblVariable{*this, "lblVariable", "Variable:"};
  ui::ComboBox cboVariable{*this, "cboVariable"};
  ui::Label lblNoRec{*this, "lblNoRec", "= No. of records in database table"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
  std::string Decorate(std::string line) override;
};

}  // namespace kq
