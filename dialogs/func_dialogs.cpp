// The dialog of each function number. Functions whose dialogs are not here yet answer
// false, and GetFuncParm says so.
#include "dialogs/frm_condition.h"
#include "dialogs/frm_delay.h"
#include "dialogs/frm_gosub.h"
#include "dialogs/frm_goto.h"
#include "dialogs/frm_random.h"
#include "dialogs/frm_remark.h"
#include "dialogs/frm_return.h"
#include "dialogs/func_dialog.h"

namespace kq {

namespace {

template <typename Dialog>
bool Show() {
  Dialog dialog;
  dialog.ShowModal();
  return true;
}

}  // namespace

bool ShowFuncDialog(int funcNo) {
  switch (funcNo) {
    case 3:
      return Show<frmCondition>();
    case 4:
      return Show<frmDelay>();
    case 9:
      return Show<frmGosub>();
    case 10:
      return Show<frmGoto>();
    case 11:
      return Show<frmRandom>();
    case 13:
      return Show<frmRemark>();
    case 14:
      return Show<frmReturn>();
    default:
      return false;
  }
}

}  // namespace kq
