#include "dialogs/frm_gosub.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

frmGosub::frmGosub() : FuncDialog("frmGosub", "Gosub", 9) {
  cboLabel.SetWidth(2400);
  cboError.SetWidth(2400);
  cboLabel.OnKeyPress = [this](int& k) { LegalLabelKey(cboLabel, k); };
  cboError.OnKeyPress = [this](int& k) { LegalLabelKey(cboError, k); };
  PlaceLabelRow();
  Place(lblGosubLabel, 1, 0);
  Place(cboLabel, 1, 1, 1, 2);
  Place(lblError, 2, 0);
  Place(cboError, 2, 1, 1, 2);
  PlaceButtonRow(3, 3);
  Move(0, 0, 4800, 2400);
}

void frmGosub::LoadFields(const RecordSet& rec, bool /*modify*/) {
  GetListBoxLabel(cboLabel, View(rec.Gosub.Target.LabelRefName));
  GetListBoxLabel(cboError, View(rec.Gosub.ErrorLabel.LabelRefName));
}

bool frmGosub::Accept(std::string& parameters) {
  GosubRec& r = WorkRecord.Gosub;
  SetField(r.Target.LabelRefName, LabelText(cboLabel));
  SetField(r.ErrorLabel.LabelRefName, LabelText(cboError));
  parameters = RTrimZ(View(r.Target.LabelRefName));
  return true;
}

std::string frmGosub::Decorate(std::string line) {
  return AppendLabelParm(line, " E=", View(WorkRecord.Gosub.ErrorLabel.LabelRefName));
}

}  // namespace kq
