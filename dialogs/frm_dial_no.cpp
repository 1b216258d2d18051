#include "dialogs/frm_dial_no.h"

#include "dialogs/data_slots.h"
#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

namespace {
// A Long or String variable, or a number typed as a Long.
constexpr VarSlot kNumber{true, false, true, 0, 0};
}  // namespace

frmDialNo::frmDialNo() : FuncDialog("frmDialNo", "Dial No.", 37) {
  SetUpVarSlot(cboVariable, kNumber);
  for (int i = 0; i < 2; ++i) {
    cboLabel[i].SetWidth(2400);
    cboLabel[i].OnKeyPress = [this, i](int& k) { LegalLabelKey(cboLabel[i], k); };
  }
  chkWaitForDialTone.SetWidth(2400);
  chkWaitForDialTone.OnClick = [this] { chkWaitForDialTone_Click(); };
  PlaceLabelRow();
  Place(lblDial, 1, 0, 1, 2);
  Place(cboVariable, 2, 0, 1, 2);
  Place(chkWaitForDialTone, 3, 0, 1, 2);
  Place(lblNoDialToneLabel, 4, 0);
  Place(cboLabel[0], 4, 1);
  Place(lblErrorLabel, 5, 0);
  Place(cboLabel[1], 5, 1);
  PlaceButtonRow(6, 2);
  Move(0, 0, 5200, 3600);
}

void frmDialNo::EnableNoDialTone(bool enabled) {
  lblNoDialToneLabel.SetEnabled(enabled);
  cboLabel[0].SetEnabled(enabled);
}

void frmDialNo::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const DialNumberRec& r = rec.DialNumber;
  FillVarSlot(cboVariable, kNumber, r.Number);
  GetListBoxLabel(cboLabel[0], View(r.NoDialToneLabel.LabelRefName));
  GetListBoxLabel(cboLabel[1], View(r.ErrorLabel.LabelRefName));
  const bool wait = r.WaitForDialTone == 1;
  chkWaitForDialTone.SetValue(wait ? 1 : 0);
  EnableNoDialTone(wait);
}

void frmDialNo::chkWaitForDialTone_Click() {
  if (chkWaitForDialTone.Value() == 1) {
    EnableNoDialTone(true);
  } else {
    EnableNoDialTone(false);
    cboLabel[0].SetText("");
  }
}

bool frmDialNo::CheckBeforeLabel() {
  // Waiting for a dial tone needs somewhere to go without one.
  if (chkWaitForDialTone.Value() == 1) return RequireLabel(cboLabel[0]);
  return true;
}

bool frmDialNo::Accept(std::string& parameters) {
  DialNumberRec& r = WorkRecord.DialNumber;
  // A text that is no whole number leaves the number as it was.
  AssignListBoxVar(cboVariable, 0, r.Number);
  r.WaitForDialTone = chkWaitForDialTone.Value();
  SetField(r.NoDialToneLabel.LabelRefName, LabelText(cboLabel[0]));
  SetField(r.ErrorLabel.LabelRefName, LabelText(cboLabel[1]));
  parameters = VarName(r.Number);
  if (r.WaitForDialTone != 0) parameters += " WFDT";
  return true;
}

std::string frmDialNo::Decorate(std::string line) {
  const DialNumberRec& r = WorkRecord.DialNumber;
  line = AppendLabelParm(line, " NDT=", View(r.NoDialToneLabel.LabelRefName));
  return AppendLabelParm(line, " E=", View(r.ErrorLabel.LabelRefName));
}

}  // namespace kq
