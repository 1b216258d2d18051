// Variable Export (17): up to 25 variables written as one record of a text file of an
// Export path, with a field separator and a text delimiter. All declared variables stand on
// the left, the variables to export in their order on the right.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmVarExp : public FuncDialog {
 public:
  frmVarExp();

  static constexpr int kMaxExportVars = 25;

  ui::Label lblDefVar{*this, "lblDefVar", "Defined variables:"};
  ui::ListBox lstVariable{*this, "lstVariable"};
  ui::ListBox lstDataType{*this, "lstDataType"};
  ui::Frame fraDataType[2] = {{*this, "fraDataType", "Data type", 0},
                              {*this, "fraDataType", "Data type", 1}};
  ui::OptionButton optDataType[3] = {{*this, "optDataType", "Long", 0},
                                     {*this, "optDataType", "Double", 1},
                                     {*this, "optDataType", "String", 2}};
  ui::Label lblExpVar{*this, "lblExpVar", "Variables to export:"};
  ui::ListBox lstExpVariable{*this, "lstExpVariable"};
  ui::ListBox lstExpDataType{*this, "lstExpDataType"};
  ui::OptionButton optExpDataType[3] = {{*this, "optExpDataType", "Long", 0},
                                        {*this, "optExpDataType", "Double", 1},
                                        {*this, "optExpDataType", "String", 2}};
  ui::CommandButton cmdAdd{*this, "cmdAdd", "&Add/Insert"};
  ui::CommandButton cmdDelete{*this, "cmdDelete", "&Delete"};
  ui::CommandButton cmdClear{*this, "cmdClear", "C&lear"};
  ui::Label lblDelimiter{*this, "lblDelimiter", "Field separator:"};
  ui::ComboBox cboFieldSeparator{*this, "cboFieldSeparator"};
  ui::Label lblTextQualifier{*this, "lblTextQualifier", "Text delimiter:"};
  ui::ComboBox cboTextDelimiter{*this, "cboTextDelimiter"};
  ui::Label lblPathVar{*this, "lblPathVar", "Export path:"};
  ui::ComboBox cboPathVar{*this, "cboPathVar"};
  ui::Label lblVar{*this, "lblVar", "File name:"};
  ui::ComboBox cboVariable{*this, "cboVariable"};
  ui::Label lblError{*this, "lblError", "On error goto:"};
  ui::ComboBox cboLabel{*this, "cboLabel"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
  std::string Decorate(std::string line) override;

 private:
  void lstVariable_Click();
  void lstExpVariable_Click();
  void lstExpVariable_DblClick();
  void cmdAdd_Click();
  void cmdDelete_Click();
  void cmdClear_Click();
  // The right item that is selected; -1 when none is.
  int SelectedExport() const;
  // Turns on the option of a type given as the text of a hidden list.
  static void ShowType(ui::OptionButton (&options)[3], const std::string& type);
};

}  // namespace kq
