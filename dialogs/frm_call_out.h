// Call Out (5): call a number or the number a variable holds, and go to a target by the
// outcome of the call.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmCallOut : public FuncDialog {
 public:
  frmCallOut();

  static constexpr int kOutcomes = 7;

  ui::Label lblDial{*this, "lblDial", "Telephone number or variable to call out:"};
  ui::ComboBox cboVariable{*this, "cboVariable"};
  ui::Label lblOutcome[kOutcomes] = {{*this, "lblOutcome", "On busy tone goto:", 0},
                                     {*this, "lblOutcome", "On call answered goto:", 1},
                                     {*this, "lblOutcome", "On no call progress goto:", 2},
                                     {*this, "lblOutcome", "On intercept goto:", 3},
                                     {*this, "lblOutcome", "On no answer goto:", 4},
                                     {*this, "lblOutcome", "On no dial tone goto:", 5},
                                     {*this, "lblOutcome", "On error goto:", 6}};
  ui::ComboBox cboLabel[kOutcomes] = {{*this, "cboLabel", 0}, {*this, "cboLabel", 1},
                                      {*this, "cboLabel", 2}, {*this, "cboLabel", 3},
                                      {*this, "cboLabel", 4}, {*this, "cboLabel", 5},
                                      {*this, "cboLabel", 6}};
  ui::Label lblNoAnswTimeout{*this, "lblNoAnswTimeout",
                             "Number of rings before no answer timeout:"};
  ui::TextBox txtTimeout{*this, "txtTimeout"};
  ui::CheckBox chkWaitForDialTone{*this, "chkWaitForDialTone", "Wait for dial tone"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool CheckBeforeLabel() override;
  bool Accept(std::string& parameters) override;
};

}  // namespace kq
