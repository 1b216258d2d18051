#include "dialogs/frm_assign.h"

#include "dialogs/data_slots.h"
#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

frmAssign::frmAssign() : FuncDialog("frmAssign", "Assign", 0) {
  cboVar[0].SetStyle(ui::ComboBox::Style::DropdownList);
  for (int i = 0; i < 2; ++i) {
    cboVar[i].SetWidth(2400);
    cboVar[i].OnChange = [this, i] { cboVar_Change(i); };
    cboVar[i].OnGotFocus = [this, i] { cboVar_GotFocus(i); };
    cboVar[i].OnKeyPress = [this, i](int& k) { cboVar_KeyPress(i, k); };
  }
  cboLabel.SetWidth(2400);
  cboLabel.OnKeyPress = [this](int& k) { LegalLabelKey(cboLabel, k); };
  PlaceLabelRow();
  Place(lblAssign, 1, 0, 1, 3);
  Place(cboVar[0], 2, 0);
  Place(lblEqual, 2, 1);
  Place(cboVar[1], 2, 2);
  Place(lblError, 3, 0);
  Place(cboLabel, 3, 2);
  PlaceButtonRow(4, 3);
  Move(0, 0, 6600, 3000);
}

void frmAssign::RefreshVarNo() {
  // The target list is filled before anything can change: an empty target is the list
  // being refilled.
  if (cboVar[0].ListIndex() >= 0) VarNo = GetListboxVarNo(cboVar[0]);
}

void frmAssign::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const AssignRec& r = rec.Assign;
  GetListBoxVar(true, true, true, cboVar[0], r.Target);
  GetListBoxVar(true, true, true, cboVar[1], r.Source);
  GetListBoxLabel(cboLabel, View(r.ErrorLabel.LabelRefName));
  RefreshVarNo();
}

void frmAssign::cboVar_Change(int /*Index*/) {
  RefreshVarNo();
}

void frmAssign::cboVar_GotFocus(int /*Index*/) {
  RefreshVarNo();
}

void frmAssign::cboVar_KeyPress(int Index, int& keyAscii) {
  if (Index == 1) {
    LegalInput(cboVar[1], PrgHdr.Variable[VarNo].VarRefType, keyAscii);
  } else {
    SwallowEnter(keyAscii);
  }
}

bool frmAssign::Accept(std::string& parameters) {
  AssignRec& r = WorkRecord.Assign;
  AssignListBoxVar(cboVar[0], -1, r.Target);
  // The value suits the target's type; a variable of the list may be of another type,
  // which is what the conversion error label is for.
  if (!AssignListBoxVar(cboVar[1], r.Target.VarRefType, r.Source)) return Refuse(cboVar[1]);
  SetField(r.ErrorLabel.LabelRefName, LabelText(cboLabel));
  parameters = VarName(r.Target) + " = " + VarName(r.Source);
  return true;
}

std::string frmAssign::Decorate(std::string line) {
  return AppendLabelParm(line, " E=", View(WorkRecord.Assign.ErrorLabel.LabelRefName));
}

}  // namespace kq
