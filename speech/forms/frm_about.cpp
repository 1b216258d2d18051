#include "speech/forms/frm_about.h"

#include "dialogs/services.h"
#include "document/kqx_format.h"
#include "document/state.h"
#include "speech/forms/speech_forms.h"
#include "speech/forms/system_info.h"

namespace kq {

namespace {

constexpr int kHiddenFunctionsKey = '~';

}  // namespace

frmAbout::frmAbout() : Form("frmAbout", "About KQEdit") {
  MMControl1.SetVisible(false);
  cmdExit.SetDefault(true);
  cmdExit.SetWidth(1200);
  cmdExit.OnClick = [this] { cmdExit_Click(); };
  cmdExit.OnKeyPress = [this](int& k) { cmdExit_KeyPress(k); };

  int row = 0;
  for (ui::Label* l :
       {&lblTitle, &lblVersion, &lblFileVersion, &lblOperatingSystem, &lblCpu, &lblTotalPhysical,
        &lblAvailablePhysical, &lblTotalVirtual, &lblAvailableVirtual}) {
    Place(*l, row++, 0);
  }
  Place(cmdExit, row, 1);
  Place(MMControl1, row, 0);
  Move(0, 0, 6000, 4200);
}

void frmAbout::Form_Load() {
  CenterForm(*this);
  lblTitle.SetCaption("KQEdit");
  lblVersion.SetCaption(std::string("Version ") + KQ_PROGRAM_VERSION);
  lblFileVersion.SetCaption(std::string("KQX file format version ") + kCurrentVersion);
  const SystemInfo info = ReadSystemInfo();
  lblOperatingSystem.SetCaption("Operating System: " + info.operatingSystem);
  lblCpu.SetCaption("CPU: " + info.processor);
  lblTotalPhysical.SetCaption("Total Physical Memory: " + FormatThousands(info.totalPhysical));
  lblAvailablePhysical.SetCaption("Available Physical Memory: " +
                                  FormatThousands(info.availablePhysical));
  lblTotalVirtual.SetCaption("Total Virtual Memory: " + FormatThousands(info.totalVirtual));
  lblAvailableVirtual.SetCaption("Available Virtual Memory: " +
                                 FormatThousands(info.availableVirtual));
  PlayWave(MMControl1, DataFile("about.wav"));
}

void frmAbout::Form_Unload() {
  MMControl1.SetCommand("Close");
}

void frmAbout::cmdExit_Click() {
  Unload();
}

void frmAbout::cmdExit_KeyPress(int& keyAscii) {
  if (keyAscii == kHiddenFunctionsKey) ShowAllFunctions = !ShowAllFunctions;
}

}  // namespace kq
