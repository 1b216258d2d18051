// Until the speech tools and the About box exist, their menus show nothing and change
// nothing.
#include "editor/tool_forms.h"

namespace kq {

void ShowRecordingWave() {}
void ShowListen() {}
void ShowConvert() {}
void ShowAbout() {}

}  // namespace kq
