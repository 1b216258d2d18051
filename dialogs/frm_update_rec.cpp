#include "dialogs/frm_update_rec.h"

namespace kq {

frmUpdateRec::frmUpdateRec()
    : WhereDialog("frmUpdateRec", "Update Record", 34, &RecordSet::UpdateRecord) {}

}  // namespace kq
