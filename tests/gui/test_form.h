// A form with every kind of control, wired as the system's forms wire theirs, that
// records the events it gets in order.
#pragma once

#include <string>
#include <vector>

#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"
#include "ui/model/menu.h"
#include "ui/platform/platform.h"

class TestForm : public ui::Form {
 public:
  TestForm() : Form("frmTest", "Binding Test") {
    txtName.SetMaxLength(6);
    txtName.SetWidth(2400);
    cboVar.SetSorted(true);
    cboType.SetStyle(ui::ComboBox::Style::DropdownList);
    lstItems.SetMultiSelect(ui::ListBox::MultiSelect::Extended);
    lstItems.SetTabStops({25, 79});
    cmdOk.SetDefault(true);
    cmdCancel.SetCancel(true);

    Place(lblName, 0, 0);
    Place(txtName, 0, 1);
    Place(cboVar, 1, 1);
    Place(cboType, 2, 1);
    Place(chkMark, 3, 0, 1, 2);
    Place(fraKind, 4, 0, 1, 2);
    fraKind.Place(optKind[0], 0, 0);
    fraKind.Place(optKind[1], 0, 1);
    Place(optLoose[0], 5, 0);
    Place(optLoose[1], 5, 1);
    Place(lstItems, 6, 0, 1, 2);
    Place(cmdOk, 7, 0);
    Place(cmdCancel, 7, 1);

    mnuFile.Append(mnuFileItem[0]);
    mnuFile.Append(mnuFileItem[1]);
    mnuFile.Append(mnuFileItem[2]);
    mnuFileItem[0].SetShortcut("Ctrl+T");
    mnuFileItem[2].SetShortcut("F2");
    AddMenu(mnuFile);
    AddMenu(mnuRun);

    txtName.OnKeyPress = [this](int& k) { txtName_KeyPress(k); };
    txtName.OnChange = [this] { Log("txtName_Change"); };
    txtName.OnKeyDown = [this](int& k, int) { Log("txtName_KeyDown " + std::to_string(k)); };
    txtName.OnGotFocus = [this] { Log("txtName_GotFocus"); };
    cboVar.OnGotFocus = [this] { Log("cboVar_GotFocus"); };
    cboVar.OnClick = [this] { Log("cboVar_Click"); };
    cboType.OnClick = [this] { Log("cboType_Click"); };
    chkMark.OnClick = [this] { Log("chkMark_Click"); };
    for (int i = 0; i < 2; ++i) {
      optKind[i].OnClick = [this, i] { Log("optKind_Click " + std::to_string(i)); };
      mnuFileItem[i].OnClick = [this, i] { Log("mnuFileItem_Click " + std::to_string(i)); };
    }
    mnuFileItem[2].OnClick = [this] { Log("mnuFileItem_Click 2"); };
    mnuRun.OnClick = [this] { Log("mnuRun_Click"); };
    lstItems.OnClick = [this] { Log("lstItems_Click"); };
    lstItems.OnDblClick = [this] { Log("lstItems_DblClick"); };
    lstItems.OnKeyDown = [this](int& k, int) {
      Log("lstItems_KeyDown " + std::to_string(k));
      if (k == ui::vbKeyDelete) k = 0;
    };
    cmdOk.OnClick = [this] { Log("cmdOk_Click"); };
    cmdCancel.OnClick = [this] { Log("cmdCancel_Click"); };
  }

  void txtName_KeyPress(int& keyAscii) {
    Log("txtName_KeyPress " + std::to_string(keyAscii));
    if (keyAscii >= '0' && keyAscii <= '9') {  // digits are refused
      keyAscii = 0;
      ui::platform().Beep();
    }
  }

  void Log(std::string s) { events.push_back(std::move(s)); }
  int Count(const std::string& s) const {
    int n = 0;
    for (const auto& e : events) n += e == s;
    return n;
  }

  std::vector<std::string> events;
  ui::Label lblName{*this, "lblName", "&Name:"};
  ui::TextBox txtName{*this, "txtName"};
  ui::ComboBox cboVar{*this, "cboVar"};
  ui::ComboBox cboType{*this, "cboType"};
  ui::CheckBox chkMark{*this, "chkMark", "&Marked"};
  ui::Frame fraKind{*this, "fraKind", "Kind"};
  ui::OptionButton optKind[2] = {{*this, "optKind", "&Long", 0}, {*this, "optKind", "&Text", 1}};
  ui::OptionButton optLoose[2] = {{*this, "optLoose", "One", 0}, {*this, "optLoose", "Two", 1}};
  ui::ListBox lstItems{*this, "lstItems"};
  ui::CommandButton cmdOk{*this, "cmdOk", "OK"};
  ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};
  ui::Menu mnuFile{*this, "mnuFile", "&File"};
  ui::Menu mnuFileItem[3] = {{*this, "mnuFileItem", "&New", 0},
                             {*this, "mnuFileItem", "&Open...", 1},
                             {*this, "mnuFileItem", "&Save", 2}};
  ui::Menu mnuRun{*this, "mnuRun", "&Run"};
};
