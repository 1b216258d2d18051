// Say File (21): plays a message file of a message path, the file named by a String
// variable or typed as a constant.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmSayFile : public FuncDialog {
 public:
  frmSayFile();

  ui::Label lblPathVar{*this, "lblPathVar", "Message path:"};
  ui::ComboBox cboPathVar{*this, "cboPathVar"};
  ui::Label lblRecordFile{*this, "lblRecordFile", "File name:"};
  ui::ComboBox cboVar{*this, "cboVar"};
  ui::CheckBox chkCounterActive{*this, "chkCounterActive", "Sound file counter active"};
  ui::CheckBox chkRGControl{*this, "chkRGControl", "Enable rate and gain control"};
  ui::CheckBox chkDisableHangup{*this, "chkDisableHangup", "Disable hangup detection"};
  ui::Label lblHangup{*this, "lblHangup", "On hangup goto:"};
  ui::Label lblError{*this, "lblError", "On error goto:"};
  ui::ComboBox cboLabel[2] = {{*this, "cboLabel", 0}, {*this, "cboLabel", 1}};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
};

}  // namespace kq
