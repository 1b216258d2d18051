// On/Off Hook (43): put the line on hook, off hook, or shut the channel down.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmOnOffHook : public FuncDialog {
 public:
  frmOnOffHook();

  ui::Frame fraAction{*this, "fraAction", "Action"};
  ui::OptionButton optAction[3] = {{*this, "optAction", "On hook", 0},
                                   {*this, "optAction", "Off hook", 1},
                                   {*this, "optAction", "Shutdown", 2}};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;

 private:
  void optAction_KeyPress(int Index, int& keyAscii);
};

}  // namespace kq
