#include "dialogs/frm_record_sound.h"

#include "dialogs/data_slots.h"
#include "dialogs/prompt_parts.h"
#include "dialogs/services.h"
#include "document/header.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

namespace {
// A String variable, or a file name typed as a String constant.
constexpr VarSlot kFile{false, false, true, 2, 2};
}  // namespace

frmRecordSound::frmRecordSound() : FuncDialog("frmRecordSound", "Record Sound", 12) {
  cboPathVar.SetStyle(ui::ComboBox::Style::DropdownList);
  cboPathVar.SetWidth(2400);
  cboPathVar.OnKeyPress = [](int& k) { SwallowEnter(k); };
  SetUpVarSlot(cboVariable, kFile);
  SetUpSecondsBox(txtRecordSec, 3);
  SetUpSecondsBox(txtTimeoutSec, 2);
  for (ui::ComboBox& c : cboLabel) SetUpLabelCombo(c);
  ui::CheckBox* checks[] = {&chkCounterActive,       &chkAppend,
                            &chkBeepBeforeRecording, &chkDoNotRecordSilence,
                            &chkBeepDuringSilence,   &chkDisableHangup};
  PlaceLabelRow();
  Place(lblPathVar, 1, 0);
  Place(cboPathVar, 1, 1);
  Place(lblRecordFile, 2, 0);
  Place(cboVariable, 2, 1);
  Place(lblRecordTime, 3, 0);
  Place(txtRecordSec, 3, 1);
  Place(lblSilenceTimeout, 4, 0);
  Place(txtTimeoutSec, 4, 1);
  for (int i = 0; i < 6; ++i) {
    checks[i]->SetWidth(2600);
    Place(*checks[i], 5 + i / 2, i % 2);
  }
  Place(lblHangup, 8, 0);
  Place(cboLabel[0], 8, 1);
  Place(lblError, 9, 0);
  Place(cboLabel[1], 9, 1);
  Place(lblSilence, 10, 0);
  Place(cboLabel[2], 10, 1);
  PlaceButtonRow(11, 2);
  Move(0, 0, 5800, 5800);
}

void frmRecordSound::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const RecordSoundRec& r = rec.RecordSound;
  GetListBoxPathVar(cboPathVar, kPathMessage, View(r.MessagePath));
  FillVarSlot(cboVariable, kFile, r.FileName);
  txtRecordSec.SetText(Trim(Str(int64_t{r.MaxRecordSec})));
  txtTimeoutSec.SetText(Trim(Str(int64_t{r.SilenceSec})));
  chkCounterActive.SetValue(r.CounterActive == 1 ? 1 : 0);
  chkAppend.SetValue(r.Append == 1 ? 1 : 0);
  chkBeepBeforeRecording.SetValue(r.BeepBefore == 1 ? 1 : 0);
  chkDoNotRecordSilence.SetValue(r.DontRecordSilence == 1 ? 1 : 0);
  chkBeepDuringSilence.SetValue(r.BeepDuringSilence == 1 ? 1 : 0);
  chkDisableHangup.SetValue(r.DisableHangup == 1 ? 1 : 0);
  GetListBoxLabel(cboLabel[0], View(r.HangupLabel.LabelRefName));
  GetListBoxLabel(cboLabel[1], View(r.ErrorLabel.LabelRefName));
  GetListBoxLabel(cboLabel[2], View(r.SilenceLabel.LabelRefName));
}

bool frmRecordSound::CheckBeforeLabel() {
  if (Trim(cboVariable.Text()).empty()) return Refuse(cboVariable);
  if (SecondsIn(txtRecordSec, 999) < 0) return Refuse(txtRecordSec);
  if (!RequireLabel(cboLabel[2])) return false;
  if (SecondsIn(txtTimeoutSec, 60) < 0) return Refuse(txtTimeoutSec);
  return true;
}

bool frmRecordSound::Accept(std::string& parameters) {
  RecordSoundRec& r = WorkRecord.RecordSound;
  SetField(r.MessagePath, cboPathVar.Text());
  AssignListBoxVar(cboVariable, 2, r.FileName);
  r.MaxRecordSec = SecondsIn(txtRecordSec, 999);
  r.CounterActive = chkCounterActive.Value();
  r.Append = chkAppend.Value();
  r.BeepBefore = chkBeepBeforeRecording.Value();
  r.DontRecordSilence = chkDoNotRecordSilence.Value();
  r.BeepDuringSilence = chkBeepDuringSilence.Value();
  r.DisableHangup = chkDisableHangup.Value();
  SetField(r.HangupLabel.LabelRefName, LabelText(cboLabel[0]));
  SetField(r.ErrorLabel.LabelRefName, LabelText(cboLabel[1]));
  SetField(r.SilenceLabel.LabelRefName, LabelText(cboLabel[2]));
  r.SilenceSec = SecondsIn(txtTimeoutSec, 60);
  parameters = RTrimZ(View(r.MessagePath)) + "\\" + VarName(r.FileName) +
               " RT=" + Str(int64_t{r.MaxRecordSec}) + "sec.";
  const std::pair<int32_t, const char*> flags[] = {{r.CounterActive, " CA"},
                                                   {r.Append, " A"},
                                                   {r.BeepBefore, " BBR"},
                                                   {r.DontRecordSilence, " DRS"},
                                                   {r.BeepDuringSilence, " VAB"}};
  for (const auto& [set, tag] : flags) {
    if (set != 0) parameters += tag;
  }
  parameters += HangupParm(r.DisableHangup);
  parameters = AppendLabelParm(parameters, " H=", View(r.HangupLabel.LabelRefName));
  parameters = AppendLabelParm(parameters, " E=", View(r.ErrorLabel.LabelRefName));
  parameters = AppendLabelParm(parameters, " S=", View(r.SilenceLabel.LabelRefName));
  parameters += Str(int64_t{r.SilenceSec}) + "sec. ";
  return true;
}

}  // namespace kq
