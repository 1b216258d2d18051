#include "dialogs/frm_def_path.h"

#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/disk_error.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/platform/disk.h"
#include "ui/platform/platform.h"
#include "ui/platform/run_time_error.h"

namespace kq {

frmDefPath::frmDefPath()
    : DeclarationForm("frmDefPath", "Define Paths", "Path name", "path names") {
  Bind({txtName, lstVariable, lstDataType, cmdAdd, cmdModify, cmdDelete, cmdClear, cmdOk,
        cmdCancel});
  SetUpNameAndLists(14);
  drvPath.SetWidth(3000);
  dirPath.SetWidth(3000);
  filPath.SetWidth(3000);
  drvPath.OnChange = [this] { drvPath_Change(); };
  dirPath.OnChange = [this] { dirPath_Change(); };
  SetUpButtons(/*clearEnabled=*/false);

  Place(lblVariable, 0, 0);
  Place(txtName, 1, 0);
  Place(lstVariable, 2, 0, 6, 1);
  Place(drvPath, 0, 1);
  Place(dirPath, 1, 1, 4, 1);
  Place(filPath, 5, 1, 3, 1);
  PlaceButtons(0, 6, 2);
  Move(0, 0, 8400, 5400);
}

int frmDefPath::KindLetter(const char* procedure) const {
  if (DefineItemIndex < 1 || DefineItemIndex > kPathTypes) {
    ui::ProgramError("Illegal DefineIndex" + Str(int64_t{DefineItemIndex}) + " in frmDefPath - " +
                     procedure + ".");
  }
  return kPathExport + DefineItemIndex - 1;
}

void frmDefPath::Form_Load() {
  CenterForm(*this);
  skipClick_ = true;
  const int type = KindLetter("Form_Load") - kPathExport;
  SetCaption("Define " + FieldText(Row(PathTypeNames[type])) + " Paths");
  for (int row = 0; row < kPathRows; ++row) {
    const PathEntry& entry = PrgHdr.Path[row][type];
    if (FieldEmpty(View(entry.PathName))) continue;
    lstVariable.AddItem(NulToBlank(View(entry.PathName)));
    lstDataType.AddItem(NulToBlank(View(entry.PathText)), lstVariable.NewIndex());
  }
  if (lstVariable.ListCount() > 0) {
    lstVariable.SetListIndex(0);
    cmdModify.SetEnabled(true);
    cmdDelete.SetEnabled(true);
    cmdClear.SetEnabled(true);
    ShowDirectory(FieldText(View(PrgHdr.Path[0][type].PathText)));
  } else {
    ShowDirectory(ui::platform().UserDirectory());
  }
}

bool frmDefPath::ShowDirectory(const std::string& directory) {
  int error = drvPath.SetDrive(directory);
  if (error == 0) error = dirPath.SetPath(directory);
  if (error == 0) return true;
  // A missing disk or path: the message ends the step. Any other error is raised again,
  // and with no handler above it ends the program.
  if (HandlePathError(error) == kDiskRaise) ui::RunTimeError(error);
  return false;
}

void frmDefPath::lstVariable_Click() {
  if (skipClick_) {
    skipClick_ = false;
    return;
  }
  EnableSelectionButtons();
  const int index = lstVariable.ListIndex();
  if (index >= 0) ShowDirectory(RTrim(lstDataType.List(index)));
}

void frmDefPath::drvPath_Change() {
  RetryDiskOperation(
      "Change drive path",
      [this] {
        const int error = dirPath.SetPath(ui::disk().CurrentDirectory());
        return error != 0 ? error : ui::disk().ChangeDirectory(dirPath.Path());
      },
      DiskRaise::RaiseAgain);
}

void frmDefPath::dirPath_Change() {
  int error = filPath.SetPath(dirPath.Path());
  if (error == 0) {
    if (filPath.ListCount() > 0) filPath.SetListIndex(0);
    error = ui::disk().ChangeDirectory(dirPath.Path());
  }
  if (error != 0 && HandlePathError(error) == kDiskRaise) ui::RunTimeError(error);
}

void frmDefPath::cmdAdd_Click() {
  const std::string name = txtName.Text();
  if (lstVariable.ListCount() >= kPathRows) {
    ShowListFull(kPathRows);
  } else if (Listed(name)) {
    ShowExists(name);
  } else if (std::string directory = ui::WithTrailingSeparator(dirPath.Path());
             NameFits(directory, sizeof(PathEntry::PathText), "Path", "Path name add error")) {
    lstVariable.AddItem(name);
    lstDataType.AddItem(directory, lstVariable.NewIndex());
    txtName.SetText("");
    EnableClear();
  }
  txtName.SetFocus();
  MarkChanged();
}

void frmDefPath::cmdModify_Click() {
  TakeSelectedIntoBox();
}

void frmDefPath::cmdDelete_Click() {
  RemoveSelected();
  EnableSelectionButtons();
  EnableClear();
  MarkChanged();
}

void frmDefPath::cmdClear_Click() {
  if (ConfirmClear()) {
    cmdModify.SetEnabled(false);
    cmdDelete.SetEnabled(false);
    cmdClear.SetEnabled(false);
  }
  AfterClear();
}

void frmDefPath::cmdOk_Click() {
  // A name still in the box is added first; a refusal is shown and the dialog closes.
  if (!txtName.Text().empty()) cmdAdd_Click();
  const int type = KindLetter("cmdOK_Click") - kPathExport;
  for (int row = 0; row < kPathRows; ++row) PrgHdr.Path[row][type] = BlankPathEntry;
  for (int i = 0; i < lstVariable.ListCount() && i < kPathRows; ++i) {
    SetField(PrgHdr.Path[i][type].PathText, RTrim(lstDataType.List(i)));
    SetField(PrgHdr.Path[i][type].PathName, RTrim(lstVariable.List(i)));
  }
  Unload();
}

}  // namespace kq
