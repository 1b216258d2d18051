#include "dialogs/frm_sound_file_counter.h"

#include "dialogs/data_slots.h"
#include "document/catalogue.h"
#include "document/state.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {
constexpr VarSlot kCounter{true, false, false, -1, -1};
}

frmSoundFileCounter::frmSoundFileCounter()
    : FuncDialog("frmSoundFileCounter", "Sound File Counter", 52) {
  SetUpVarSlot(cboVariable, kCounter);
  for (ui::OptionButton& o : optAction) {
    o.SetWidth(1800);
    o.OnKeyPress = [this](int& k) { optAction_KeyPress(k); };
  }
  fraAction.Place(optAction[0], 0, 0);
  fraAction.Place(optAction[1], 1, 0);
  PlaceLabelRow();
  Place(fraAction, 1, 0, 1, 2);
  Place(lblDial, 2, 0);
  Place(cboVariable, 2, 1);
  PlaceButtonRow(3, 2);
  Move(0, 0, 5000, 3400);
}

void frmSoundFileCounter::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const FormatTargetRec& r = rec.SoundFileCount;
  if (r.Format == 0 || r.Format == 1) optAction[r.Format].SetValue(true);
  FillVarSlot(cboVariable, kCounter, r.Target);
}

void frmSoundFileCounter::optAction_KeyPress(int& keyAscii) {
  keyAscii = 0;
  ui::platform().Beep();
}

bool frmSoundFileCounter::Accept(std::string& parameters) {
  FormatTargetRec& r = WorkRecord.SoundFileCount;
  // With no option on (a stored action out of range) the record keeps its action.
  for (int i = 0; i < 2; ++i) {
    if (optAction[i].Value()) r.Format = i;
  }
  ReadVarSlot(cboVariable, kCounter, r.Target);
  parameters = NameRow(CounterActionNames, r.Format) + "  Variable = " + VarName(r.Target);
  return true;
}

}  // namespace kq
