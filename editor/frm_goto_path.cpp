#include "editor/frm_goto_path.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/navigation.h"
#include "ui/platform/platform.h"

namespace kq {

frmGotoPath::frmGotoPath() : Form("frmGotoPath", "Goto Path Parameter") {
  cboPath.SetStyle(ui::ComboBox::Style::DropdownList);
  cboPath.SetWidth(2400);
  cboPath.OnClick = [this] { cboPath_Click(); };
  lstVariable.SetSorted(true);
  lstVariable.SetWidth(3000);
  lstVariable.OnDblClick = [this] { cmdOk_Click(); };
  lstVariable.OnKeyPress = [this](int& k) {
    if (k == 13) {
      k = 0;
      cmdOk_Click();
    }
  };
  cmdOk.OnClick = [this] { cmdOk_Click(); };
  cmdCancel.OnClick = [this] { Unload(); };
  cmdOk.SetWidth(1200);
  cmdCancel.SetWidth(1200);
  Place(lblSelectPath, 0, 0);
  Place(cboPath, 0, 1);
  Place(lstVariable, 1, 0, 1, 2);
  Place(cmdOk, 2, 0);
  Place(cmdCancel, 2, 1);
  Move(0, 0, 4400, 3800);
}

void frmGotoPath::Form_Load() {
  CenterForm(*this);
  GetListBoxPath(cboPath, kPathExport, -1);
}

void frmGotoPath::cboPath_Click() {
  lstVariable.Clear();
  const int32_t type = GetPathTypeLetter(cboPath);
  if (type >= kPathExport && type <= kPathGeneral) {
    for (int row = 0; row < kPathRows; ++row) {
      const std::string_view name = View(PrgHdr.Path[row][type - kPathExport].PathName);
      if (!FieldEmpty(name)) lstVariable.AddItem(NulToBlank(RTrim(name)));
    }
  }
  lstVariable.SetListIndex(0);
}

void frmGotoPath::cmdOk_Click() {
  SearchPathType = GetPathTypeLetter(cboPath);
  const std::string name = RTrim(lstVariable.List(lstVariable.ListIndex()));
  bool declared = false;
  for (int row = 0; row < kPathRows && !declared; ++row) {
    if (SearchPathType < kPathExport || SearchPathType > kPathGeneral) break;
    const std::string_view entry = View(PrgHdr.Path[row][SearchPathType - kPathExport].PathName);
    declared = !FieldEmpty(entry) && RTrim(entry) == name + '\0';
  }
  if (!declared) {
    ui::ProgramError("Selected path variable " + name + " not found cmdOk_Click in frmGotoPath.");
  }
  AssignField(SearchPathName, name + '\0');
  FirstSearch(SearchKind::Path);
  Unload();
}

}  // namespace kq
