#include "dialogs/func_dialog.h"

#include <algorithm>
#include <cstring>

#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

FuncDialog::FuncDialog(std::string name, std::string caption, int funcNo)
    : Form(std::move(name), std::move(caption)), funcNo_(funcNo) {
  txtLabel.SetMaxLength(15);
  txtLabel.SetWidth(2400);
  txtLabel.OnKeyPress = [this](int& k) { txtLabel_KeyPress(k); };
  cmdOk.SetWidth(1200);
  cmdCancel.SetWidth(1200);
  cmdOk.OnClick = [this] { cmdOk_Click(); };
  cmdCancel.OnClick = [this] { cmdCancel_Click(); };
}

void FuncDialog::Form_Load() {
  CenterForm(*this);
  FuncOk = false;
  const int line = FuncModify ? EditList().ListIndex() : -1;
  if (line >= 0 && line < kMaxLines) {
    txtLabel.SetText(FieldText(View(LineTable[line].LineLabel)));
    // The line's block holds the record in file form; never more than this record holds.
    const int lineFunc = LineTable[line].LineFuncNo;
    int length = IsLiveFunction(lineFunc) ? RecordLength[lineFunc] : 0;
    length = std::min(length, static_cast<int>(RecordLength[funcNo_]));
    if (length > 0) std::memcpy(WorkRecord.Image(funcNo_), FuncBlock[line], length);
    LoadFields(WorkRecord, true);
  } else {
    // A new line starts from the defaults, also in the fields no control shows.
    std::memcpy(WorkRecord.Image(funcNo_), InitRecord.Image(funcNo_), RecordLength[funcNo_]);
    LoadFields(InitRecord, false);
  }
}

void FuncDialog::cmdOk_Click() {
  if (!CheckBeforeLabel()) return;
  FuncLabel = txtLabel.Text() + '\0';
  std::string parameters;
  if (!Accept(parameters)) return;
  FuncLine = Decorate("\t" + RTrimZ(FuncLabel) + "\t" + FuncLine + "\t" + parameters);
  FuncOk = true;
  Unload();
}

void FuncDialog::cmdCancel_Click() {
  Unload();
}

void FuncDialog::SwallowEnter(int& keyAscii) {
  if (keyAscii == 13) keyAscii = 0;
}

void FuncDialog::txtLabel_KeyPress(int& keyAscii) {
  LegalInput(txtLabel, 2, keyAscii);
}

std::string FuncDialog::LabelText(const ui::ComboBox& combo) {
  return Trim(combo.Text());
}

bool FuncDialog::RequireLabel(ui::ComboBox& combo) {
  if (!Trim(combo.Text()).empty()) return true;
  combo.SetText("");
  combo.SetFocus();
  ui::platform().Beep();
  return false;
}

void FuncDialog::PlaceLabelRow() {
  Place(lblLabel, 0, 0);
  Place(txtLabel, 0, 1);
}

void FuncDialog::PlaceButtonRow(int row, int columns) {
  Place(cmdOk, row, std::max(0, columns - 2));
  Place(cmdCancel, row, std::max(1, columns - 1));
}

}  // namespace kq
