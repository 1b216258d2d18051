#include "dialogs/frm_wait_for_key.h"

#include "dialogs/data_slots.h"
#include "dialogs/prompt_parts.h"
#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

frmWaitForKey::frmWaitForKey() : FuncDialog("frmWaitForKey", "Wait for Key", 20) {
  for (ui::ComboBox& c : cboLabel) SetUpLabelCombo(c);
  SetUpSecondsBox(txtSec, 2);
  chkTerminate.SetWidth(3000);
  chkDisableHangup.SetWidth(3000);
  chkTerminate.OnClick = [this] { TerminateClick(*this, chkTerminate); };
  // Two columns of targets: the keys 0 to 9 left, the rest right.
  PlaceLabelRow();
  for (int i = 0; i < kKeys; ++i) {
    const int row = 1 + i % 10;
    const int column = i < 10 ? 0 : 2;
    Place(KeyCaption(i), row, column);
    Place(cboLabel[i], row, column + 1);
  }
  Place(lblSec, 10, 2);
  Place(txtSec, 10, 3);
  Place(chkTerminate, 11, 0, 1, 2);
  Place(chkDisableHangup, 11, 2, 1, 2);
  PlaceButtonRow(12, 4);
  Move(0, 0, 9600, 6400);
}

ui::Label& frmWaitForKey::KeyCaption(int index) {
  ui::Label* others[] = {&lblKeySquare, &lblKeyStar, &lblKeyA,  &lblKeyB,   &lblKeyC,
                         &lblKeyD,      &lblHangup,  &lblError, &lblTimeout};
  return index < 10 ? lblKey[index] : *others[index - 10];
}

void frmWaitForKey::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const WaitForKeyRec& r = rec.WaitForKey;
  for (int i = 0; i < kKeys; ++i) GetListBoxLabel(cboLabel[i], View(r.KeyLabel[i]));
  txtSec.SetText(Trim(Str(int64_t{r.TimeoutSec})));
  chkDisableHangup.SetValue(r.DisableHangup == 1 ? 1 : 0);
  chkTerminate.SetValue(r.Terminate == 1 ? 1 : 0);
}

bool frmWaitForKey::CheckBeforeLabel() {
  // The timeout target and the seconds are mandatory.
  if (!Trim(cboLabel[18].Text()).empty() && SecondsIn(txtSec, 60) >= 0) return true;
  if (!RequireLabel(cboLabel[18])) return false;
  return Refuse(txtSec);
}

bool frmWaitForKey::Accept(std::string& parameters) {
  WaitForKeyRec& r = WorkRecord.WaitForKey;
  for (int i = 0; i < kKeys; ++i) SetField(r.KeyLabel[i], LabelText(cboLabel[i]));
  r.DisableHangup = chkDisableHangup.Value();
  r.TimeoutSec = SecondsIn(txtSec, 60);
  r.Terminate = chkTerminate.Value();
  parameters = HangupParm(r.DisableHangup) + " ";
  for (int i = 0; i < kKeys; ++i) {
    parameters = AppendLabelParm(parameters, Row(KeyTags[i]), View(r.KeyLabel[i])) + " ";
  }
  parameters += SecondsTermParm(r.TimeoutSec, r.Terminate);
  return true;
}

}  // namespace kq
