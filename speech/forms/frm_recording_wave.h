// Recording in WAVE audio format: a small sound recorder for speech prompts on a media
// control. A recording takes the format of the template file it is made into.
#pragma once

#include <cstdint>
#include <string>

#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/media_control.h"
#include "ui/model/menu.h"
#include "ui/model/scroll_bar.h"

namespace kq {

// The format chunk of a WAVE file, as it lies in the file.
struct WaveFormatRecord {
  int16_t FormatTag = 0;
  int16_t Channels = 0;
  int32_t SamplesPerSec = 0;
  int32_t AvgBytesPerSec = 0;
  int16_t BlockAlign = 0;
  int16_t BitsPerSample = 0;
};
static_assert(sizeof(WaveFormatRecord) == 16);

// Looks for "fmt" in the first 200 bytes of a file and reads the 16 bytes behind the chunk
// tag and its length. False when the file or the chunk is not there.
bool ReadWaveFormat(const std::string& fileName, WaveFormatRecord& format);

inline constexpr int kRecordingTemplates = 8;

class frmRecordingWave : public ui::Form {
 public:
  frmRecordingWave();

  ui::MMControl MMControl1{*this, "MMControl1"};
  ui::Label lblMMControl{*this, "lblMMControl",
                         "   Rewind      Forward         Play          Stop         Record"};
  ui::HScrollBar HScroll1{*this, "HScroll1"};
  ui::Label lblFileName{*this, "lblFileName", "File:"};
  ui::Label lblFileNameValue{*this, "lblFileNameValue", ""};
  ui::Label lblDuration{*this, "lblDuration", "Duration [sec]:"};
  ui::Label lblDurationValue{*this, "lblDurationValue", ""};
  ui::Label lblCurrent{*this, "lblCurrent", "Current [sec]:"};
  ui::Label lblCurrentValue{*this, "lblCurrentValue", ""};
  ui::Label lblAudioValue{*this, "lblAudioValue", ""};
  ui::Label lblkHz{*this, "lblkHz", "kHz"};
  ui::Label lblkHzValue{*this, "lblkHzValue", ""};
  ui::Label lblBits{*this, "lblBits", "Bits"};
  ui::Label lblBitsValue{*this, "lblBitsValue", ""};
  ui::CommandButton cmdExit{*this, "cmdExit", "E&xit"};

  ui::Menu mnuFile{*this, "mnuFile", "&File"};
  ui::Menu mnuFileNew{*this, "mnuFileNew", "&New"};
  ui::Menu mnuFileOpen{*this, "mnuFileOpen", "&Open..."};
  ui::Menu mnuFileSave{*this, "mnuFileSave", "&Save"};
  ui::Menu mnuFileSaveAs{*this, "mnuFileSaveAs", "Save &As..."};
  ui::Menu mnuFileExit{*this, "mnuFileExit", "E&xit"};
  ui::Menu mnuSettings{*this, "mnuSettings", "&Settings"};
  ui::Menu mnuItemSettings[kRecordingTemplates]{{*this, "mnuItemSettings", "Mono   8kHz 8Bits", 0},
                                                {*this, "mnuItemSettings", "Mono 11kHz 8Bits", 1},
                                                {*this, "mnuItemSettings", "Mono 22kHz 8Bits", 2},
                                                {*this, "mnuItemSettings", "Mono 44kHz 8Bits", 3},
                                                {*this, "mnuItemSettings", "Mono   8kHz 16Bits", 4},
                                                {*this, "mnuItemSettings", "Mono 11kHz 16Bits", 5},
                                                {*this, "mnuItemSettings", "Mono 22kHz 16Bits", 6},
                                                {*this, "mnuItemSettings", "Mono 44kHz 16Bits", 7}};

  // The template the next New opens.
  int TemplateIndex() const { return template_; }

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void mnuFileNew_Click();
  void mnuFileOpen_Click();
  void mnuFileSave_Click();
  void mnuFileSaveAs_Click();
  void mnuItemSettings_Click(int Index);
  void MMControl1_StatusUpdate();
  void HScroll1_Change();
  void cmdExit_Click();
  // Opens a file on the control and shows its properties; false after MCI_ERROR.
  bool OpenWave(const std::string& fileName);
  void ShowFormat(const std::string& fileName);
  // Saves the recording to the temporary "LISTEN.WAV"; false after MCI_ERROR.
  bool SaveToTemp();
  void MciError();

  int template_ = 4;
  bool showing_ = false;  // the position display sets HScroll1 without seeking
};

}  // namespace kq
