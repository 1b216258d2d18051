#include "dialogs/frm_get_key.h"

#include "dialogs/data_slots.h"
#include "dialogs/prompt_parts.h"
#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {
constexpr VarSlot kTarget{true, true, true, -1, -1};
}  // namespace

frmGetKey::frmGetKey() : FuncDialog("frmGetKey", "Get Keys", 7) {
  SetUpVarSlot(cboVariable, kTarget);
  cboVariable.OnClick = [this] { cboVariable_Click(); };
  for (ui::ComboBox* c : {&cboNoOfKeys, &cboTermKey}) {
    c->SetStyle(ui::ComboBox::Style::DropdownList);
    c->SetWidth(1200);
    c->OnKeyPress = [](int& k) { SwallowEnter(k); };
  }
  SetUpSecondsBox(txtSec, 2);
  for (ui::ComboBox& c : cboLabel) SetUpLabelCombo(c);
  chkDisableHangup.SetWidth(3000);
  chkTerminate.SetWidth(3000);
  chkTerminate.OnClick = [this] { TerminateClick(*this, chkTerminate); };
  PlaceLabelRow();
  Place(lblVariable, 1, 0);
  Place(cboVariable, 1, 1);
  Place(lblNoOfDigits, 2, 0);
  Place(cboNoOfKeys, 2, 1);
  Place(lblTermDigit, 3, 0);
  Place(cboTermKey, 3, 1);
  Place(lblTimeout, 4, 0);
  Place(txtSec, 4, 1);
  Place(chkDisableHangup, 5, 0, 1, 2);
  Place(chkTerminate, 6, 0, 1, 2);
  Place(lblHangupLabel, 7, 0);
  Place(cboLabel[0], 7, 1);
  Place(lblErrorLabel, 8, 0);
  Place(cboLabel[1], 8, 1);
  Place(lblTimeoutLabel, 9, 0);
  Place(cboLabel[2], 9, 1);
  PlaceButtonRow(10, 2);
  Move(0, 0, 5200, 5400);
}

void frmGetKey::GetListBoxNoOfKeys(int32_t keyCount) {
  const int32_t type = PrgHdr.Variable[GetListboxVarNo(cboVariable)].VarRefType;
  int32_t highest = 0;
  switch (type) {
    case kVarLong:
      highest = 9;
      break;
    case kVarDouble:
    case kVarString:
      highest = 15;
      break;
    default:
      ui::ProgramError("Illegal Variable.Type " + Str(int64_t{type}) +
                       " in Global GetListBoxNoOfKeys.");
  }
  cboNoOfKeys.Clear();
  // Row 0 of the table is "Ignore"; row n + 1 holds n keys.
  for (int32_t n = 1; n <= highest; ++n) cboNoOfKeys.AddItem(RTrim(Row(KeyCountNames[n + 1])));
  const int32_t index = keyCount - 2;
  if (index >= 0 && index < cboNoOfKeys.ListCount()) cboNoOfKeys.SetListIndex(index);
}

void frmGetKey::cboVariable_Click() {
  GetListBoxNoOfKeys(cboNoOfKeys.ListIndex() + 2);
}

void frmGetKey::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const GetKeysRec& r = rec.GetKeys;
  FillVarSlot(cboVariable, kTarget, r.Target);
  GetListBoxNoOfKeys(r.KeyCount);
  cboTermKey.Clear();
  for (const auto& row : TermKeyNames) cboTermKey.AddItem(RTrim(Row(row)));
  if (r.TermKey >= 0 && r.TermKey < cboTermKey.ListCount()) cboTermKey.SetListIndex(r.TermKey);
  txtSec.SetText(Trim(Str(int64_t{r.TimeoutSec})));
  chkDisableHangup.SetValue(r.DisableHangup == 1 ? 1 : 0);
  GetListBoxLabel(cboLabel[0], View(r.HangupLabel.LabelRefName));
  GetListBoxLabel(cboLabel[1], View(r.ErrorLabel.LabelRefName));
  GetListBoxLabel(cboLabel[2], View(r.TimeoutLabel.LabelRefName));
  chkTerminate.SetValue(r.Terminate == 1 ? 1 : 0);
}

bool frmGetKey::CheckBeforeLabel() {
  // The timeout target and the seconds are mandatory.
  if (!Trim(cboLabel[2].Text()).empty() && SecondsIn(txtSec, 60) >= 0) return true;
  if (!RequireLabel(cboLabel[2])) return false;
  return Refuse(txtSec);
}

bool frmGetKey::Accept(std::string& parameters) {
  const int32_t seconds = SecondsIn(txtSec, 60);
  GetKeysRec& r = WorkRecord.GetKeys;
  AssignListBoxVar(cboVariable, -1, r.Target);
  r.KeyCount = cboNoOfKeys.ListIndex() + 2;
  r.TermKey = cboTermKey.ListIndex();
  r.DisableHangup = chkDisableHangup.Value();
  SetField(r.HangupLabel.LabelRefName, LabelText(cboLabel[0]));
  SetField(r.ErrorLabel.LabelRefName, LabelText(cboLabel[1]));
  SetField(r.TimeoutLabel.LabelRefName, LabelText(cboLabel[2]));
  r.TimeoutSec = seconds;
  r.Terminate = chkTerminate.Value();
  parameters = VarName(r.Target) + " NOK=" + NameRow(KeyCountNames, r.KeyCount) +
               " TK=" + NameRow(TermKeyNames, r.TermKey) + HangupParm(r.DisableHangup);
  parameters = AppendLabelParm(parameters, " H=", View(r.HangupLabel.LabelRefName));
  parameters = AppendLabelParm(parameters, " E=", View(r.ErrorLabel.LabelRefName));
  parameters = AppendLabelParm(parameters, " T=", View(r.TimeoutLabel.LabelRefName));
  parameters += SecondsTermParm(r.TimeoutSec, r.Terminate);
  return true;
}

}  // namespace kq
