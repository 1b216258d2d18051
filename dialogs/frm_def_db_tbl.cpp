#include "dialogs/frm_def_db_tbl.h"

#include <cstring>

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

namespace {

bool SameName(const char (&a)[28], const char (&b)[28]) {
  return std::memcmp(a, b, sizeof a) == 0;
}

// The combo position of the leading group of a column list; the group is then cut off.
int TakeGroup(std::string& columns) {
  const int position = static_cast<int>(Val(columns));
  columns.erase(0, std::min<size_t>(4, columns.size()));
  return position;
}

}  // namespace

frmDefDBTbl::frmDefDBTbl()
    : DeclarationForm("frmDefDBTbl", "Define Database Tables", "Database table name",
                      "database table names") {
  Bind({txtName, lstVariable, lstColumnVar, cmdAdd, cmdModify, cmdDelete, cmdClear, cmdOk,
        cmdCancel});
  SetUpNameAndLists(15);
  for (ui::ComboBox& c : cboVariable) {
    c.SetStyle(ui::ComboBox::Style::DropdownList);
    c.SetWidth(2400);
  }
  SetUpButtons(/*clearEnabled=*/true);

  // Names on the left, the fields in two columns of twelve, the buttons on the right.
  Place(lblVariable, 0, 0);
  Place(txtName, 1, 0);
  Place(lstVariable, 2, 0, 12, 1);
  Place(lblHeader, 0, 1, 1, 4);
  for (int j = 0; j < kFields; ++j) {
    const int row = 1 + j % 12;
    const int column = 1 + 2 * (j / 12);
    Place(lblColumn[j], row, column);
    Place(cboVariable[j], row, column + 1);
  }
  PlaceButtons(1, 11, 5);
  Move(0, 0, 10800, 5400);
}

void frmDefDBTbl::Form_Load() {
  CenterForm(*this);
  for (ui::ComboBox& c : cboVariable) {
    c.AddItem("");
    for (int k = 0; k < kMaxVariables; ++k) {
      const VarRef& v = PrgHdr.Variable[k];
      if (FieldEmpty(View(v.VarRefName))) continue;
      // Position k + 1 is variable entry k: a blank entry before it (as older files have
      // them) keeps a blank item, which stands for no binding.
      while (c.ListCount() < k + 1) c.AddItem("");
      c.AddItem(NulToBlank(View(v.VarRefName)), k + 1);
    }
    c.SetListIndex(0);
  }
  // The table list is compact: a blank first entry means no tables.
  if (FieldEmpty(View(PrgHdr.Table[0].TableName))) return;
  for (int t = 0; t < kMaxTables; ++t) {
    if (FieldEmpty(View(PrgHdr.Table[t].TableName))) continue;
    lstVariable.AddItem(NulToBlank(View(PrgHdr.Table[t].TableName)));
    lstColumnVar.AddItem(LoadColumns(t), lstVariable.NewIndex());
  }
  lstVariable.SetListIndex(0);
}

std::string frmDefDBTbl::LoadColumns(int table) {
  std::string columns;
  for (int j = 0; j < kFields; ++j) {
    const VarRef& column = PrgHdr.Table[table].Column[j];
    int position = 0;
    // A binding whose variable no longer bears that name is dropped.
    if (!FieldEmpty(View(column.VarRefName))) {
      for (int k = 0; k < kMaxVariables && position == 0; ++k) {
        if (SameName(PrgHdr.Variable[k].VarRefName, column.VarRefName)) position = k + 1;
      }
    }
    cboVariable[j].SetListIndex(position);
    columns += Format000(position) + ",";
  }
  return columns;
}

std::string frmDefDBTbl::ColumnsOfCombos() const {
  std::string columns;
  for (const ui::ComboBox& c : cboVariable) columns += Format000(c.ListIndex()) + ",";
  return columns;
}

void frmDefDBTbl::UnbindAll() {
  for (ui::ComboBox& c : cboVariable) c.SetListIndex(0);
}

void frmDefDBTbl::txtName_KeyPress(int& keyAscii) {
  DeclarationForm::txtName_KeyPress(keyAscii);
  // A name being typed starts a new table: its fields are bound after the name.
  UnbindAll();
}

void frmDefDBTbl::lstVariable_Click() {
  std::string columns = lstColumnVar.List(lstVariable.ListIndex());
  for (ui::ComboBox& c : cboVariable) c.SetListIndex(TakeGroup(columns));
  EnableSelectionButtons();
}

void frmDefDBTbl::cmdAdd_Click() {
  const std::string& name = txtName.Text();
  bool exists = false;
  for (int i = 0; i < lstVariable.ListCount() && !exists; ++i) {
    exists = RTrim(lstVariable.List(i)) == name;
  }
  bool anyBound = false;
  for (const ui::ComboBox& c : cboVariable) anyBound = anyBound || c.ListIndex() > 0;

  if (lstVariable.ListCount() >= kMaxTables) {
    ShowListFull(kMaxTables);
  } else if (exists) {
    ShowExists(name);
  } else if (!anyBound) {
    ShowAddError("No variables are selected.");
  } else {
    lstVariable.AddItem(name);
    const int at = lstVariable.NewIndex();
    lstColumnVar.AddItem(ColumnsOfCombos(), at);
    lstVariable.SetListIndex(at);
    txtName.SetText("");
  }
  txtName.SetFocus();
  MarkChanged();
}

void frmDefDBTbl::cmdModify_Click() {
  // The combos keep the fields of the table taken out: change them, then Add.
  TakeSelectedIntoBox();
  MarkChanged();
}

void frmDefDBTbl::cmdDelete_Click() {
  RemoveSelected();
  EnableSelectionButtons();
  MarkChanged();
}

void frmDefDBTbl::cmdClear_Click() {
  if (ConfirmClear()) {
    UnbindAll();
    cmdDelete.SetEnabled(false);
  }
  AfterClear();
}

void frmDefDBTbl::cmdOk_Click() {
  // A name still in the box is added first; a refusal is shown and the dialog goes on.
  if (!txtName.Text().empty()) cmdAdd_Click();
  for (TableEntry& t : PrgHdr.Table) {
    SetField(t.TableName, "");
    for (VarRef& c : t.Column) c = BlankVarRef;
  }
  for (int t = 0; t < lstVariable.ListCount() && t < kMaxTables; ++t) {
    TableEntry& entry = PrgHdr.Table[t];
    std::string columns = lstColumnVar.List(t);
    for (int j = 0; j < kFields; ++j) {
      VarRef& column = entry.Column[j];
      SetField(column.VarRefName, RTrim(cboVariable[j].List(TakeGroup(columns))));
      if (FieldEmpty(View(column.VarRefName))) {
        column.VarRefType = kVarNone;
        continue;
      }
      // The field takes the type its variable has now.
      for (const VarRef& v : PrgHdr.Variable) {
        if (SameName(v.VarRefName, column.VarRefName)) column.VarRefType = v.VarRefType;
      }
    }
    SetField(entry.TableName, RTrim(lstVariable.List(t)));
  }
  Unload();
}

}  // namespace kq
