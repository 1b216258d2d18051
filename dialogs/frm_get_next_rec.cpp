#include "dialogs/frm_get_next_rec.h"

namespace kq {

frmGetNextRec::frmGetNextRec()
    : TableNavDialog("frmGetNextRec", "Get Next Record", 32, &RecordSet::GetNextRecord) {
  SetSecondLabel(LblNoData, cboNoData, " ND=");
}

}  // namespace kq
