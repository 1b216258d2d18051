#include "dialogs/frm_goto.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

frmGoto::frmGoto() : FuncDialog("frmGoto", "Goto", 10) {
  cboLabel.SetWidth(2400);
  cboLabel.OnKeyPress = [this](int& k) { LegalLabelKey(cboLabel, k); };
  PlaceLabelRow();
  Place(lblGotoLabel, 1, 0);
  Place(cboLabel, 1, 1, 1, 2);
  PlaceButtonRow(2, 3);
  Move(0, 0, 4800, 1900);
}

void frmGoto::LoadFields(const RecordSet& rec, bool /*modify*/) {
  GetListBoxLabel(cboLabel, View(rec.Goto.Target.LabelRefName));
}

bool frmGoto::Accept(std::string& parameters) {
  GotoRec& r = WorkRecord.Goto;
  SetField(r.Target.LabelRefName, LabelText(cboLabel));
  parameters = RTrimZ(View(r.Target.LabelRefName));
  return true;
}

}  // namespace kq
