#include "dialogs/frm_return.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

frmReturn::frmReturn() : FuncDialog("frmReturn", "Return", 14) {
  cboError.SetWidth(2400);
  cboError.OnKeyPress = [this](int& k) { LegalLabelKey(cboError, k); };
  PlaceLabelRow();
  Place(lblError, 1, 0);
  Place(cboError, 1, 1, 1, 2);
  PlaceButtonRow(2, 3);
  Move(0, 0, 4800, 1900);
}

void frmReturn::LoadFields(const RecordSet& rec, bool /*modify*/) {
  GetListBoxLabel(cboError, View(rec.Return.ErrorLabel.LabelRefName));
}

// ReturnReserved belongs to the run-time program: no dialog writes it.
bool frmReturn::Accept(std::string& parameters) {
  SetField(WorkRecord.Return.ErrorLabel.LabelRefName, LabelText(cboError));
  parameters.clear();
  return true;
}

std::string frmReturn::Decorate(std::string line) {
  return AppendLabelParm(line, " E=", View(WorkRecord.Return.ErrorLabel.LabelRefName));
}

}  // namespace kq
