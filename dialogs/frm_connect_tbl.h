// Connect Table (24): open a table, with the seconds to wait before the busy label; both
// target labels are mandatory.
#pragma once

#include "dialogs/table_dialog.h"

namespace kq {

class frmConnectTbl : public TableDialog {
 public:
  frmConnectTbl();

  ui::Label lblTimeout1{*this, "lblTimeout1", "Seconds before busy:"};
  ui::ComboBox cboTimeout{*this, "cboTimeout"};
  ui::Label lblBusy{*this, "lblBusy", "On busy goto:"};
  ui::Label lblError{*this, "lblError", "On error goto:"};
  ui::ComboBox cboLabel[2] = {{*this, "cboLabel", 0}, {*this, "cboLabel", 1}};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
  std::string Decorate(std::string line) override;
};

}  // namespace kq
