#include "dialogs/frm_empty_tbl.h"

namespace kq {

frmEmptyTbl::frmEmptyTbl()
    : TableErrorDialog("frmEmptyTbl", "Empty Table", 40, &RecordSet::EmptyTable) {}

}  // namespace kq
