// Len String (45): Long target = LEN( source ).
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmLenStr : public FuncDialog {
 public:
  frmLenStr();

  ui::ComboBox cboVar[2] = {{*this, "cboVar", 0}, {*this, "cboVar", 1}};
  ui::Label lblEqual{*this, "lblEqual", "= LEN("};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
};

}  // namespace kq
