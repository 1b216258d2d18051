#include "dialogs/frm_get_first_rec.h"

namespace kq {

frmGetFirstRec::frmGetFirstRec()
    : TableNavDialog("frmGetFirstRec", "Get First Record", 28, &RecordSet::GetFirstRecord) {
  SetSecondLabel(LblNoData, cboNoData, " ET=");
}

}  // namespace kq
