#include "dialogs/frm_say_file.h"

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

frmSayFile::frmSayFile() : FuncDialog("frmSayFile", "Say File", 21) {
  cboPathVar.SetStyle(ui::ComboBox::Style::DropdownList);
  cboPathVar.SetWidth(2400);
  cboPathVar.OnKeyPress = [](int& k) { SwallowEnter(k); };
  SetUpVarSlot(cboVar, kFile);
  for (ui::ComboBox& c : cboLabel) SetUpLabelCombo(c);
  chkCounterActive.SetWidth(3000);
  chkRGControl.SetWidth(3000);
  chkDisableHangup.SetWidth(3000);
  PlaceLabelRow();
  Place(lblPathVar, 1, 0);
  Place(cboPathVar, 1, 1);
  Place(lblRecordFile, 2, 0);
  Place(cboVar, 2, 1);
  Place(chkCounterActive, 3, 0, 1, 2);
  Place(chkRGControl, 4, 0, 1, 2);
  Place(chkDisableHangup, 5, 0, 1, 2);
  Place(lblHangup, 6, 0);
  Place(cboLabel[0], 6, 1);
  Place(lblError, 7, 0);
  Place(cboLabel[1], 7, 1);
  PlaceButtonRow(8, 2);
  Move(0, 0, 5200, 4600);
}

void frmSayFile::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const SayFileRec& r = rec.SayFile;
  GetListBoxPathVar(cboPathVar, kPathMessage, View(r.MessagePath));
  FillVarSlot(cboVar, kFile, r.FileName);
  chkCounterActive.SetValue(r.CounterActive == 1 ? 1 : 0);
  chkRGControl.SetValue(r.RateGainControl == 1 ? 1 : 0);
  chkDisableHangup.SetValue(r.DisableHangup == 1 ? 1 : 0);
  GetListBoxLabel(cboLabel[0], View(r.HangupLabel.LabelRefName));
  GetListBoxLabel(cboLabel[1], View(r.ErrorLabel.LabelRefName));
}

bool frmSayFile::Accept(std::string& parameters) {
  SayFileRec& r = WorkRecord.SayFile;
  SetField(r.MessagePath, cboPathVar.Text());
  AssignListBoxVar(cboVar, 2, r.FileName);
  r.CounterActive = chkCounterActive.Value();
  r.RateGainControl = chkRGControl.Value();
  r.DisableHangup = chkDisableHangup.Value();
  SetField(r.HangupLabel.LabelRefName, LabelText(cboLabel[0]));
  SetField(r.ErrorLabel.LabelRefName, LabelText(cboLabel[1]));
  parameters = RTrimZ(View(r.MessagePath)) + "\\" + VarName(r.FileName);
  if (r.CounterActive != 0) parameters += " CA";
  if (r.RateGainControl != 0) parameters += " R&GC";
  parameters += HangupParm(r.DisableHangup);
  parameters = AppendLabelParm(parameters, " H=", View(r.HangupLabel.LabelRefName));
  parameters = AppendLabelParm(parameters, " E=", View(r.ErrorLabel.LabelRefName));
  return true;
}

}  // namespace kq
