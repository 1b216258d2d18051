#include "check/forms/install.h"

#include "check/forms/frm_call_flow.h"
#include "check/forms/frm_check_all.h"
#include "editor/extra_windows.h"

namespace kq {

void InstallCheckWindows() {
  ExtraWindowHooks().checkAll = [] { ShowCheckAll(); };
  ExtraWindowHooks().callFlow = [] { ShowCallFlow(); };
}

}  // namespace kq
