#include "dialogs/frm_on_off_hook.h"

#include "dialogs/data_slots.h"
#include "document/catalogue.h"
#include "document/state.h"
#include "ui/platform/platform.h"

namespace kq {

frmOnOffHook::frmOnOffHook() : FuncDialog("frmOnOffHook", "On/Off Hook", 43) {
  for (int i = 0; i < 3; ++i) {
    optAction[i].SetWidth(1800);
    optAction[i].OnKeyPress = [this, i](int& k) { optAction_KeyPress(i, k); };
    fraAction.Place(optAction[i], i, 0);
  }
  PlaceLabelRow();
  Place(fraAction, 1, 0, 1, 2);
  PlaceButtonRow(2, 2);
  Move(0, 0, 3600, 3000);
}

void frmOnOffHook::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const int32_t action = rec.OnOffHook.HookAction;
  if (action >= 0 && action < 3) optAction[action].SetValue(true);
}

void frmOnOffHook::optAction_KeyPress(int /*Index*/, int& keyAscii) {
  // The options answer the mouse only.
  keyAscii = 0;
  ui::platform().Beep();
}

bool frmOnOffHook::Accept(std::string& parameters) {
  int action = -1;
  for (int i = 0; i < 3 && action < 0; ++i) {
    if (optAction[i].Value()) action = i;
  }
  // A line whose action no option shows (a damaged line) has to have one chosen.
  if (action < 0) return Refuse(optAction[0]);
  WorkRecord.OnOffHook.HookAction = action;
  parameters = NameRow(HookActionNames, action);
  return true;
}

}  // namespace kq
