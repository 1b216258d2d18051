// The forms of the speech tools and the About box, as the main window's menus show them.
// Each shows its form modally and reports nothing back.
#pragma once

namespace kq {

void ShowRecordingWave();  // frmRecordingWave
void ShowListen();         // frmListen
void ShowConvert();        // frmConvert
void ShowAbout();          // frmAbout

}  // namespace kq
