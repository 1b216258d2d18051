#include "dialogs/frm_r_switch.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

frmRSwitch::frmRSwitch() : FuncDialog("frmRSwitch", "RSwitch", 15) {
  cboInterrupt.SetStyle(ui::ComboBox::Style::DropdownList);
  cboInterrupt.SetWidth(1000);
  cboInterrupt.OnKeyPress = [](int& k) { SwallowEnter(k); };
  PlaceLabelRow();
  Place(lblRSwitch, 1, 0);
  Place(cboInterrupt, 1, 1);
  Place(lblMS, 1, 2);
  PlaceButtonRow(2, 3);
  Move(0, 0, 4200, 1900);
}

void frmRSwitch::LoadFields(const RecordSet& rec, bool /*modify*/) {
  // 10 to 1000 ms in steps of 10.
  GetListBoxNumber(cboInterrupt, 10, 99, 10, rec.RSwitch.InterruptMs);
}

bool frmRSwitch::Accept(std::string& parameters) {
  WorkRecord.RSwitch.InterruptMs = static_cast<int32_t>(Val(cboInterrupt.Text()));
  parameters = Num(WorkRecord.RSwitch.InterruptMs) + "ms";
  return true;
}

}  // namespace kq
