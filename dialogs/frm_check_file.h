// Check File (50): IF the file of a path variable DOESN'T EXIST THEN GOTO label
// [ELSE GOTO label].
#pragma once

#include "dialogs/file_check_dialog.h"

namespace kq {

class frmCheckFile : public FileCheckDialog {
 public:
  frmCheckFile();

  ui::Label lblPathType{*this, "lblPathType", "Path type:"};
  ui::Label lblPathVar{*this, "lblPathVar", "Path variable:"};
  ui::Label lblIf{*this, "lblIf", "IF"};
  ui::ComboBox cboFileVar{*this, "cboFileVar"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
};

}  // namespace kq
