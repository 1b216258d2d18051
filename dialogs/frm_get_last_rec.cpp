#include "dialogs/frm_get_last_rec.h"

namespace kq {

frmGetLastRec::frmGetLastRec()
    : TableNavDialog("frmGetLastRec", "Get Last Record", 31, &RecordSet::GetLastRecord) {
  SetSecondLabel(LblNoData, cboNoData, " ET=");
}

}  // namespace kq
