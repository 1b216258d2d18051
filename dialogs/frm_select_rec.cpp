#include "dialogs/frm_select_rec.h"

namespace kq {

frmSelectRec::frmSelectRec() : WhereDialog("frmSelectRec", "", 29, &RecordSet::SelectRecords) {}

}  // namespace kq
