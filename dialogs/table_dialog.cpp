#include "dialogs/table_dialog.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

// ---- TableDialog

TableDialog::TableDialog(std::string name, std::string caption, int funcNo)
    : FuncDialog(std::move(name), std::move(caption), funcNo) {
  cboName.SetStyle(ui::ComboBox::Style::DropdownList);
  cboName.SetWidth(2400);
  cboName.OnKeyPress = [](int& k) { SwallowEnter(k); };
}

void TableDialog::SetUpLabelCombo(ui::ComboBox& combo) {
  combo.SetWidth(2400);
  combo.OnKeyPress = [&combo](int& k) { LegalLabelKey(combo, k); };
}

void TableDialog::PlaceNameRow() {
  PlaceLabelRow();
  Place(lblName, 1, 0);
  Place(cboName, 1, 1, 1, 2);
}

// ---- TableLabelDialog

TableLabelDialog::TableLabelDialog(std::string name, std::string caption, int funcNo)
    : TableDialog(std::move(name), std::move(caption), funcNo) {
  SetUpLabelCombo(cboLabel);
  PlaceNameRow();
  Place(lblError, 2, 0);
  Place(cboLabel, 2, 1, 1, 2);
}

// ---- TableErrorDialog

TableErrorDialog::TableErrorDialog(std::string name, std::string caption, int funcNo,
                                   TableErrorRec RecordSet::*record)
    : TableLabelDialog(std::move(name), std::move(caption), funcNo), record_(record) {
  PlaceButtonRow(3, 3);
  Move(0, 0, 4800, 2400);
}

void TableErrorDialog::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const TableErrorRec& r = rec.*record_;
  GetListBoxDBTbl(cboName, View(r.TableName));
  GetListBoxLabel(cboLabel, View(r.ErrorLabel.LabelRefName));
}

bool TableErrorDialog::Accept(std::string& parameters) {
  TableErrorRec& r = WorkRecord.*record_;
  SetField(r.TableName, cboName.Text());
  SetField(r.ErrorLabel.LabelRefName, LabelText(cboLabel));
  parameters = RTrimZ(View(r.TableName));
  return true;
}

std::string TableErrorDialog::Decorate(std::string line) {
  return AppendLabelParm(line, " E=", View((WorkRecord.*record_).ErrorLabel.LabelRefName));
}

// ---- TableNavDialog

TableNavDialog::TableNavDialog(std::string name, std::string caption, int funcNo,
                               TableNavRec RecordSet::*record)
    : TableLabelDialog(std::move(name), std::move(caption), funcNo), record_(record) {}

void TableNavDialog::SetSecondLabel(ui::Label& caption, ui::ComboBox& combo, std::string prefix) {
  second_ = &combo;
  prefix_ = std::move(prefix);
  SetUpLabelCombo(combo);
  Place(caption, 3, 0);
  Place(combo, 3, 1, 1, 2);
  PlaceButtonRow(4, 3);
  Move(0, 0, 4800, 2900);
}

void TableNavDialog::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const TableNavRec& r = rec.*record_;
  GetListBoxDBTbl(cboName, View(r.TableName));
  GetListBoxLabel(cboLabel, View(r.ErrorLabel.LabelRefName));
  GetListBoxLabel(*second_, View(r.NoDataLabel.LabelRefName));
  // Insert Record's default second label is all NULs; a window's text ends at its first NUL.
  const std::string& text = second_->Text();
  if (const size_t nul = text.find('\0'); nul != std::string::npos) {
    second_->SetText(text.substr(0, nul));
  }
}

bool TableNavDialog::Accept(std::string& parameters) {
  TableNavRec& r = WorkRecord.*record_;
  SetField(r.TableName, cboName.Text());
  SetField(r.ErrorLabel.LabelRefName, LabelText(cboLabel));
  SetField(r.NoDataLabel.LabelRefName, LabelText(*second_));
  parameters = RTrimZ(View(r.TableName));
  return true;
}

std::string TableNavDialog::Decorate(std::string line) {
  const TableNavRec& r = WorkRecord.*record_;
  line = AppendLabelParm(line, " E=", View(r.ErrorLabel.LabelRefName));
  return AppendLabelParm(line, prefix_, View(r.NoDataLabel.LabelRefName));
}

}  // namespace kq
