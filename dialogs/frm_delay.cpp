#include "dialogs/frm_delay.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

frmDelay::frmDelay() : FuncDialog("frmDelay", "Delay", 4) {
  txtDelay.SetMaxLength(4);
  txtDelay.SetWidth(900);
  txtDelay.OnKeyPress = [this](int& k) { LegalInput(txtDelay, 3, k); };
  PlaceLabelRow();
  Place(lblDelay, 1, 0);
  Place(txtDelay, 1, 1);
  Place(lblMS, 1, 2);
  PlaceButtonRow(2, 3);
  Move(0, 0, 4200, 1900);
}

void frmDelay::LoadFields(const RecordSet& rec, bool /*modify*/) {
  txtDelay.SetText(Num(rec.Delay.DelayMs));
}

bool frmDelay::Accept(std::string& parameters) {
  // Four digits at most: the value always fits.
  WorkRecord.Delay.DelayMs = static_cast<int32_t>(Val(txtDelay.Text()));
  parameters = Num(WorkRecord.Delay.DelayMs) + "ms";
  return true;
}

}  // namespace kq
