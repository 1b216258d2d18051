// What the dialogs of the database functions share: the table combo, the error label, and
// for the dialogs that only name a table and its labels, the whole of load and OK.
#pragma once

#include <string>

#include "dialogs/func_dialog.h"

namespace kq {

class TableDialog : public FuncDialog {
 public:
  TableDialog(std::string name, std::string caption, int funcNo);

  ui::Label lblName{*this, "lblName", "Database table:"};
  ui::ComboBox cboName{*this, "cboName"};

 protected:
  // A combo that holds a target label: its key filter and its width.
  static void SetUpLabelCombo(ui::ComboBox& combo);
  // The label row, then the table on the row below.
  void PlaceNameRow();
};

// A table and the label to go to on an error.
class TableLabelDialog : public TableDialog {
 public:
  TableLabelDialog(std::string name, std::string caption, int funcNo);

  ui::Label lblError{*this, "lblError", "On error goto:"};
  ui::ComboBox cboLabel{*this, "cboLabel"};
};

// Disconnect Table, Add Record, Empty Table: "{table} E={error}".
class TableErrorDialog : public TableLabelDialog {
 public:
  TableErrorDialog(std::string name, std::string caption, int funcNo,
                   TableErrorRec RecordSet::*record);

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
  std::string Decorate(std::string line) override;

 private:
  TableErrorRec RecordSet::*record_;
};

// Get First/Last/Next/Prev. Record and Insert Record: a table, the error label and a second
// label of the dialog's own ("{table} E={error} ET={no data}" and the like).
class TableNavDialog : public TableLabelDialog {
 public:
  TableNavDialog(std::string name, std::string caption, int funcNo, TableNavRec RecordSet::*record);

 protected:
  // The derived dialog names its second label combo, its caption and its piece's prefix.
  void SetSecondLabel(ui::Label& caption, ui::ComboBox& combo, std::string prefix);
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
  std::string Decorate(std::string line) override;

 private:
  TableNavRec RecordSet::*record_;
  ui::ComboBox* second_ = nullptr;
  std::string prefix_;
};

}  // namespace kq
