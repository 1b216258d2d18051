// Goto Label Parameter: the first line that refers to the label chosen; the label stays
// the key of Next Label Parameter.
#pragma once

#include "editor/frm_label.h"

namespace kq {

class frmGotoLabel : public LabelListForm {
 public:
  frmGotoLabel();

 private:
  void cmdOk_Click() override;
};

}  // namespace kq
