#include "dialogs/frm_add_rec.h"

namespace kq {

frmAddRec::frmAddRec() : TableErrorDialog("frmAddRec", "Add Record", 26, &RecordSet::AddRecord) {}

}  // namespace kq
