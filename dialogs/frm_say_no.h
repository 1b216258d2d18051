// Say Number (16): says the number a variable holds from the number path, in a layout,
// with a voice file played after the period and one at the end when asked.
#pragma once

#include <string>

#include "dialogs/func_dialog.h"
#include "ui/model/file_controls.h"

namespace kq {

class frmSayNo : public FuncDialog {
 public:
  frmSayNo();

  ui::Label lblVariable{*this, "lblVariable", "Variable:"};
  ui::ComboBox cboVariable{*this, "cboVariable"};
  ui::Label lblLayout{*this, "lblLayout", "Layout:"};
  ui::ComboBox cboLayout{*this, "cboLayout"};
  ui::Label lblNumberPath{*this, "lblNumberPath", "Number path:"};
  ui::ComboBox cboPathVar[3] = {
      {*this, "cboPathVar", 0}, {*this, "cboPathVar", 1}, {*this, "cboPathVar", 2}};
  ui::Label lblPlayVoiceFile{*this, "lblPlayVoiceFile", "Play voice file: "};
  ui::CheckBox chkPlay[2] = {{*this, "chkPlay", "after period", 0},
                             {*this, "chkPlay", "at the end", 1}};
  ui::Label lblVoicePath[2] = {{*this, "lblVoicePath", "Voice path:", 0},
                               {*this, "lblVoicePath", "Voice path:", 1}};
  ui::Label lblVoiceFile[2] = {{*this, "lblVoiceFile", "Voice file:", 0},
                               {*this, "lblVoiceFile", "Voice file:", 1}};
  ui::FileListBox filVoice[2] = {{*this, "filVoice", 0}, {*this, "filVoice", 1}};
  ui::CheckBox chkDisableHangup{*this, "chkDisableHangup", "Disable hangup detection"};
  ui::Label lblHangup{*this, "lblHangup", "On hangup goto:"};
  ui::ComboBox cboLabel{*this, "cboLabel"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool CheckBeforeLabel() override;
  bool Accept(std::string& parameters) override;

 private:
  void cboVariable_Click();
  void chkPlay_Click(int index);
  void cboPathVar_Click(int index);
  // Refuses a chosen voice file whose name its field could hold only cut short; the list
  // then has no file selected.
  bool VoiceFileFits(int index);
  // The layouts a variable of the shown type can take; layout selects its row.
  void GetListBoxLayout(int32_t layout);
  int32_t ShownType();
  // Only a number with decimals has a period to play a file after.
  void EnableAfterPeriod();
  void ShowPlay(int index, bool on);
  // The path variable and file a play box shows when the load checks it.
  std::string loadPath_[2];
  std::string loadFile_[2];
};

}  // namespace kq
