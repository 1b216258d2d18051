#include "dialogs/frm_insert_rec.h"

namespace kq {

frmInsertRec::frmInsertRec()
    : TableNavDialog("frmInsertRec", "Insert Record", 30, &RecordSet::InsertRecord) {
  SetSecondLabel(lblRange, cboRange, " R=");
}

}  // namespace kq
