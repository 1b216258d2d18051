// Define Paths: the path variables of one kind (Export, Message, Number, Voice, General),
// each a name and a directory chosen with the drive and directory lists, kept on two
// aligned lists (the visible sorted names, the hidden directories) and written back on OK.
#pragma once

#include "dialogs/declaration_form.h"
#include "ui/model/controls.h"
#include "ui/model/file_controls.h"
#include "ui/model/list_controls.h"

namespace kq {

class frmDefPath : public DeclarationForm {
 public:
  frmDefPath();

  ui::Label lblVariable{*this, "lblVariable", "Path name to add:"};
  ui::TextBox txtName{*this, "txtName"};
  ui::ListBox lstVariable{*this, "lstVariable"};
  ui::ListBox lstDataType{*this, "lstDataType"};
  ui::DriveListBox drvPath{*this, "drvPath"};
  ui::DirListBox dirPath{*this, "dirPath"};
  ui::FileListBox filPath{*this, "filPath"};
  ui::CommandButton cmdAdd{*this, "cmdAdd", "&Add"};
  ui::CommandButton cmdModify{*this, "cmdModify", "&Modify"};
  ui::CommandButton cmdDelete{*this, "cmdDelete", "&Delete"};
  ui::CommandButton cmdClear{*this, "cmdClear", "C&lear"};
  ui::CommandButton cmdOk{*this, "cmdOk", "&Ok"};
  ui::CommandButton cmdCancel{*this, "cmdCancel", "&Cancel"};

 protected:
  void Form_Load() override;

 private:
  void lstVariable_Click() override;
  void drvPath_Change();
  void dirPath_Change();
  void cmdAdd_Click() override;
  void cmdModify_Click() override;
  void cmdDelete_Click() override;
  void cmdClear_Click() override;
  void cmdOk_Click() override;
  // The kind letter (65 to 69) of the Define menu item that opened the dialog; any other
  // item is a program fault, reported with the name of the procedure that found it.
  int KindLetter(const char* procedure) const;
  // Points the drive and directory lists at a directory; a missing drive or directory is
  // shown by HandlePathError. False when it could not be shown.
  bool ShowDirectory(const std::string& directory);

  // The first click on the list (the selection made by Load) does nothing.
  bool skipClick_ = false;
};

}  // namespace kq
