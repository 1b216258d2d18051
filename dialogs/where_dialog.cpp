#include "dialogs/where_dialog.h"

#include "dialogs/services.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

WhereDialog::WhereDialog(std::string name, std::string caption, int funcNo,
                         TableWhereRec RecordSet::*record)
    : TableDialog(std::move(name), std::move(caption), funcNo), record_(record) {
  cboName.OnClick = [this] { cboName_Click(); };
  SetUpLabelCombo(cboLabel);
  for (int i = 0; i < kRows; ++i) {
    cboField[i].SetWidth(700);
    cboField[i].OnClick = [this, i] { cboField_Click(i); };
    cboField[i].OnKeyPress = [](int& k) { SwallowEnter(k); };
    txtVar[i].SetLocked(true);
    txtVar[i].SetWidth(2400);
    cboOperator[i].SetStyle(ui::ComboBox::Style::DropdownList);
    cboOperator[i].SetWidth(700);
    cboOperator[i].OnKeyPress = [](int& k) { SwallowEnter(k); };
    cboVar[i].SetWidth(2400);
    cboVar[i].OnKeyPress = [this, i](int& k) { cboVar_KeyPress(i, k); };
  }

  // The grid's caption line stands under "WHERE", the five rows under it.
  PlaceNameRow();
  Place(lblWhere, 2, 0);
  Place(Label1, 3, 0, 1, 4);
  for (int i = 0; i < kRows; ++i) {
    Place(cboField[i], 4 + i, 0);
    Place(txtVar[i], 4 + i, 1);
    Place(cboOperator[i], 4 + i, 2);
    Place(cboVar[i], 4 + i, 3);
  }
  Place(lblError, 9, 0);
  Place(cboLabel, 9, 1, 1, 2);
  PlaceButtonRow(10, 4);
  Move(0, 0, 7200, 4900);
}

int WhereDialog::FindTable(const std::string& name) {
  int found = -1;
  for (int t = 0; t < kMaxTables; ++t) {
    if (RTrimZ(View(PrgHdr.Table[t].TableName)) == name) found = t;
  }
  return found;
}

const VarRef& WhereDialog::Column(int table, int field) {
  if (table < 0 || table >= kMaxTables || field < 1 || field > kTableColumns) {
    ui::ProgramError("Subscript out of range");
  }
  return PrgHdr.Table[table].Column[field - 1];
}

void WhereDialog::FillValues(int Index, const VarRef& value) {
  if (RowType[Index] == kVarString) {
    GetListBoxVar(false, false, true, cboVar[Index], value);
  } else {
    GetListBoxVar(true, true, false, cboVar[Index], value);
  }
}

void WhereDialog::ResetRow(int Index) {
  RowType[Index] = 0;
  txtVar[Index].SetText("");
  GetRelationalOpr(cboOperator[Index], 0, Defaults().WhereOperator[Index]);
  RowVar[Index] = Defaults().WhereValue[Index];
  FillValues(Index, Defaults().WhereValue[Index]);
}

void WhereDialog::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const TableWhereRec& r = rec.*record_;
  const int table = FindTable(RTrimZ(View(r.TableName)));
  GetListBoxDBTbl(cboName, View(r.TableName));
  GetListBoxLabel(cboLabel, View(r.ErrorLabel.LabelRefName));
  for (int i = 0; i < kRows; ++i) {
    GetListBoxNumber(cboField[i], 0, 24, 1, r.WhereField[i]);
    if (r.WhereField[i] < 1) {
      txtVar[i].SetText("");
      RowVar[i] = Defaults().WhereValue[i];
      GetRelationalOpr(cboOperator[i], 0, r.WhereOperator[i]);
    } else {
      const VarRef& column = Column(table, r.WhereField[i]);
      txtVar[i].SetText(RTrimZ(View(column.VarRefName)));
      RowVar[i] = column;
      GetRelationalOpr(cboOperator[i], column.VarRefType, r.WhereOperator[i]);
    }
    RowType[i] = RowVar[i].VarRefType == kVarString ? kVarString : 0;
    FillValues(i, r.WhereValue[i]);
  }
}

void WhereDialog::cboName_Click() {
  // Another table clears every condition.
  for (int i = 0; i < kRows; ++i) {
    GetListBoxNumber(cboField[i], 0, 24, 1, Defaults().WhereField[i]);
    GetRelationalOpr(cboOperator[i], 0, Defaults().WhereOperator[i]);
    GetListBoxVar(true, true, false, cboVar[i], Defaults().WhereValue[i]);
  }
}

void WhereDialog::cboField_Click(int Index) {
  const double field = Val(cboField[Index].Text());
  if (!(field > 0)) {
    ResetRow(Index);
    return;
  }
  const VarRef& column = Column(FindTable(RTrim(cboName.Text())), static_cast<int>(field));
  if (FieldEmpty(View(column.VarRefName))) {
    ResetRow(Index);
    RowVar[Index] = column;
    return;
  }
  RowVar[Index] = column;
  txtVar[Index].SetText(RTrimZ(View(column.VarRefName)));
  RowType[Index] = column.VarRefType == kVarString ? kVarString : 0;
  FillValues(Index, Defaults().WhereValue[Index]);
  GetRelationalOpr(cboOperator[Index], column.VarRefType, Defaults().WhereOperator[Index]);
}

void WhereDialog::cboVar_KeyPress(int Index, int& keyAscii) {
  if (Index < 0 || Index >= kRows) {
    ui::ProgramError("Illegal variable index cboVar_KeyPress in frmSelect.");
  }
  LegalInput(cboVar[Index], RowType[Index], keyAscii);
}

bool WhereDialog::Accept(std::string& parameters) {
  TableWhereRec& r = WorkRecord.*record_;
  SetField(r.TableName, cboName.Text());
  SetField(r.ErrorLabel.LabelRefName, LabelText(cboLabel));
  for (int i = 0; i < kRows; ++i) {
    // A field without a bound variable is not stored, whatever the combo shows.
    if (txtVar[i].Text().empty()) {
      r.WhereField[i] = Defaults().WhereField[i];
      r.WhereOperator[i] = Defaults().WhereOperator[i];
      r.WhereValue[i] = Defaults().WhereValue[i];
      continue;
    }
    r.WhereField[i] = static_cast<int32_t>(Val(cboField[i].Text()));
    r.WhereOperator[i] = cboOperator[i].ListIndex();
    if (!AssignListBoxVar(cboVar[i], RowVar[i].VarRefType, r.WhereValue[i])) {
      cboVar[i].SetFocus();
      ui::platform().Beep();
      return false;
    }
  }
  parameters = RTrimZ(View(r.TableName));
  return true;
}

std::string WhereDialog::Decorate(std::string line) {
  const TableWhereRec& r = WorkRecord.*record_;
  line = AppendLabelParm(line, " E=", View(r.ErrorLabel.LabelRefName));
  for (int i = 0; i < kRows; ++i) {
    if (r.WhereField[i] == 0) continue;
    line += " F=" + Num(r.WhereField[i]) + ": " + txtVar[i].Text() + Trim(cboOperator[i].Text()) +
            RTrimZ(View(r.WhereValue[i].VarRefName));
  }
  return line;
}

}  // namespace kq
