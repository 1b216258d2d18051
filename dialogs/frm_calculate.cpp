#include "dialogs/frm_calculate.h"

#include "dialogs/data_slots.h"
#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {
constexpr int32_t kStringOperator = 5;  // " & "
}

frmCalculate::frmCalculate() : FuncDialog("frmCalculate", "Calculate", 2) {
  cboVar[0].SetStyle(ui::ComboBox::Style::DropdownList);
  cboOperator.SetStyle(ui::ComboBox::Style::DropdownList);
  for (int i = 0; i < 3; ++i) {
    cboVar[i].SetWidth(2400);
    cboVar[i].OnClick = [this, i] { cboVar_Click(i); };
    cboVar[i].OnGotFocus = [this, i] { cboVar_GotFocus(i); };
    cboVar[i].OnKeyPress = [this, i](int& k) { cboVar_KeyPress(i, k); };
  }
  cboOperator.SetWidth(700);
  cboOperator.OnKeyPress = [](int& k) { SwallowEnter(k); };
  cboLabel.SetWidth(2400);
  cboLabel.OnKeyPress = [this](int& k) { LegalLabelKey(cboLabel, k); };
  PlaceLabelRow();
  Place(lblCalculateLabel, 1, 0);
  Place(cboVar[0], 2, 0);
  Place(Label1, 2, 1);
  Place(cboVar[1], 2, 2);
  Place(cboOperator, 2, 3);
  Place(cboVar[2], 2, 4);
  Place(lblError, 3, 0);
  Place(cboLabel, 3, 2);
  PlaceButtonRow(4, 5);
  Move(0, 0, 9600, 3000);
}

int32_t frmCalculate::TargetType() const {
  return PrgHdr.Variable[VarNo].VarRefType;
}

void frmCalculate::FillOperands(const VarRef& left, const VarRef& right) {
  const int32_t type = TargetType();
  const bool showDouble = type != kVarLong;
  const bool showString = type == kVarString;
  GetListBoxVar(true, showDouble, showString, cboVar[1], left);
  GetListBoxVar(true, showDouble, showString, cboVar[2], right);
}

void frmCalculate::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const CalculateRec& r = rec.Calculate;
  GetListBoxVar(true, true, true, cboVar[0], r.Target);
  VarNo = GetListboxVarNo(cboVar[0]);
  PrevVarNo = VarNo;
  FillOperands(r.Left, r.Right);
  GetArithmeticOpr(cboOperator, TargetType(), r.Operator);
  GetListBoxLabel(cboLabel, View(r.ErrorLabel.LabelRefName));
}

void frmCalculate::cboVar_Click(int Index) {
  switch (Index) {
    case 0: {
      PrevVarNo = VarNo;
      VarNo = GetListboxVarNo(cboVar[0]);
      if (TargetType() != PrgHdr.Variable[PrevVarNo].VarRefType) {
        FillOperands(PrgHdr.Variable[VarNo], PrgHdr.Variable[VarNo]);
      }
      GetArithmeticOpr(cboOperator, TargetType(), cboOperator.ListIndex());
      break;
    }
    case 1:
    case 2:
      break;
    default:
      ui::ProgramError("Illegal variable index cboVar_Click(" + Str(int64_t{Index}) +
                       ") in frmCalc.");
  }
}

void frmCalculate::cboVar_GotFocus(int Index) {
  if (Index < 0 || Index > 2) {
    ui::ProgramError("Illegal variable index cboVar_GotFocus(" + Str(int64_t{Index}) +
                     ") in frmCalculate.");
  }
  VarNo = GetListboxVarNo(cboVar[0]);
}

void frmCalculate::cboVar_KeyPress(int Index, int& keyAscii) {
  switch (Index) {
    case 0:
      SwallowEnter(keyAscii);
      break;
    case 1:
    case 2:
      LegalInput(cboVar[Index], TargetType(), keyAscii);
      break;
    default:
      ui::ProgramError("Illegal variable index cboVar_Keypress(" + Str(int64_t{Index}) +
                       ") in frmCalculate.");
  }
}

bool frmCalculate::Accept(std::string& parameters) {
  CalculateRec& r = WorkRecord.Calculate;
  AssignListBoxVar(cboVar[0], -1, r.Target);
  r.Operator = r.Target.VarRefType == kVarString ? kStringOperator : cboOperator.ListIndex();
  if (!AssignListBoxVar(cboVar[1], r.Target.VarRefType, r.Left)) return Refuse(cboVar[1]);
  if (!AssignListBoxVar(cboVar[2], r.Target.VarRefType, r.Right)) return Refuse(cboVar[2]);
  SetField(r.ErrorLabel.LabelRefName, LabelText(cboLabel));
  parameters = VarName(r.Target) + " = " + VarName(r.Left) + " " + cboOperator.Text() + " " +
               VarName(r.Right);
  return true;
}

std::string frmCalculate::Decorate(std::string line) {
  return AppendLabelParm(line, " E=", View(WorkRecord.Calculate.ErrorLabel.LabelRefName));
}

}  // namespace kq
