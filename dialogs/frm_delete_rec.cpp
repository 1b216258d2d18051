#include "dialogs/frm_delete_rec.h"

namespace kq {

frmDeleteRec::frmDeleteRec()
    : WhereDialog("frmDeleteRec", "Delete Record", 27, &RecordSet::DeleteRecord) {}

}  // namespace kq
