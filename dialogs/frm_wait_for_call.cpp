#include "dialogs/frm_wait_for_call.h"

#include "dialogs/data_slots.h"
#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

namespace {
constexpr int kFunc = 19;
// The identification numbers go into a declared Long or String variable, nothing else.
constexpr VarSlot kIdVariable{true, false, true, -1, -1};
constexpr int32_t kFsk = 1;
}  // namespace

frmWaitForCall::frmWaitForCall() : FuncDialog("frmWaitForCall", "Wait for Call", kFunc) {
  for (ui::ComboBox* c : {&cboRings, &cboHour, &cboMinute, &cboCallerIDTone, &cboCalledIDTone}) {
    c->SetStyle(ui::ComboBox::Style::DropdownList);
    c->SetWidth(900);
    c->OnKeyPress = [](int& k) { SwallowEnter(k); };
  }
  cboCallerIDTone.SetWidth(1200);
  cboCalledIDTone.SetWidth(1200);
  SetUpVarSlot(cboCallerIDNo, kIdVariable);
  SetUpVarSlot(cboCalledIDNo, kIdVariable);
  cboLabel.SetWidth(2400);
  cboLabel.OnKeyPress = [this](int& k) { LegalLabelKey(cboLabel, k); };
  chkTerminate.OnClick = [this] { chkTerminate_Click(); };
  chkGetCallerID.OnClick = [this] { chkGetCallerID_Click(); };
  chkGetCalledID.OnClick = [this] { chkGetCalledID_Click(); };
  cboCallerIDTone.OnClick = [this] { cboCallerIDTone_Click(); };
  for (ui::CheckBox* c : {&chkTerminate, &chkGetCallerID, &chkSystemTime, &chkGetCalledID}) {
    c->SetWidth(4200);
  }
  // The groups under their check boxes open disabled.
  EnableDaily(false);
  EnableCaller(false);
  EnableCalled(false);

  PlaceLabelRow();
  Place(lblRings, 1, 0);
  Place(cboRings, 1, 1);
  Place(chkTerminate, 2, 0, 1, 5);
  Place(lblTerminate, 3, 0);
  Place(cboHour, 3, 1);
  Place(lblClock, 3, 2);
  Place(cboMinute, 3, 3);
  Place(lblMinutes, 3, 4);
  Place(lblGoto, 4, 0);
  Place(cboLabel, 4, 1, 1, 3);
  Place(chkGetCallerID, 5, 0, 1, 5);
  Place(lblTone[0], 6, 0);
  Place(cboCallerIDTone, 6, 1);
  Place(lblNumber[0], 6, 2);
  Place(cboCallerIDNo, 6, 3, 1, 2);
  Place(chkSystemTime, 7, 0, 1, 5);
  Place(chkGetCalledID, 8, 0, 1, 5);
  Place(lblTone[1], 9, 0);
  Place(cboCalledIDTone, 9, 1);
  Place(lblNumber[1], 9, 2);
  Place(cboCalledIDNo, 9, 3, 1, 2);
  PlaceButtonRow(10, 5);
  Move(0, 0, 8400, 5600);
}

void frmWaitForCall::EnableDaily(bool enabled) {
  for (ui::Control* c : std::initializer_list<ui::Control*>{
           &lblTerminate, &lblMinutes, &lblClock, &cboMinute, &cboHour, &lblGoto, &cboLabel}) {
    c->SetEnabled(enabled);
  }
}

void frmWaitForCall::EnableCaller(bool enabled) {
  lblTone[0].SetEnabled(enabled);
  lblNumber[0].SetEnabled(enabled);
  cboCallerIDTone.SetEnabled(enabled);
  cboCallerIDNo.SetEnabled(enabled);
  chkSystemTime.SetEnabled(enabled && CallerToneIsFsk());
}

void frmWaitForCall::EnableCalled(bool enabled) {
  lblTone[1].SetEnabled(enabled);
  lblNumber[1].SetEnabled(enabled);
  cboCalledIDTone.SetEnabled(enabled);
  cboCalledIDNo.SetEnabled(enabled);
}

bool frmWaitForCall::CallerToneIsFsk() const {
  return cboCallerIDTone.ListIndex() == kFsk;
}

void frmWaitForCall::FillDaily(const WaitForCallRec& r) {
  GetListBoxNumber(cboHour, 1, 23, 1, r.DailyHour);
  GetListBoxNumber(cboMinute, 0, 59, 1, r.DailyMinute);
  GetListBoxLabel(cboLabel, View(r.DailyLabel.LabelRefName));
}

void frmWaitForCall::FillIdentification(int group, const WaitForCallRec& r) {
  ui::ComboBox& tone = group == 0 ? cboCallerIDTone : cboCalledIDTone;
  FillNameList(tone, ToneTypeNames, group == 0 ? r.CallerIdTone : r.CalledIdTone);
  if (DefinedVar(false, kFunc)) {
    FillVarSlot(group == 0 ? cboCallerIDNo : cboCalledIDNo, kIdVariable,
                group == 0 ? r.CallerIdVar : r.CalledIdVar);
  }
}

void frmWaitForCall::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const WaitForCallRec& r = rec.WaitForCall;
  loading_ = true;
  GetListBoxNumber(cboRings, 1, 4, 1, r.Rings);
  FillDaily(r);
  FillIdentification(0, r);
  FillIdentification(1, r);
  chkTerminate.SetValue(r.DailyGoto == 1 ? 1 : 0);
  chkGetCallerID.SetValue(r.GetCallerId == 1 ? 1 : 0);
  chkSystemTime.SetValue(r.UpdateSystemTime == 1 ? 1 : 0);
  chkGetCalledID.SetValue(r.GetCalledId == 1 ? 1 : 0);
  loading_ = false;
  EnableDaily(chkTerminate.Value() == 1);
  EnableCaller(chkGetCallerID.Value() == 1);
  EnableCalled(chkGetCalledID.Value() == 1);
}

void frmWaitForCall::chkTerminate_Click() {
  if (loading_) return;
  if (chkTerminate.Value() == 1) {
    EnableDaily(true);
  } else {
    // Unchecking gives the defaults back.
    EnableDaily(false);
    FillDaily(InitRecord.WaitForCall);
  }
}

void frmWaitForCall::chkGetCallerID_Click() {
  if (loading_) return;
  if (chkGetCallerID.Value() == 1) {
    if (DefinedVar(true, kFunc)) {
      EnableCaller(true);
    } else {
      chkGetCallerID.SetValue(0);
    }
  } else {
    EnableCaller(false);
  }
  if (DefinedVar(false, kFunc)) FillIdentification(0, InitRecord.WaitForCall);
}

void frmWaitForCall::chkGetCalledID_Click() {
  if (loading_) return;
  if (chkGetCalledID.Value() == 1) {
    if (DefinedVar(true, kFunc)) {
      EnableCalled(true);
    } else {
      chkGetCalledID.SetValue(0);
    }
  } else {
    EnableCalled(false);
  }
  if (DefinedVar(false, kFunc)) FillIdentification(1, InitRecord.WaitForCall);
}

void frmWaitForCall::cboCallerIDTone_Click() {
  // The system time comes only with an FSK caller identification.
  if (!loading_) chkSystemTime.SetEnabled(CallerToneIsFsk());
}

bool frmWaitForCall::Accept(std::string& parameters) {
  WaitForCallRec& r = WorkRecord.WaitForCall;
  r.Rings = static_cast<int32_t>(Val(cboRings.Text()));
  r.DailyGoto = chkTerminate.Value();
  r.DailyMinute = cboMinute.ListIndex();
  r.DailyHour = cboHour.ListIndex() + 1;
  SetField(r.DailyLabel.LabelRefName, LabelText(cboLabel));
  const bool variables = DefinedVar(false, kFunc);
  r.GetCallerId = chkGetCallerID.Value();
  r.CallerIdTone = cboCallerIDTone.ListIndex();
  if (variables) AssignListBoxVar(cboCallerIDNo, -1, r.CallerIdVar);
  r.UpdateSystemTime = chkSystemTime.Value();
  r.GetCalledId = chkGetCalledID.Value();
  r.CalledIdTone = cboCalledIDTone.ListIndex();
  if (variables) AssignListBoxVar(cboCalledIDNo, -1, r.CalledIdVar);

  parameters = "R=" + Num(r.Rings);
  if (r.DailyGoto != 0) {
    parameters += "  At " + Num(r.DailyHour) + "." + Num(r.DailyMinute) + " o'clock goto " +
                  RTrimZ(View(r.DailyLabel.LabelRefName));
  }
  if (r.GetCallerId != 0) {
    parameters += "  Caller T=" + NameRow(ToneTypeNames, r.CallerIdTone) +
                  " Caller ID=" + VarName(r.CallerIdVar);
    if (r.UpdateSystemTime != 0) parameters += "  Update system time";
  }
  if (r.GetCalledId != 0) {
    parameters += "  Called T=" + NameRow(ToneTypeNames, r.CalledIdTone) +
                  " Called ID=" + VarName(r.CalledIdVar);
  }
  return true;
}

}  // namespace kq
