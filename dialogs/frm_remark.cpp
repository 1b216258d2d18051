#include "dialogs/frm_remark.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

frmRemark::frmRemark() : FuncDialog("frmRemark", "Remark", 13) {
  txtRemark.SetMaxLength(51);
  txtRemark.SetWidth(6000);
  txtRemark.OnKeyPress = [this](int& k) { txtRemark_KeyPress(k); };
  PlaceLabelRow();
  Place(lblRemark, 1, 0);
  Place(txtRemark, 1, 1, 1, 2);
  PlaceButtonRow(2, 3);
  Move(0, 0, 7800, 1900);
}

void frmRemark::LoadFields(const RecordSet& rec, bool /*modify*/) {
  txtRemark.SetText(FieldText(View(rec.Remark.RemarkText)));
}

// Every character is allowed; Enter in a field with text finishes the dialog.
void frmRemark::txtRemark_KeyPress(int& keyAscii) {
  if (keyAscii == 13 && !txtRemark.Text().empty()) {
    keyAscii = 0;
    cmdOk_Click();
  }
}

bool frmRemark::Accept(std::string& parameters) {
  SetField(WorkRecord.Remark.RemarkText, txtRemark.Text());
  parameters = txtRemark.Text();
  return true;
}

}  // namespace kq
