#include "dialogs/frm_len_str.h"

#include "dialogs/data_slots.h"
#include "document/state.h"

namespace kq {

namespace {
constexpr VarSlot kSlots[2] = {{true, false, false, -1, -1}, {false, false, true, 2, 2}};
}

frmLenStr::frmLenStr() : FuncDialog("frmLenStr", "Len String", 45) {
  for (int i = 0; i < 2; ++i) SetUpVarSlot(cboVar[i], kSlots[i]);
  PlaceLabelRow();
  Place(cboVar[0], 1, 0);
  Place(lblEqual, 1, 1);
  Place(cboVar[1], 1, 2);
  PlaceButtonRow(2, 3);
  Move(0, 0, 6600, 1900);
}

void frmLenStr::LoadFields(const RecordSet& rec, bool /*modify*/) {
  FillVarSlot(cboVar[0], kSlots[0], rec.LenString.Target);
  FillVarSlot(cboVar[1], kSlots[1], rec.LenString.Source);
}

bool frmLenStr::Accept(std::string& parameters) {
  LenStringRec& r = WorkRecord.LenString;
  ReadVarSlot(cboVar[0], kSlots[0], r.Target);
  if (!ReadVarSlot(cboVar[1], kSlots[1], r.Source)) return false;
  parameters = VarName(r.Target) + " = LEN( " + VarName(r.Source) + " )";
  return true;
}

}  // namespace kq
