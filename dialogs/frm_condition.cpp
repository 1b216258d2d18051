#include "dialogs/frm_condition.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

frmCondition::frmCondition() : FuncDialog("frmCondition", "Condition", 3) {
  cboVar[0].SetStyle(ui::ComboBox::Style::DropdownList);
  cboOperator.SetStyle(ui::ComboBox::Style::DropdownList);
  for (int i = 0; i < 2; ++i) {
    cboVar[i].SetWidth(2400);
    cboVar[i].OnClick = [this, i] { cboVar_Click(i); };
    cboVar[i].OnGotFocus = [this, i] { cboVar_GotFocus(i); };
    cboVar[i].OnKeyPress = [this, i](int& k) { cboVar_KeyPress(i, k); };
    cboLabel[i].SetWidth(2400);
    cboLabel[i].OnKeyPress = [this, i](int& k) { cboLabel_KeyPress(i, k); };
  }
  cboOperator.SetWidth(700);
  cboOperator.OnKeyPress = [](int& k) { SwallowEnter(k); };

  PlaceLabelRow();
  Place(lblCondition, 1, 0);
  Place(lblIf, 2, 0);
  Place(cboVar[0], 2, 1);
  Place(cboOperator, 2, 2);
  Place(cboVar[1], 2, 3, 1, 2);
  Place(lblThenLabel, 3, 0);
  Place(cboLabel[0], 3, 1);
  Place(lblElseLabel, 4, 0);
  Place(cboLabel[1], 4, 1);
  PlaceButtonRow(5, 5);
  Move(0, 0, 8400, 3300);
}

int32_t frmCondition::LeftType() const {
  return PrgHdr.Variable[VarNo].VarRefType;
}

void frmCondition::FillRightSide(const VarRef& value) {
  if (LeftType() == kVarString) {
    GetListBoxVar(false, false, true, cboVar[1], value);
  } else {
    GetListBoxVar(true, true, false, cboVar[1], value);
  }
}

void frmCondition::LoadFields(const RecordSet& rec, bool modify) {
  const ConditionRec& r = rec.Condition;
  GetListBoxVar(true, true, true, cboVar[0], r.Left);
  GetListBoxLabel(cboLabel[0], View(r.ThenLabel));
  GetListBoxLabel(cboLabel[1], View(r.ElseLabel));
  VarNo = GetListboxVarNo(cboVar[0]);
  // A new line offers the left variable itself on the right.
  FillRightSide(modify ? r.Right : PrgHdr.Variable[VarNo]);
  GetRelationalOpr(cboOperator, LeftType(), r.Operator);
}

void frmCondition::cboVar_Click(int Index) {
  switch (Index) {
    case 0:
      VarNo = GetListboxVarNo(cboVar[0]);
      FillRightSide(PrgHdr.Variable[VarNo]);
      GetRelationalOpr(cboOperator, LeftType(), cboOperator.ListIndex());
      break;
    case 1:
      break;
    default:
      ui::ProgramError("Illegal variable index cboVar_Click(" + Str(int64_t{Index}) +
                       ") in frmCondition.");
  }
}

void frmCondition::cboVar_GotFocus(int /*Index*/) {
  VarNo = GetListboxVarNo(cboVar[0]);
}

void frmCondition::cboVar_KeyPress(int Index, int& keyAscii) {
  switch (Index) {
    case 0:
      SwallowEnter(keyAscii);
      break;
    case 1:
      LegalInput(cboVar[1], LeftType(), keyAscii);
      break;
    default:
      ui::ProgramError("Illegal variable index cboVar_KeyPress in frmCondition.");
  }
}

void frmCondition::cboLabel_KeyPress(int Index, int& keyAscii) {
  LegalLabelKey(cboLabel[Index], keyAscii);
}

bool frmCondition::Accept(std::string& parameters) {
  ConditionRec& r = WorkRecord.Condition;
  AssignListBoxVar(cboVar[0], -1, r.Left);
  r.Operator = cboOperator.ListIndex();
  if (!AssignListBoxVar(cboVar[1], r.Left.VarRefType, r.Right)) {
    cboVar[1].SetFocus();
    ui::platform().Beep();
    return false;
  }
  if (!RequireLabel(cboLabel[0])) return false;
  SetField(r.ThenLabel, LabelText(cboLabel[0]));
  SetField(r.ElseLabel, LabelText(cboLabel[1]));
  parameters = "IF " + RTrimZ(View(r.Left.VarRefName)) + " " + cboOperator.Text() + " " +
               RTrimZ(View(r.Right.VarRefName)) + " THEN " + RTrimZ(View(r.ThenLabel));
  if (!FieldEmpty(View(r.ElseLabel))) parameters += " ELSE " + RTrimZ(View(r.ElseLabel));
  return true;
}

}  // namespace kq
