#include "dialogs/frm_ct_bus_con.h"

#include "dialogs/data_slots.h"
#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

namespace {
// A Long variable or a number of digits only.
constexpr VarSlot kBusSlot{true, false, false, 0, 3};
}  // namespace

frmCTBusCon::frmCTBusCon() : FuncDialog("frmCTBusCon", "CT Bus Connect", 54) {
  for (ui::ComboBox& c : cboVar) SetUpVarSlot(c, kBusSlot);
  cboLabel.SetWidth(2400);
  cboLabel.OnKeyPress = [this](int& k) { LegalLabelKey(cboLabel, k); };
  for (int i = 0; i < 2; ++i) {
    optCTBusType[i].SetWidth(1400);
    fraCTBusType.Place(optCTBusType[i], 0, i);
  }
  PlaceLabelRow();
  Place(fraCTBusType, 1, 0, 1, 4);
  Place(Label1, 2, 0);
  Place(cboVar[0], 2, 1);
  Place(lblFrom, 3, 0);
  Place(lblTo, 3, 2);
  Place(lblFS, 4, 0);
  Place(cboVar[1], 4, 1);
  Place(lblTS, 4, 2);
  Place(cboVar[3], 4, 3);
  Place(lblFT, 5, 0);
  Place(cboVar[2], 5, 1);
  Place(lblTT, 5, 2);
  Place(cboVar[4], 5, 3);
  Place(lblError, 6, 0);
  Place(cboLabel, 6, 1);
  PlaceButtonRow(7, 4);
  Move(0, 0, 8400, 4200);
}

void frmCTBusCon::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const CTBusRec& r = rec.CTBusConnect;
  for (int i = 0; i < 5; ++i) FillVarSlot(cboVar[i], kBusSlot, r.BusVar[i]);
  optCTBusType[r.BusType == 1 ? 1 : 0].SetValue(true);
  GetListBoxLabel(cboLabel, View(r.ErrorLabel.LabelRefName));
}

bool frmCTBusCon::Accept(std::string& parameters) {
  CTBusRec& r = WorkRecord.CTBusConnect;
  for (int i = 0; i < 5; ++i) {
    if (!ReadVarSlot(cboVar[i], kBusSlot, r.BusVar[i])) return false;
  }
  r.BusType = optCTBusType[1].Value() ? 1 : 0;
  SetField(r.ErrorLabel.LabelRefName, LabelText(cboLabel));
  parameters = (r.BusType == 1 ? "H.100  " : "MVIP  ");
  parameters += "BN=" + VarName(r.BusVar[0]) + " FS=" + VarName(r.BusVar[1]) +
                " FT=" + VarName(r.BusVar[2]) + " TS=" + VarName(r.BusVar[3]) +
                " TT=" + VarName(r.BusVar[4]);
  return true;
}

std::string frmCTBusCon::Decorate(std::string line) {
  return AppendLabelParm(line, " E=", View(WorkRecord.CTBusConnect.ErrorLabel.LabelRefName));
}

}  // namespace kq
