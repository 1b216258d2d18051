#include "dialogs/file_check_dialog.h"

#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/header.h"
#include "document/text.h"

namespace kq {

FileCheckDialog::FileCheckDialog(std::string name, std::string caption, int funcNo,
                                 std::string thenCaption)
    : FuncDialog(std::move(name), std::move(caption), funcNo),
      lblThenLabel(*this, "lblThenLabel", std::move(thenCaption)) {
  cboPath.SetStyle(ui::ComboBox::Style::DropdownList);
  cboPath.SetWidth(1800);
  cboPath.OnClick = [this] { cboPath_Click(); };
  cboPath.OnKeyPress = [](int& k) { SwallowEnter(k); };
  cboPathVar.SetStyle(ui::ComboBox::Style::DropdownList);
  cboPathVar.SetWidth(2400);
  cboPathVar.OnKeyPress = [](int& k) { SwallowEnter(k); };
  for (ui::ComboBox& c : cboLabel) {
    c.SetWidth(2400);
    ui::ComboBox* combo = &c;
    c.OnKeyPress = [combo](int& k) { LegalLabelKey(*combo, k); };
  }
}

int32_t FileCheckDialog::ShownPathType() {
  const int32_t letter = GetPathTypeLetter(cboPath);
  return letter == 0 ? -1 : letter;
}

void FileCheckDialog::LoadPath(int32_t pathType, std::string_view pathVar) {
  // A line saved while its path type was no longer declared holds 0: it shows the first.
  GetListBoxPath(cboPath, kPathExport, pathType == 0 ? -1 : pathType);
  GetListBoxPathVar(cboPathVar, ShownPathType(), pathVar);
}

void FileCheckDialog::LoadLabels(const char (&labels)[2][16]) {
  GetListBoxLabel(cboLabel[0], View(labels[0]));
  GetListBoxLabel(cboLabel[1], View(labels[1]));
}

void FileCheckDialog::cboPath_Click() {
  GetListBoxPathVar(cboPathVar, ShownPathType(), "");
}

void FileCheckDialog::SetUpFileVar(ui::ComboBox& combo) {
  combo.SetWidth(2400);
  // Any name may be typed: only Enter is kept out.
  combo.OnKeyPress = [](int& k) { SwallowEnter(k); };
}

void FileCheckDialog::LoadFileVar(ui::ComboBox& combo, const VarRef& file) {
  GetListBoxVar(false, false, true, combo, file);
}

void FileCheckDialog::ReadFileVar(ui::ComboBox& combo, VarRef& file) {
  AssignListBoxVar(combo, kVarString, file);
}

void FileCheckDialog::PlaceFileRows(ui::Label& pathType, ui::Label& pathVar, ui::Label& file,
                                    ui::ComboBox& fileVar) {
  PlaceLabelRow();
  Place(lblCondition, 1, 0);
  Place(pathType, 2, 0);
  Place(cboPath, 2, 1);
  Place(pathVar, 3, 0);
  Place(cboPathVar, 3, 1);
  Place(file, 4, 0);
  Place(fileVar, 4, 1);
  Place(lblThenLabel, 5, 0);
  Place(cboLabel[0], 5, 1);
  Place(lblElseLabel, 6, 0);
  Place(cboLabel[1], 6, 1);
  PlaceButtonRow(7, 3);
}

void FileCheckDialog::LoadFileCheck(const CheckFileRec& r, ui::ComboBox& fileVar) {
  LoadPath(r.PathType, View(r.PathVar));
  LoadFileVar(fileVar, r.FileVar);
  LoadLabels(r.CheckLabel);
}

void FileCheckDialog::ReadFileCheck(CheckFileRec& r, ui::ComboBox& fileVar) {
  ReadPath(r.PathType, r.PathVar);
  ReadFileVar(fileVar, r.FileVar);
  ReadLabels(r.CheckLabel);
}

bool FileCheckDialog::LabelsGiven() {
  if (!RTrim(cboLabel[0].Text()).empty() || !RTrim(cboLabel[1].Text()).empty()) return true;
  return RequireLabel(cboLabel[1]);
}

void FileCheckDialog::ReadPath(int32_t& pathType, char (&pathVar)[28]) {
  pathType = GetPathTypeLetter(cboPath);
  SetField(pathVar, RTrim(cboPathVar.Text()));
}

void FileCheckDialog::ReadLabels(char (&labels)[2][16]) {
  SetField(labels[0], LabelText(cboLabel[0]));
  SetField(labels[1], LabelText(cboLabel[1]));
}

std::string FileCheckDialog::TypeName(int32_t pathType) {
  if (pathType < kPathExport || pathType > kPathGeneral) return "";
  return RTrim(Row(PathTypeNames[pathType - kPathExport]));
}

std::string FileCheckDialog::Targets(std::string_view then, const char (&labels)[2][16]) {
  std::string text(then);
  text += FieldEmpty(View(labels[0])) ? std::string("CONTINUE") : RTrimZ(View(labels[0]));
  if (!FieldEmpty(View(labels[1]))) text += " ELSE " + RTrimZ(View(labels[1]));
  return text;
}

}  // namespace kq
