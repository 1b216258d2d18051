#include "dialogs/frm_get_ch_no.h"

#include "dialogs/data_slots.h"
#include "document/state.h"

namespace kq {

namespace {
constexpr VarSlot kVariable{true, false, false, -1, -1};
}

frmGetChNo::frmGetChNo() : FuncDialog("frmGetChNo", "Get Channel No.", 41) {
  SetUpVarSlot(cboVariable, kVariable);
  PlaceLabelRow();
  Place(lblGetChNoLabel, 1, 0);
  Place(cboVariable, 1, 1);
  PlaceButtonRow(2, 2);
  Move(0, 0, 4600, 1900);
}

void frmGetChNo::LoadFields(const RecordSet& rec, bool /*modify*/) {
  FillVarSlot(cboVariable, kVariable, rec.GetChannelNo.Target);
}

bool frmGetChNo::Accept(std::string& parameters) {
  ReadVarSlot(cboVariable, kVariable, WorkRecord.GetChannelNo.Target);
  parameters = VarName(WorkRecord.GetChannelNo.Target);
  return true;
}

}  // namespace kq
