#include "dialogs/frm_trim_str.h"

#include "dialogs/data_slots.h"
#include "document/catalogue.h"
#include "document/state.h"

namespace kq {

namespace {
constexpr VarSlot kSlots[2] = {{false, false, true, -1, -1}, {false, false, true, 2, 2}};
}

frmTrimStr::frmTrimStr() : FuncDialog("frmTrimStr", "Trim String", 44) {
  for (int i = 0; i < 2; ++i) SetUpVarSlot(cboVar[i], kSlots[i]);
  for (int i = 0; i < 3; ++i) {
    optAction[i].SetWidth(3600);
    fraAction.Place(optAction[i], i, 0);
  }
  PlaceLabelRow();
  Place(cboVar[0], 1, 0);
  Place(lblEqual, 1, 1);
  Place(cboVar[1], 1, 2);
  Place(fraAction, 2, 0, 1, 3);
  PlaceButtonRow(3, 3);
  Move(0, 0, 6600, 3800);
}

void frmTrimStr::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const TrimStringRec& r = rec.TrimString;
  FillVarSlot(cboVar[0], kSlots[0], r.Target);
  FillVarSlot(cboVar[1], kSlots[1], r.Source);
  if (r.TrimAction >= 0 && r.TrimAction < 3) optAction[r.TrimAction].SetValue(true);
}

bool frmTrimStr::Accept(std::string& parameters) {
  TrimStringRec& r = WorkRecord.TrimString;
  int action = -1;
  for (int i = 0; i < 3 && action < 0; ++i) {
    if (optAction[i].Value()) action = i;
  }
  // A line whose action no option shows (a damaged line) has to have one chosen.
  if (action < 0) return Refuse(optAction[0]);
  r.TrimAction = action;
  ReadVarSlot(cboVar[0], kSlots[0], r.Target);
  if (!ReadVarSlot(cboVar[1], kSlots[1], r.Source)) return false;
  parameters = VarName(r.Target) + " = TRIM( " + VarName(r.Source) +
               " )  A=" + NameRow(TrimActionNames, r.TrimAction);
  return true;
}

}  // namespace kq
