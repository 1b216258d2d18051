#include "dialogs/frm_disconnect_tbl.h"

namespace kq {

frmDisconnectTbl::frmDisconnectTbl()
    : TableErrorDialog("frmDisconnectTbl", "DisconnectTable", 25, &RecordSet::DisconnectTable) {}

}  // namespace kq
