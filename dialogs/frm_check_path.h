// Check Path (49): IF path variable DOESN'T EXIST THEN GOTO label [ELSE GOTO label].
#pragma once

#include "dialogs/file_check_dialog.h"

namespace kq {

class frmCheckPath : public FileCheckDialog {
 public:
  frmCheckPath();

  ui::Label lblSelectPath{*this, "lblSelectPath", "Path type:"};
  ui::Label lblIf{*this, "lblIf", "IF"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
};

}  // namespace kq
