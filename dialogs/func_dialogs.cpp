// The dialog of each function number. Functions whose dialogs are not here yet answer
// false, and GetFuncParm says so.
#include "dialogs/frm_assign.h"
#include "dialogs/frm_assign_pa.h"
#include "dialogs/frm_calculate.h"
#include "dialogs/frm_condition.h"
#include "dialogs/frm_delay.h"
#include "dialogs/frm_get_ch_no.h"
#include "dialogs/frm_get_date.h"
#include "dialogs/frm_get_day_of_week.h"
#include "dialogs/frm_get_time.h"
#include "dialogs/frm_gosub.h"
#include "dialogs/frm_goto.h"
#include "dialogs/frm_in_str.h"
#include "dialogs/frm_left_str.h"
#include "dialogs/frm_len_str.h"
#include "dialogs/frm_random.h"
#include "dialogs/frm_remark.h"
#include "dialogs/frm_return.h"
#include "dialogs/frm_right_str.h"
#include "dialogs/frm_trim_str.h"
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
    case 0:
      return Show<frmAssign>();
    case 1:
      return Show<frmAssignPa>();
    case 2:
      return Show<frmCalculate>();
    case 3:
      return Show<frmCondition>();
    case 4:
      return Show<frmDelay>();
    case 6:
      return Show<frmGetDate>();
    case 8:
      return Show<frmGetTime>();
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
    case 36:
      return Show<frmGetDayOfWeek>();
    case 41:
      return Show<frmGetChNo>();
    case 44:
      return Show<frmTrimStr>();
    case 45:
      return Show<frmLenStr>();
    case 46:
      return Show<frmRightStr>();
    case 47:
      return Show<frmLeftStr>();
    case 48:
      return Show<frmInStr>();
    default:
      return false;
  }
}

}  // namespace kq
