// Delete File (51): deletes the file of a path variable; IF THE FILE WASN'T DELETED THEN
// GOTO label [ELSE GOTO label].
#pragma once

#include "dialogs/file_check_dialog.h"

namespace kq {

class frmDeleteFile : public FileCheckDialog {
 public:
  frmDeleteFile();

  ui::Label lblPathType{*this, "lblPathType", "Path type:"};
  ui::Label lblPathVar{*this, "lblPathVar", "Path variable:"};
  ui::Label lblFileName{*this, "lblFileName", "File to delete:"};
  ui::ComboBox cboFileVar{*this, "cboFileVar"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
};

}  // namespace kq
