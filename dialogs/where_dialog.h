// The condition dialogs of Delete Record, SELECT Records and Update Record: a table, an
// error label and five rows "field  operator  value" whose field is a field number of the
// table. Each row remembers the type of its field's variable and the field's column.
#pragma once

#include <string>

#include "dialogs/table_dialog.h"
#include "document/state.h"

namespace kq {

class WhereDialog : public TableDialog {
 public:
  static constexpr int kRows = 5;

  WhereDialog(std::string name, std::string caption, int funcNo, TableWhereRec RecordSet::*record);

  ui::Label lblWhere{*this, "lblWhere", "WHERE"};
  ui::Label Label1{*this, "Label1", "Table field number and name             Condition   Variable"};
  ui::ComboBox cboField[kRows] = {{*this, "cboField", 0},
                                  {*this, "cboField", 1},
                                  {*this, "cboField", 2},
                                  {*this, "cboField", 3},
                                  {*this, "cboField", 4}};
  ui::TextBox txtVar[kRows] = {{*this, "txtVar", 0},
                               {*this, "txtVar", 1},
                               {*this, "txtVar", 2},
                               {*this, "txtVar", 3},
                               {*this, "txtVar", 4}};
  ui::ComboBox cboOperator[kRows] = {{*this, "cboOperator", 0},
                                     {*this, "cboOperator", 1},
                                     {*this, "cboOperator", 2},
                                     {*this, "cboOperator", 3},
                                     {*this, "cboOperator", 4}};
  ui::ComboBox cboVar[kRows] = {{*this, "cboVar", 0},
                                {*this, "cboVar", 1},
                                {*this, "cboVar", 2},
                                {*this, "cboVar", 3},
                                {*this, "cboVar", 4}};
  ui::Label lblError{*this, "lblError", "On error goto:"};
  ui::ComboBox cboLabel{*this, "cboLabel"};

  // The key filter of a row's value; an index outside the rows ends the program.
  void cboVar_KeyPress(int Index, int& keyAscii);

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
  std::string Decorate(std::string line) override;

 private:
  void cboName_Click();
  void cboField_Click(int Index);
  // A row without a field: numeric operators, Long and Double values, the default column.
  void ResetRow(int Index);
  // The index in the table list of the table named name (-1: none).
  static int FindTable(const std::string& name);
  // The column of a table for a field number; a table or field that does not exist ends
  // the program.
  static const VarRef& Column(int table, int field);
  void FillValues(int Index, const VarRef& value);
  const TableWhereRec& Defaults() const { return InitRecord.*record_; }

  TableWhereRec RecordSet::*record_;
  int32_t RowType[kRows] = {};  // 0 or 2: the key filter of the row's value
  VarRef RowVar[kRows] = {};    // the column of the row's field, or the default value
};

}  // namespace kq
