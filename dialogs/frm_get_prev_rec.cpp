#include "dialogs/frm_get_prev_rec.h"

namespace kq {

frmGetPrevRec::frmGetPrevRec()
    : TableNavDialog("frmGetPrevRec", "Get Previous Record", 33, &RecordSet::GetPrevRecord) {
  SetSecondLabel(LblNoData, cboNoData, " ND=");
}

}  // namespace kq
