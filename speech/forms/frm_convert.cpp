#include "speech/forms/frm_convert.h"

#include "dialogs/services.h"
#include "document/header.h"
#include "document/state.h"
#include "document/text.h"
#include "speech/codec/convert.h"
#include "speech/forms/speech_forms.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

constexpr const char* kSourceSetting = "SourceConvertFileName";
constexpr const char* kTargetSetting = "TargetConvertFileName";
constexpr const char* kUserSelected = "User selected";
constexpr const char* kSelectWave = "Select a WAVE speech file (*.WAV).";
constexpr int kVoiceColumn = kPathVoice - kPathExport;
constexpr int16_t kWaveFormat = 4;
constexpr int16_t kRate = 8;

}  // namespace

frmConvert::frmConvert() : Form("frmConvert", "") {
  filSource.SetPattern(speech::kWaveFilePattern);
  filTarget.SetPattern(speech::kVoiceFilePattern);
  cboTargetPathVar.SetStyle(ui::ComboBox::Style::DropdownList);
  MMControl1.SetVisible(false);
  for (ui::Control* c :
       {static_cast<ui::Control*>(&drvSource), static_cast<ui::Control*>(&dirSource),
        static_cast<ui::Control*>(&filSource), static_cast<ui::Control*>(&drvTarget),
        static_cast<ui::Control*>(&dirTarget), static_cast<ui::Control*>(&filTarget),
        static_cast<ui::Control*>(&cboTargetPathVar)}) {
    c->SetWidth(3000);
  }
  for (ui::CommandButton* b : {&cmdConvert, &cmdSourcePlay, &cmdTargetPlay, &cmdExit}) {
    b->SetWidth(1400);
  }
  drvSource.OnChange = [this] { drvSource_Change(); };
  dirSource.OnChange = [this] { dirSource_Change(); };
  drvTarget.OnChange = [this] { drvTarget_Change(); };
  dirTarget.OnChange = [this] { dirTarget_Change(); };
  filSource.OnDblClick = [this] { cmdSourcePlay_Click(); };
  filTarget.OnDblClick = [this] { cmdTargetPlay_Click(); };
  cboTargetPathVar.OnClick = [this] { cboTargetPathVar_Click(); };
  cmdConvert.OnClick = [this] { cmdConvert_Click(); };
  cmdSourcePlay.OnClick = [this] { cmdSourcePlay_Click(); };
  cmdTargetPlay.OnClick = [this] { cmdTargetPlay_Click(); };
  cmdExit.OnClick = [this] { cmdExit_Click(); };

  Place(lblSource, 0, 0);
  Place(drvSource, 1, 0);
  Place(dirSource, 2, 0, 3, 1);
  Place(filSource, 5, 0, 3, 1);
  Place(cmdConvert, 2, 1);
  Place(cmdSourcePlay, 3, 1);
  Place(cmdTargetPlay, 4, 1);
  Place(cmdExit, 7, 1);
  Place(LabelTarget, 0, 2);
  Place(drvTarget, 1, 2);
  Place(dirTarget, 2, 2, 3, 1);
  Place(filTarget, 5, 2, 3, 1);
  Place(lblPathVar, 8, 2);
  Place(cboTargetPathVar, 9, 2);
  Place(MMControl1, 10, 0, 1, 3);
  Move(0, 0, 9000, 6000);
}

void frmConvert::Form_Load() {
  CenterForm(*this);
  const std::string_view caption = speech::ConvertCaption(SpeechAudioFormat);
  if (caption.empty()) {
    ui::ProgramError("Illegal speech format index =" + Str(int64_t{SpeechAudioFormat}));
  }
  SetCaption(std::string(caption));
  const FileSetting source = ReadFileSetting(kSourceSetting);
  const FileSetting target = ReadFileSetting(kTargetSetting);
  ShowFileSetting({drvSource, dirSource, filSource}, source);
  ShowFileSetting({drvTarget, dirTarget, filTarget}, target);
  cboTargetPathVar.AddItem(kUserSelected);
  for (int row = 0; row < kPathRows; ++row) {
    const PathEntry& entry = PrgHdr.Path[row][kVoiceColumn];
    if (FieldEmpty(View(entry.PathName))) continue;
    cboTargetPathVar.AddItem(FieldText(View(entry.PathName)));
  }
  skipClick_ = true;
  cboTargetPathVar.SetListIndex(0);
  skipClick_ = false;
}

void frmConvert::Form_Unload() {
  SaveFileSetting(kSourceSetting, filSource);
  SaveFileSetting(kTargetSetting, filTarget);
  MMControl1.SetCommand("Close");
}

void frmConvert::drvSource_Change() {
  FollowDrive({drvSource, dirSource, filSource}, "Change source drive");
}

void frmConvert::dirSource_Change() {
  FollowDirectory({drvSource, dirSource, filSource});
}

void frmConvert::drvTarget_Change() {
  FollowDrive({drvTarget, dirTarget, filTarget}, "Change target drive");
}

void frmConvert::dirTarget_Change() {
  FollowDirectory({drvTarget, dirTarget, filTarget});
}

void frmConvert::cboTargetPathVar_Click() {
  if (skipClick_) {
    skipClick_ = false;
    return;
  }
  const std::string name = cboTargetPathVar.Text();
  if (name == kUserSelected) return;
  for (int row = 0; row < kPathRows; ++row) {
    const PathEntry& entry = PrgHdr.Path[row][kVoiceColumn];
    if (FieldEmpty(View(entry.PathName)) || FieldText(View(entry.PathName)) != name) continue;
    ShowFileSetting({drvTarget, dirTarget, filTarget}, {FieldText(View(entry.PathText)), ""});
    return;
  }
}

void frmConvert::cmdConvert_Click() {
  MMControl1.SetCommand("Close");
  const std::string source = SelectedFile(filSource);
  if (source.empty()) {
    ui::platform().MsgBox(kSelectWave, ui::vbExclamation, "Convert Function");
    return;
  }
  const std::string name = filSource.FileName();
  const std::string base = name.substr(0, name.size() < 3 ? 0 : name.size() - 3);
  const std::string target = JoinPath(dirTarget.Path(), base + speech::GetSpeechFileExt());
  ConvertMessage(speech::Convert(source.c_str(), kWaveFormat, kRate, target.c_str(),
                                 SpeechAudioFormat, kRate));
  filTarget.Refresh();
}

void frmConvert::cmdSourcePlay_Click() {
  MMControl1.SetCommand("Close");
  const std::string source = SelectedFile(filSource);
  if (source.empty()) {
    ui::platform().MsgBox(kSelectWave, ui::vbExclamation, "Play Function");
    return;
  }
  PlayWave(MMControl1, source);
}

void frmConvert::cmdTargetPlay_Click() {
  MMControl1.SetCommand("Close");
  PlaySpeechFile(MMControl1, filTarget, "Select a speech file.", "convert.wav");
}

void frmConvert::cmdExit_Click() {
  Unload();
}

}  // namespace kq
