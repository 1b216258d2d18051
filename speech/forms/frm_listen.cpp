#include "speech/forms/frm_listen.h"

#include "dialogs/services.h"
#include "speech/codec/convert.h"
#include "speech/forms/speech_forms.h"

namespace kq {

namespace {

constexpr const char* kSetting = "ListenFileName";

}  // namespace

frmListen::frmListen() : Form("frmListen", "Listen To Speech Files") {
  filPath.SetPattern(speech::kListenFilePattern);
  MMControl1.SetVisible(false);
  drvPath.SetWidth(3000);
  dirPath.SetWidth(3000);
  filPath.SetWidth(3000);
  cmdPlay.SetWidth(1200);
  cmdExit.SetWidth(1200);
  drvPath.OnChange = [this] { drvPath_Change(); };
  dirPath.OnChange = [this] { dirPath_Change(); };
  filPath.OnDblClick = [this] { cmdPlay_Click(); };
  cmdPlay.OnClick = [this] { cmdPlay_Click(); };
  cmdExit.OnClick = [this] { cmdExit_Click(); };

  Place(drvPath, 0, 0);
  Place(dirPath, 1, 0, 4, 1);
  Place(filPath, 0, 1, 5, 1);
  Place(cmdPlay, 0, 2);
  Place(cmdExit, 1, 2);
  Place(MMControl1, 5, 0, 1, 3);
  Move(0, 0, 7800, 4200);
}

void frmListen::Form_Load() {
  CenterForm(*this);
  ShowFileSetting({drvPath, dirPath, filPath}, ReadFileSetting(kSetting));
}

void frmListen::Form_Unload() {
  SaveFileSetting(kSetting, filPath);
  MMControl1.SetCommand("Close");
}

void frmListen::drvPath_Change() {
  FollowDrive({drvPath, dirPath, filPath}, "Change drive");
}

void frmListen::dirPath_Change() {
  FollowDirectory({drvPath, dirPath, filPath});
}

void frmListen::cmdPlay_Click() {
  MMControl1.SetCommand("Close");
  PlaySpeechFile(MMControl1, filPath, "Select a speech file.", "listen.wav");
}

void frmListen::cmdExit_Click() {
  Unload();
}

}  // namespace kq
