#include "dialogs/string_op_dialog.h"

#include "document/state.h"

namespace kq {

StringOpDialog::StringOpDialog(std::string name, std::string caption, int funcNo,
                               std::string keyword, StringOpRec RecordSet::*record,
                               const VarSlot (&slots)[3])
    : FuncDialog(std::move(name), std::move(caption), funcNo),
      lblEqual(*this, "lblEqual", "= " + keyword + "("),
      keyword_(std::move(keyword)),
      record_(record),
      slots_(slots) {
  for (int i = 0; i < 3; ++i) SetUpVarSlot(cboVar[i], slots_[i]);
  cboVar[2].SetWidth(1500);
  PlaceLabelRow();
  Place(cboVar[0], 1, 0);
  Place(lblEqual, 1, 1);
  Place(cboVar[1], 1, 2);
  Place(lblComma, 1, 3);
  Place(cboVar[2], 1, 4);
  PlaceButtonRow(2, 5);
  Move(0, 0, 8400, 1900);
}

void StringOpDialog::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const StringOpRec& r = rec.*record_;
  FillVarSlot(cboVar[0], slots_[0], r.Target);
  FillVarSlot(cboVar[1], slots_[1], r.Source);
  FillVarSlot(cboVar[2], slots_[2], r.Operand);
}

bool StringOpDialog::Accept(std::string& parameters) {
  StringOpRec& r = WorkRecord.*record_;
  ReadVarSlot(cboVar[0], slots_[0], r.Target);
  if (!ReadVarSlot(cboVar[1], slots_[1], r.Source)) return false;
  if (!ReadVarSlot(cboVar[2], slots_[2], r.Operand)) return false;
  parameters = VarName(r.Target) + " = " + keyword_ + "( " + VarName(r.Source) + " , " +
               VarName(r.Operand) + " )";
  return true;
}

}  // namespace kq
