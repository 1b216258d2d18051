// What every function dialog shares: the line's own label, the Ok and Cancel buttons, the
// load sequence (centred, FuncOk false, the record of the line or the defaults), the OK
// sequence that hands the label, the record and the DisplayLine back to the editor, and
// the handling of Enter.
#pragma once

#include <string>

#include "document/records.h"
#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace kq {

class FuncDialog : public ui::Form {
 public:
  FuncDialog(std::string name, std::string caption, int funcNo);

  ui::Label lblLabel{*this, "lblLabel", "Label:"};
  ui::TextBox txtLabel{*this, "txtLabel"};
  ui::CommandButton cmdOk{*this, "cmdOk", "&Ok"};
  ui::CommandButton cmdCancel{*this, "cmdCancel", "&Cancel"};

  int FunctionNumber() const { return funcNo_; }

 protected:
  // Fills the controls from the record: the line's (WorkRecord) when modify is true, the
  // defaults (InitRecord) otherwise. The label is already in txtLabel.
  virtual void LoadFields(const RecordSet& rec, bool modify) = 0;
  // Runs before FuncLabel is taken; false stops the OK with nothing taken.
  virtual bool CheckBeforeLabel() { return true; }
  // The function's own validation in its order, then WorkRecord; on success the parameter
  // text of the DisplayLine. On a refusal the dialog has set focus, beeped or shown its
  // message, and returns false.
  virtual bool Accept(std::string& parameters) = 0;
  // The DisplayLine after the parameter text is in place (the optional label pieces).
  virtual std::string Decorate(std::string line) { return line; }

  void Form_Load() override;
  void cmdOk_Click();
  void cmdCancel_Click();

  // Key handlers the dialogs wire to their fields.
  static void SwallowEnter(int& keyAscii);
  void txtLabel_KeyPress(int& keyAscii);

  // A label target as its combo holds it, with leading and trailing blanks removed; the
  // record field takes it with its NUL (SetField).
  static std::string LabelText(const ui::ComboBox& combo);
  // Refuses an empty mandatory label target: emptied, focused, beep. False when empty.
  static bool RequireLabel(ui::ComboBox& combo);
  // The standard rows of every dialog: the label on top, the buttons at the bottom.
  void PlaceLabelRow();
  void PlaceButtonRow(int row, int columns);

 private:
  int funcNo_;
};

// Shows the dialog of one function modally; false when the function has no dialog yet.
bool ShowFuncDialog(int funcNo);
// True when the function has a dialog.
bool HasFuncDialog(int funcNo);

}  // namespace kq
