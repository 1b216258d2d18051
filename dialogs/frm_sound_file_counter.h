// Sound File Count (52): gets or sets the speech file counter through a Long variable.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmSoundFileCounter : public FuncDialog {
 public:
  frmSoundFileCounter();

  ui::Frame fraAction{*this, "fraAction", "Counter action"};
  ui::OptionButton optAction[2] = {{*this, "optAction", "Get Counter", 0},
                                   {*this, "optAction", "Set Counter", 1}};
  ui::Label lblDial{*this, "lblDial", "Counter variable:"};
  ui::ComboBox cboVariable{*this, "cboVariable"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;

 private:
  void optAction_KeyPress(int& keyAscii);
};

}  // namespace kq
