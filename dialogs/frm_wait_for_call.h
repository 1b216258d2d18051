// Wait for Call (19): rings before answering, an optional daily goto, and the caller and
// called identification with their signalling.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmWaitForCall : public FuncDialog {
 public:
  frmWaitForCall();

  ui::Label lblRings{*this, "lblRings", "Number of rings:"};
  ui::ComboBox cboRings{*this, "cboRings"};
  ui::CheckBox chkTerminate{*this, "chkTerminate", "Goto a specified label once a day"};
  ui::Label lblTerminate{*this, "lblTerminate", "At"};
  ui::ComboBox cboHour{*this, "cboHour"};
  ui::Label lblClock{*this, "lblClock", "o'clock"};
  ui::ComboBox cboMinute{*this, "cboMinute"};
  ui::Label lblMinutes{*this, "lblMinutes", "minutes past"};
  ui::Label lblGoto{*this, "lblGoto", "goto:"};
  ui::ComboBox cboLabel{*this, "cboLabel"};
  ui::CheckBox chkGetCallerID{*this, "chkGetCallerID", "Get caller  identification number"};
  ui::Label lblTone[2] = {{*this, "lblTone", "Caller ID signalling:", 0},
                          {*this, "lblTone", "Called ID signalling:", 1}};
  ui::ComboBox cboCallerIDTone{*this, "cboCallerIDTone"};
  ui::Label lblNumber[2] = {{*this, "lblNumber", "Caller ID number:", 0},
                            {*this, "lblNumber", "Called ID number:", 1}};
  ui::ComboBox cboCallerIDNo{*this, "cboCallerIDNo"};
  ui::CheckBox chkSystemTime{*this, "chkSystemTime", "Update system time"};
  ui::CheckBox chkGetCalledID{*this, "chkGetCalledID", "Get called identification number"};
  ui::ComboBox cboCalledIDTone{*this, "cboCalledIDTone"};
  ui::ComboBox cboCalledIDNo{*this, "cboCalledIDNo"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;

 private:
  void chkTerminate_Click();
  void chkGetCallerID_Click();
  void chkGetCalledID_Click();
  void cboCallerIDTone_Click();

  void EnableDaily(bool enabled);
  void EnableCaller(bool enabled);
  void EnableCalled(bool enabled);
  bool CallerToneIsFsk() const;
  void FillDaily(const WaitForCallRec& r);
  // The tone and the variable of one identification group (0 caller, 1 called).
  void FillIdentification(int group, const WaitForCallRec& r);

  bool loading_ = false;  // the check boxes take their stored values without their clicks
};

}  // namespace kq
