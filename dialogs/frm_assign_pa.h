// Assign Path (1): one path variable takes the path of another of the same type.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmAssignPa : public FuncDialog {
 public:
  frmAssignPa();

  ui::Label lblSelectPath{*this, "lblSelectPath", "Select path type:"};
  ui::ComboBox cboPath{*this, "cboPath"};
  ui::Label lblAssignPath{*this, "lblAssignPath", "Path variable to assign a new path:"};
  ui::ComboBox cboPathVar[2] = {{*this, "cboPathVar", 0}, {*this, "cboPathVar", 1}};
  ui::Label lblEqual{*this, "lblEqual", "="};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;

 private:
  void cboPath_Click();
  // The path type that cboPath shows; -1 when it shows none.
  int32_t ShownPathType();
};

}  // namespace kq
