#include "dialogs/frm_def_path.h"

#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/disk_error.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/platform/disk.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

constexpr int kMaxRetries = 100;  // a Retry answered for ever must not hang the dialog

}  // namespace

frmDefPath::frmDefPath() : Form("frmDefPath", "Define Paths") {
  txtName.SetMaxLength(14);
  txtName.SetWidth(2400);
  txtName.OnChange = [this] { txtName_Change(); };
  txtName.OnKeyPress = [this](int& k) { txtName_KeyPress(k); };
  lstVariable.SetSorted(true);
  lstVariable.SetWidth(2400);
  lstVariable.OnClick = [this] { lstVariable_Click(); };
  lstVariable.OnDblClick = [this] { cmdModify_Click(); };
  lstDataType.SetVisible(false);
  drvPath.SetWidth(3000);
  dirPath.SetWidth(3000);
  filPath.SetWidth(3000);
  drvPath.OnChange = [this] { drvPath_Change(); };
  dirPath.OnChange = [this] { dirPath_Change(); };
  cmdAdd.SetDefault(true);
  cmdAdd.SetEnabled(false);
  cmdModify.SetEnabled(false);
  cmdDelete.SetEnabled(false);
  cmdClear.SetEnabled(false);
  cmdAdd.OnClick = [this] { cmdAdd_Click(); };
  cmdModify.OnClick = [this] { cmdModify_Click(); };
  cmdDelete.OnClick = [this] { cmdDelete_Click(); };
  cmdClear.OnClick = [this] { cmdClear_Click(); };
  cmdOk.OnClick = [this] { cmdOk_Click(); };
  cmdCancel.OnClick = [this] { cmdCancel_Click(); };
  for (ui::CommandButton* b : {&cmdAdd, &cmdModify, &cmdDelete, &cmdClear, &cmdOk, &cmdCancel}) {
    b->SetWidth(1200);
  }

  Place(lblVariable, 0, 0);
  Place(txtName, 1, 0);
  Place(lstVariable, 2, 0, 6, 1);
  Place(drvPath, 0, 1);
  Place(dirPath, 1, 1, 4, 1);
  Place(filPath, 5, 1, 3, 1);
  Place(cmdAdd, 0, 2);
  Place(cmdModify, 1, 2);
  Place(cmdDelete, 2, 2);
  Place(cmdClear, 3, 2);
  Place(cmdOk, 6, 2);
  Place(cmdCancel, 7, 2);
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
  // The message ends the step; an error that is not a missing disk or path has no box of
  // its own and ends it too.
  HandlePathError(error);
  return false;
}

void frmDefPath::MarkChanged() {
  ChangedFlag = true;
  PrgHdr.CompiledFlag = 0;
}

void frmDefPath::txtName_Change() {
  cmdAdd.SetEnabled(!txtName.Text().empty());
}

void frmDefPath::txtName_KeyPress(int& keyAscii) {
  LegalInput(txtName, 2, keyAscii);
}

void frmDefPath::lstVariable_Click() {
  if (skipClick_) {
    skipClick_ = false;
    return;
  }
  const bool selected = lstVariable.SelCount() > 0;
  cmdModify.SetEnabled(selected);
  cmdDelete.SetEnabled(selected);
  const int index = lstVariable.ListIndex();
  if (index >= 0) ShowDirectory(RTrim(lstDataType.List(index)));
}

void frmDefPath::drvPath_Change() {
  for (int attempt = 1;; ++attempt) {
    int error = dirPath.SetPath(ui::disk().CurrentDirectory());
    if (error == 0) error = ui::disk().ChangeDirectory(dirPath.Path());
    if (error == 0) return;
    const int action = HandleDiskError("Change drive path", error);
    if (action != kDiskRetry || attempt >= kMaxRetries) return;
  }
}

void frmDefPath::dirPath_Change() {
  int error = filPath.SetPath(dirPath.Path());
  if (error == 0) {
    if (filPath.ListCount() > 0) filPath.SetListIndex(0);
    error = ui::disk().ChangeDirectory(dirPath.Path());
  }
  if (error != 0) HandlePathError(error);
}

void frmDefPath::cmdAdd_Click() {
  const std::string name = txtName.Text();
  if (lstVariable.ListCount() >= kPathRows) {
    ui::platform().MsgBox("Maximum number of path names are " + Str(int64_t{kPathRows}),
                          ui::vbOKOnly | ui::vbExclamation, "Path name add error");
  } else {
    bool exists = false;
    // The item one past the end reads as empty, as the list control answers it.
    for (int i = 0; i <= lstVariable.ListCount() && !exists; ++i) {
      exists = RTrim(lstVariable.List(i)) == name;
    }
    if (exists) {
      ui::platform().MsgBox("Path name " + name + " exist already.",
                            ui::vbOKOnly | ui::vbExclamation, "Path name add error");
    } else {
      std::string directory = dirPath.Path();
      if (directory.empty() || directory.back() != '/') directory += '/';
      lstVariable.AddItem(name);
      lstDataType.AddItem(directory, lstVariable.NewIndex());
      txtName.SetText("");
      cmdClear.SetEnabled(lstVariable.ListCount() > 0);
    }
  }
  txtName.SetFocus();
  MarkChanged();
}

void frmDefPath::cmdModify_Click() {
  txtName.SetText(RTrim(lstVariable.List(lstVariable.ListIndex())));
  cmdDelete_Click();
  txtName.SetFocus();
  cmdModify.SetEnabled(lstVariable.SelCount() > 0);
}

void frmDefPath::cmdDelete_Click() {
  const int index = lstVariable.ListIndex();
  if (index >= 0 && lstVariable.Selected(index)) {
    lstVariable.RemoveItem(index);
    lstDataType.RemoveItem(index);
  } else {
    ui::platform().Beep();
  }
  const bool selected = lstVariable.SelCount() > 0;
  cmdModify.SetEnabled(selected);
  cmdDelete.SetEnabled(selected);
  cmdClear.SetEnabled(lstVariable.ListCount() > 0);
  MarkChanged();
}

void frmDefPath::cmdClear_Click() {
  if (ui::platform().MsgBox("Clear all the path names ?", ui::vbOKCancel | ui::vbExclamation,
                            "Confirm clear") == ui::vbOK) {
    lstVariable.Clear();
    lstDataType.Clear();
    cmdModify.SetEnabled(false);
    cmdDelete.SetEnabled(false);
    cmdClear.SetEnabled(false);
  }
  txtName.SetText("");
  txtName.SetFocus();
  MarkChanged();
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

void frmDefPath::cmdCancel_Click() {
  Unload();
}

}  // namespace kq
