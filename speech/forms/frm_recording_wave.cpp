#include "speech/forms/frm_recording_wave.h"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "dialogs/services.h"
#include "speech/forms/speech_forms.h"
#include "ui/platform/durable_file.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

constexpr const char* kTemplates[kRecordingTemplates] = {
    "M08K08B.WAV", "M11K08B.WAV", "M22K08B.WAV", "M44K08B.WAV",
    "M08K16B.WAV", "M11K16B.WAV", "M22K16B.WAV", "M44K16B.WAV"};
constexpr const char* kWaveFilter = "Wave Files (*.wav)|*.wav";
constexpr const char* kTempRecording = "LISTEN.WAV";
constexpr int kLastSearchPosition = 201;  // the chunk must begin in the first 200 bytes
constexpr int kScrollMax = 32767;

// Milliseconds as seconds in the format "0.00", halves rounded up.
std::string Seconds(int32_t milliseconds) {
  const int32_t hundredths = (milliseconds + 5) / 10;
  char text[32];
  std::snprintf(text, sizeof text, "%d.%02d", hundredths / 100, hundredths % 100);
  return text;
}

const char* ChannelsText(int channels) {
  if (channels == 1) return "Mono";
  if (channels == 2) return "Stereo";
  return "?";
}

const char* RateText(int rate) {
  switch (rate) {
    case 8000:
      return "8";
    case 11025:
      return "11";
    case 22050:
      return "22";
    case 44100:
      return "44";
    default:
      return "?";
  }
}

const char* BitsText(int bits) {
  if (bits == 8) return "8";
  if (bits == 16) return "16";
  return "?";
}

}  // namespace

bool ReadWaveFormat(const std::string& fileName, WaveFormatRecord& format) {
  std::ifstream in(fileName, std::ios::binary);
  if (!in) return false;
  int p = 1;
  for (; p < kLastSearchPosition; ++p) {
    char tag[3] = {};
    in.clear();
    in.seekg(p - 1);
    in.read(tag, 3);
    if (in.gcount() == 3 && std::memcmp(tag, "fmt", 3) == 0) break;
  }
  if (p >= kLastSearchPosition) return false;
  in.clear();
  in.seekg(p - 1 + 8);
  char bytes[sizeof(WaveFormatRecord)] = {};
  in.read(bytes, sizeof bytes);
  std::memcpy(&format, bytes, sizeof format);
  return true;
}

frmRecordingWave::frmRecordingWave() : Form("frmRecordingWave", "Recording in WAVE audio format") {
  for (ui::MediaButton b : {ui::MediaButton::Pause, ui::MediaButton::Back, ui::MediaButton::Step,
                            ui::MediaButton::Eject}) {
    MMControl1.SetButtonVisible(b, false);
  }
  MMControl1.SetWidth(4800);
  HScroll1.SetRange(0, kScrollMax);
  HScroll1.SetWidth(4800);
  cmdExit.SetWidth(1200);
  MMControl1.OnStatusUpdate = [this] { MMControl1_StatusUpdate(); };
  HScroll1.OnChange = [this] { HScroll1_Change(); };
  cmdExit.OnClick = [this] { cmdExit_Click(); };

  AddMenu(mnuFile);
  for (ui::Menu* m : {&mnuFileNew, &mnuFileOpen, &mnuFileSave, &mnuFileSaveAs, &mnuFileExit}) {
    mnuFile.Append(*m);
  }
  mnuFileNew.OnClick = [this] { mnuFileNew_Click(); };
  mnuFileOpen.OnClick = [this] { mnuFileOpen_Click(); };
  mnuFileSave.OnClick = [this] { mnuFileSave_Click(); };
  mnuFileSaveAs.OnClick = [this] { mnuFileSaveAs_Click(); };
  mnuFileExit.OnClick = [this] { cmdExit_Click(); };
  AddMenu(mnuSettings);
  for (int i = 0; i < kRecordingTemplates; ++i) {
    mnuSettings.Append(mnuItemSettings[i]);
    mnuItemSettings[i].OnClick = [this, i] { mnuItemSettings_Click(i); };
  }

  Place(lblMMControl, 0, 0, 1, 4);
  Place(MMControl1, 1, 0, 1, 4);
  Place(HScroll1, 2, 0, 1, 4);
  Place(lblFileName, 3, 0);
  Place(lblFileNameValue, 3, 1, 1, 3);
  Place(lblDuration, 4, 0);
  Place(lblDurationValue, 4, 1);
  Place(lblCurrent, 5, 0);
  Place(lblCurrentValue, 5, 1);
  Place(lblAudioValue, 6, 0);
  Place(lblkHzValue, 6, 1);
  Place(lblkHz, 6, 2);
  Place(lblBitsValue, 7, 1);
  Place(lblBits, 7, 2);
  Place(cmdExit, 7, 3);
  Move(0, 0, 5400, 4200);
}

void frmRecordingWave::Form_Load() {
  CenterForm(*this);
  mnuItemSettings[template_].SetChecked(true);
}

void frmRecordingWave::Form_Unload() {
  MMControl1.SetCommand("Close");
}

void frmRecordingWave::MciError() {
  ui::platform().MsgBox("MCI_ERROR", ui::vbCritical, "Program Error");
  Unload();
}

bool frmRecordingWave::OpenWave(const std::string& fileName) {
  if (MMControl1.Mode() != ui::mciModeNotOpen) MMControl1.SetCommand("Close");
  MMControl1.SetDeviceType("WaveAudio");
  MMControl1.SetFileName(fileName);
  MMControl1.SetCommand("Open");
  if (MMControl1.Error() != 0) {
    MciError();
    return false;
  }
  lblFileNameValue.SetCaption(fileName);
  lblDurationValue.SetCaption(Seconds(MMControl1.Length()));
  lblCurrentValue.SetCaption(Seconds(0));
  ShowFormat(fileName);
  return true;
}

void frmRecordingWave::ShowFormat(const std::string& fileName) {
  WaveFormatRecord format;
  if (!ReadWaveFormat(fileName, format) || format.FormatTag != 1) {
    lblAudioValue.SetCaption("?");
    lblkHzValue.SetCaption("?");
    lblBitsValue.SetCaption("?");
    return;
  }
  lblAudioValue.SetCaption(ChannelsText(format.Channels));
  lblkHzValue.SetCaption(RateText(format.SamplesPerSec));
  lblBitsValue.SetCaption(BitsText(format.BitsPerSample));
}

void frmRecordingWave::mnuFileNew_Click() {
  OpenWave(DataFile(kTemplates[template_]));
}

void frmRecordingWave::mnuFileOpen_Click() {
  ui::FileDialogRequest request;
  request.kind = ui::FileDialogRequest::Kind::Open;
  request.filter = kWaveFilter;
  const std::optional<std::string> file = ui::platform().FileDialog(request);
  if (!file) return;
  OpenWave(*file);
}

bool frmRecordingWave::SaveToTemp() {
  const std::string former = MMControl1.FileName();
  MMControl1.SetFileName(TempFile(kTempRecording));
  MMControl1.SetCommand("Save");
  const int error = MMControl1.Error();
  MMControl1.SetFileName(former);
  if (error == 0) return true;
  MciError();
  return false;
}

void frmRecordingWave::mnuFileSave_Click() {
  SaveToTemp();
}

void frmRecordingWave::mnuFileSaveAs_Click() {
  ui::FileDialogRequest request;
  request.kind = ui::FileDialogRequest::Kind::Save;
  request.filter = kWaveFilter;
  const std::optional<std::string> file = ui::platform().FileDialog(request);
  if (!file) return;
  if (!SaveToTemp()) return;
  if (ui::CopyFileDurably(TempFile(kTempRecording), *file) != 0) {
    MciError();
    return;
  }
  lblFileNameValue.SetCaption(*file);
}

void frmRecordingWave::mnuItemSettings_Click(int Index) {
  for (auto& item : mnuItemSettings) item.SetChecked(false);
  mnuItemSettings[Index].SetChecked(true);
  template_ = Index;
}

void frmRecordingWave::MMControl1_StatusUpdate() {
  const int32_t position = MMControl1.Position();
  const int32_t length = MMControl1.Length();
  lblCurrentValue.SetCaption(Seconds(position));
  lblDurationValue.SetCaption(Seconds(length));
  showing_ = true;
  HScroll1.SetValue(length > 0 ? static_cast<int>(int64_t{position} * kScrollMax / length) : 0);
  showing_ = false;
}

void frmRecordingWave::HScroll1_Change() {
  if (showing_) return;
  MMControl1.SetFrom(
      static_cast<int32_t>(int64_t{HScroll1.Value()} * MMControl1.Length() / kScrollMax));
  MMControl1.SetCommand("Seek");
}

void frmRecordingWave::cmdExit_Click() {
  Unload();
}

}  // namespace kq
