#include "editor/tool_forms.h"

#include "speech/forms/frm_about.h"
#include "speech/forms/frm_convert.h"
#include "speech/forms/frm_listen.h"
#include "speech/forms/frm_recording_wave.h"

namespace kq {

void ShowRecordingWave() {
  frmRecordingWave form;
  form.ShowModal();
}

void ShowListen() {
  frmListen form;
  form.ShowModal();
}

void ShowConvert() {
  frmConvert form;
  form.ShowModal();
}

void ShowAbout() {
  frmAbout form;
  form.ShowModal();
}

}  // namespace kq
