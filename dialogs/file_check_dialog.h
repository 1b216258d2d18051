// What the dialogs of Check Path, Check File and Delete File share: a path type with one of
// its path variables, and the two label targets of which at least one must be given. The
// then-target is taken when the path or file is missing (or the file was not deleted).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "dialogs/func_dialog.h"

namespace kq {

class FileCheckDialog : public FuncDialog {
 public:
  ui::Label lblCondition{*this, "lblCondition", "Condition:"};
  ui::ComboBox cboPath{*this, "cboPath"};
  ui::ComboBox cboPathVar{*this, "cboPathVar"};
  ui::Label lblThenLabel;
  ui::Label lblElseLabel{*this, "lblElseLabel", "ELSE GOTO"};
  ui::ComboBox cboLabel[2] = {{*this, "cboLabel", 0}, {*this, "cboLabel", 1}};

 protected:
  FileCheckDialog(std::string name, std::string caption, int funcNo, std::string thenCaption);

  // Every path type is offered; the path variables are those of the type shown.
  void LoadPath(int32_t pathType, std::string_view pathVar);
  void LoadLabels(const char (&labels)[2][16]);
  // A combo of the file: String variables, or a typed name taken as a String constant.
  static void SetUpFileVar(ui::ComboBox& combo);
  static void LoadFileVar(ui::ComboBox& combo, const VarRef& file);
  static void ReadFileVar(ui::ComboBox& combo, VarRef& file);

  // Check File and Delete File: the rows of path type, path variable, the file (its label
  // and combo) and the two targets, with the button row below.
  void PlaceFileRows(ui::Label& pathType, ui::Label& pathVar, ui::Label& file,
                     ui::ComboBox& fileVar);
  // Their record into the controls, and back.
  void LoadFileCheck(const CheckFileRec& r, ui::ComboBox& fileVar);
  void ReadFileCheck(CheckFileRec& r, ui::ComboBox& fileVar);

  // Refuses two empty targets: the else-target is emptied, focused, beep.
  bool LabelsGiven();
  void ReadPath(int32_t& pathType, char (&pathVar)[28]);
  void ReadLabels(char (&labels)[2][16]);

  // The right-trimmed name of a path type; empty when none is shown.
  static std::string TypeName(int32_t pathType);
  // " THEN {then}" with "CONTINUE" for an empty then-target, and " ELSE {else}" when given.
  static std::string Targets(std::string_view then, const char (&labels)[2][16]);

 private:
  void cboPath_Click();
  int32_t ShownPathType();
};

}  // namespace kq
