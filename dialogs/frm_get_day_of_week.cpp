#include "dialogs/frm_get_day_of_week.h"

#include "dialogs/data_slots.h"
#include "document/state.h"

namespace kq {

namespace {
constexpr VarSlot kVariable{true, false, true, -1, -1};
}

frmGetDayOfWeek::frmGetDayOfWeek() : FuncDialog("frmGetDayOfWeek", "Get Day Of Week", 36) {
  SetUpVarSlot(cboVariable, kVariable);
  for (ui::OptionButton& o : optNumbering) o.SetWidth(3600);
  fraNumbering.Place(optNumbering[0], 0, 0);
  fraNumbering.Place(optNumbering[1], 1, 0);
  PlaceLabelRow();
  Place(lblGetDayLabel, 1, 0, 1, 2);
  Place(cboVariable, 2, 0, 1, 2);
  Place(fraNumbering, 3, 0, 1, 2);
  PlaceButtonRow(4, 2);
  Move(0, 0, 4600, 3600);
}

void frmGetDayOfWeek::LoadFields(const RecordSet& rec, bool /*modify*/) {
  FillVarSlot(cboVariable, kVariable, rec.GetDayOfWeek.Target);
  const int32_t format = rec.GetDayOfWeek.Format;
  if (format == 0 || format == 1) optNumbering[format].SetValue(true);
}

bool frmGetDayOfWeek::Accept(std::string& parameters) {
  FormatTargetRec& r = WorkRecord.GetDayOfWeek;
  r.Format = optNumbering[0].Value() ? 0 : 1;
  ReadVarSlot(cboVariable, kVariable, r.Target);
  parameters = VarName(r.Target) + "   " + optNumbering[r.Format].Caption();
  return true;
}

}  // namespace kq
