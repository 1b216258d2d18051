#include "dialogs/frm_voice.h"

#include "dialogs/prompt_parts.h"
#include "dialogs/services.h"
#include "document/disk_error.h"
#include "document/header.h"
#include "document/state.h"
#include "document/text.h"
#include "speech/codec/convert.h"
#include "ui/platform/disk.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {
constexpr const char* kAddTitle = "Voice file add error";
constexpr const char* kPlayTitle = "Play Function";

std::string Joined(std::string folder, const std::string& name) {
  return ui::WithTrailingSeparator(std::move(folder)) + name;
}
}  // namespace

frmVoice::frmVoice() : FuncDialog("frmVoice", "Voice", 18) {
  MMControl1.SetVisible(false);
  cboPathVar.SetStyle(ui::ComboBox::Style::DropdownList);
  cboPathVar.SetWidth(2400);
  cboPathVar.OnKeyPress = [](int& k) { SwallowEnter(k); };
  cboPathVar.OnClick = [this] { cboPathVar_Click(); };
  drvVoice.SetWidth(2400);
  dirVoice.SetWidth(2400);
  filVoice.SetWidth(2400);
  filVoice.SetMultiSelect(ui::ListBox::MultiSelect::Extended);
  filVoice.SetPattern(speech::kVoiceFilePattern);
  drvVoice.OnChange = [this] { drvVoice_Change(); };
  dirVoice.OnChange = [this] { dirVoice_Change(); };
  // A double click plays the file; adding is the Add button's.
  filVoice.OnDblClick = [this] { cmdPlay_Click(); };
  lstSelectedVoice.SetWidth(2400);
  lstSelectedVoice.OnClick = [this] { lstSelectedVoice_Click(); };
  lstSelectedVoice.OnDblClick = [this] { cmdDelete_Click(); };
  for (ui::CommandButton* b : {&cmdAdd, &cmdDelete, &cmdClear, &cmdPlay}) b->SetWidth(1200);
  cmdAdd.OnClick = [this] { cmdAdd_Click(); };
  cmdDelete.OnClick = [this] { cmdDelete_Click(); };
  cmdClear.OnClick = [this] { cmdClear_Click(); };
  cmdPlay.OnClick = [this] { cmdPlay_Click(); };
  cmdDelete.SetEnabled(false);
  for (ui::ComboBox& c : cboLabel) SetUpLabelCombo(c);
  chkDisableHangup.SetWidth(3000);
  PlaceLabelRow();
  Place(lblPathVar, 1, 0);
  Place(cboPathVar, 1, 1);
  Place(lblVoice, 2, 0);
  Place(lblSeletedVoice, 2, 2);
  Place(drvVoice, 3, 0);
  Place(dirVoice, 4, 0, 3, 1);
  Place(filVoice, 3, 1, 4, 1);
  Place(lstSelectedVoice, 3, 2, 4, 1);
  Place(cmdAdd, 3, 3);
  Place(cmdDelete, 4, 3);
  Place(cmdClear, 5, 3);
  Place(cmdPlay, 6, 3);
  Place(chkDisableHangup, 7, 0, 1, 2);
  Place(lblHangup, 8, 0);
  Place(cboLabel[0], 8, 1);
  Place(lblError, 9, 0);
  Place(cboLabel[1], 9, 1);
  PlaceButtonRow(10, 4);
  Move(0, 0, 9800, 6400);
}

void frmVoice::ShowFolder(const std::string& folder) {
  int error = drvVoice.SetDrive(folder);
  if (error == 0) error = dirVoice.SetPath(folder);
  if (error == 0) error = filVoice.SetPath(folder);
  if (error != 0) HandlePathError(error);
}

void frmVoice::LoadFields(const RecordSet& rec, bool modify) {
  const VoiceRec& r = rec.Voice;
  GetListBoxPathVar(cboPathVar, kPathVoice, View(r.VoicePath));
  if (modify) {
    const int error = SetFileListBox(filVoice, kPathVoice, View(r.VoicePath), View(r.VoiceFile[0]));
    if (error != 0) HandlePathError(error);
    for (const auto& file : r.VoiceFile) {
      if (!FieldEmpty(View(file))) lstSelectedVoice.AddItem(RTrim(NulToBlank(View(file))));
    }
  } else {
    // A new line starts in the folder of the first voice path variable.
    for (int row = 0; row < kPathRows; ++row) {
      const PathEntry& e = PrgHdr.Path[row][kPathVoice - kPathExport];
      if (FieldEmpty(View(e.PathName))) continue;
      ShowFolder(FieldText(View(e.PathText)));
      break;
    }
  }
  chkDisableHangup.SetValue(r.DisableHangup == 1 ? 1 : 0);
  GetListBoxLabel(cboLabel[0], View(r.HangupLabel.LabelRefName));
  GetListBoxLabel(cboLabel[1], View(r.ErrorLabel.LabelRefName));
}

void frmVoice::cboPathVar_Click() {
  const int row = GetListBoxPathVarNo(cboPathVar, kPathVoice);
  ShowFolder(FieldText(View(PrgHdr.Path[row][kPathVoice - kPathExport].PathText)));
}

void frmVoice::drvVoice_Change() {
  RetryDiskOperation("Change voice drive",
                     [this] { return dirVoice.SetPath(ui::disk().CurrentDirectory()); });
}

void frmVoice::dirVoice_Change() {
  const int error = filVoice.SetPath(dirVoice.Path());
  if (error != 0) HandlePathError(error);
}

void frmVoice::lstSelectedVoice_Click() {
  cmdDelete.SetEnabled(lstSelectedVoice.ListIndex() >= 0);
}

void frmVoice::cmdAdd_Click() {
  const std::string maximum = "Maximum number of voice files are " + Str(int64_t{kMaxVoiceFiles});
  if (lstSelectedVoice.ListCount() >= kMaxVoiceFiles) {
    ui::platform().MsgBox(maximum, ui::vbOKOnly | ui::vbExclamation, kAddTitle);
    return;
  }
  for (int i = 0; i < filVoice.ListCount(); ++i) {
    if (!filVoice.Selected(i)) continue;
    const std::string name = filVoice.List(i);
    bool found = false;
    for (int k = 0; k < lstSelectedVoice.ListCount() && !found; ++k) {
      found = lstSelectedVoice.List(k) == name;
    }
    if (found) {
      ui::platform().MsgBox("Voice file " + name + " exist already.",
                            ui::vbOKOnly | ui::vbExclamation, kAddTitle);
      continue;
    }
    if (!NameFits(name, sizeof(VoiceRec::VoiceFile[0]), "Voice file", kAddTitle)) continue;
    // The record has five slots: the sixth is refused as the first would be at five.
    if (lstSelectedVoice.ListCount() >= kMaxVoiceFiles) {
      ui::platform().MsgBox(maximum, ui::vbOKOnly | ui::vbExclamation, kAddTitle);
      return;
    }
    lstSelectedVoice.AddItem(name);
  }
}

void frmVoice::cmdDelete_Click() {
  const int index = lstSelectedVoice.ListIndex();
  if (index >= 0) {
    lstSelectedVoice.RemoveItem(index);
  } else {
    ui::platform().Beep();
  }
  cmdDelete.SetEnabled(lstSelectedVoice.ListIndex() >= 0);
}

void frmVoice::cmdClear_Click() {
  const int answer = ui::platform().MsgBox("Clear all the voice files ?",
                                           ui::vbYesNo | ui::vbQuestion, "Confirm clear");
  if (answer != ui::vbYes) return;
  lstSelectedVoice.Clear();
  cmdDelete.SetEnabled(false);
}

void frmVoice::cmdPlay_Click() {
  const std::string name = filVoice.FileName();
  if (name.empty()) {
    ui::platform().MsgBox("Select a speech file.", ui::vbOKOnly | ui::vbExclamation, kPlayTitle);
    return;
  }
  const int format = speech::SpeechFormatOfFile(name, SpeechAudioFormat);
  if (format == speech::kIllegalSpeechFormat) {
    ui::platform().MsgBox("Illegal speech file extension selected.",
                          ui::vbOKOnly | ui::vbExclamation, kPlayTitle);
    return;
  }
  const std::string wave = Joined(ui::platform().TempDirectory(), "voice.wav");
  const int result = speech::Convert(Joined(filVoice.Path(), name).c_str(),
                                     static_cast<int16_t>(format), 8, wave.c_str(), 4, 8);
  ConvertMessage(result);
  MMControl1.SetNotify(false);
  MMControl1.SetWait(true);
  MMControl1.SetShareable(false);
  MMControl1.SetDeviceType("WaveAudio");
  MMControl1.SetFileName(wave);
  MMControl1.SetCommand("Open");
  MMControl1.SetCommand("Play");
}

void frmVoice::Form_Unload() {
  MMControl1.SetCommand("Close");
  FuncDialog::Form_Unload();
}

bool frmVoice::CheckBeforeLabel() {
  // At least one voice file is mandatory.
  if (filVoice.FileName().empty() || lstSelectedVoice.ListCount() == 0) {
    filVoice.SetFocus();
    ui::platform().Beep();
    return false;
  }
  return true;
}

bool frmVoice::Accept(std::string& parameters) {
  VoiceRec& r = WorkRecord.Voice;
  SetField(r.VoicePath, cboPathVar.Text());
  for (int k = 0; k < kMaxVoiceFiles; ++k) {
    SetField(r.VoiceFile[k], k < lstSelectedVoice.ListCount() ? lstSelectedVoice.List(k) : "");
  }
  r.DisableHangup = chkDisableHangup.Value();
  SetField(r.HangupLabel.LabelRefName, LabelText(cboLabel[0]));
  SetField(r.ErrorLabel.LabelRefName, LabelText(cboLabel[1]));
  parameters = RTrimZ(View(r.VoicePath)) + "\\" + RTrimZ(View(r.VoiceFile[0]));
  for (int k = 1; k < kMaxVoiceFiles; ++k) {
    if (!FieldEmpty(View(r.VoiceFile[k]))) parameters += " & " + RTrimZ(View(r.VoiceFile[k]));
  }
  parameters += HangupParm(r.DisableHangup);
  parameters = AppendLabelParm(parameters, " H=", View(r.HangupLabel.LabelRefName));
  parameters = AppendLabelParm(parameters, " E=", View(r.ErrorLabel.LabelRefName));
  return true;
}

}  // namespace kq
