// The dialog of each function number. Functions whose dialogs are not here yet answer
// false, and GetFuncParm says so.
#include "dialogs/frm_add_rec.h"
#include "dialogs/frm_assign.h"
#include "dialogs/frm_assign_pa.h"
#include "dialogs/frm_calculate.h"
#include "dialogs/frm_call_out.h"
#include "dialogs/frm_check_file.h"
#include "dialogs/frm_check_path.h"
#include "dialogs/frm_condition.h"
#include "dialogs/frm_connect_tbl.h"
#include "dialogs/frm_ct_bus_con.h"
#include "dialogs/frm_delay.h"
#include "dialogs/frm_delete_file.h"
#include "dialogs/frm_delete_rec.h"
#include "dialogs/frm_dial_no.h"
#include "dialogs/frm_disconnect_tbl.h"
#include "dialogs/frm_empty_tbl.h"
#include "dialogs/frm_get_ch_no.h"
#include "dialogs/frm_get_date.h"
#include "dialogs/frm_get_day_of_week.h"
#include "dialogs/frm_get_first_rec.h"
#include "dialogs/frm_get_key.h"
#include "dialogs/frm_get_last_rec.h"
#include "dialogs/frm_get_next_rec.h"
#include "dialogs/frm_get_no_rec.h"
#include "dialogs/frm_get_prev_rec.h"
#include "dialogs/frm_get_rec_no.h"
#include "dialogs/frm_get_time.h"
#include "dialogs/frm_gosub.h"
#include "dialogs/frm_goto.h"
#include "dialogs/frm_in_str.h"
#include "dialogs/frm_insert_rec.h"
#include "dialogs/frm_left_str.h"
#include "dialogs/frm_len_str.h"
#include "dialogs/frm_on_off_hook.h"
#include "dialogs/frm_prototype.h"
#include "dialogs/frm_r_switch.h"
#include "dialogs/frm_random.h"
#include "dialogs/frm_record_sound.h"
#include "dialogs/frm_remark.h"
#include "dialogs/frm_return.h"
#include "dialogs/frm_right_str.h"
#include "dialogs/frm_run.h"
#include "dialogs/frm_say_file.h"
#include "dialogs/frm_say_no.h"
#include "dialogs/frm_select_rec.h"
#include "dialogs/frm_sound_file_counter.h"
#include "dialogs/frm_trim_str.h"
#include "dialogs/frm_update_rec.h"
#include "dialogs/frm_var_exp.h"
#include "dialogs/frm_voice.h"
#include "dialogs/frm_wait_for_call.h"
#include "dialogs/frm_wait_for_key.h"
#include "dialogs/func_dialog.h"

namespace kq {

namespace {

template <typename Dialog>
void Show() {
  Dialog dialog;
  dialog.ShowModal();
}

using ShowFn = void (*)();

ShowFn DialogOf(int funcNo) {
  switch (funcNo) {
    case 0:
      return &Show<frmAssign>;
    case 1:
      return &Show<frmAssignPa>;
    case 2:
      return &Show<frmCalculate>;
    case 3:
      return &Show<frmCondition>;
    case 4:
      return &Show<frmDelay>;
    case 5:
      return &Show<frmCallOut>;
    case 6:
      return &Show<frmGetDate>;
    case 7:
      return &Show<frmGetKey>;
    case 8:
      return &Show<frmGetTime>;
    case 9:
      return &Show<frmGosub>;
    case 10:
      return &Show<frmGoto>;
    case 11:
      return &Show<frmRandom>;
    case 12:
      return &Show<frmRecordSound>;
    case 13:
      return &Show<frmRemark>;
    case 14:
      return &Show<frmReturn>;
    case 15:
      return &Show<frmRSwitch>;
    case 16:
      return &Show<frmSayNo>;
    case 17:
      return &Show<frmVarExp>;
    case 18:
      return &Show<frmVoice>;
    case 19:
      return &Show<frmWaitForCall>;
    case 20:
      return &Show<frmWaitForKey>;
    case 21:
      return &Show<frmSayFile>;
    case 24:
      return &Show<frmConnectTbl>;
    case 25:
      return &Show<frmDisconnectTbl>;
    case 26:
      return &Show<frmAddRec>;
    case 27:
      return &Show<frmDeleteRec>;
    case 28:
      return &Show<frmGetFirstRec>;
    case 29:
      return &Show<frmSelectRec>;
    case 30:
      return &Show<frmInsertRec>;
    case 31:
      return &Show<frmGetLastRec>;
    case 32:
      return &Show<frmGetNextRec>;
    case 33:
      return &Show<frmGetPrevRec>;
    case 34:
      return &Show<frmUpdateRec>;
    case 36:
      return &Show<frmGetDayOfWeek>;
    case 37:
      return &Show<frmDialNo>;
    case 38:
      return &Show<frmGetRecNo>;
    case 39:
      return &Show<frmGetNoRec>;
    case 40:
      return &Show<frmEmptyTbl>;
    case 41:
      return &Show<frmGetChNo>;
    case 43:
      return &Show<frmOnOffHook>;
    case 44:
      return &Show<frmTrimStr>;
    case 45:
      return &Show<frmLenStr>;
    case 46:
      return &Show<frmRightStr>;
    case 47:
      return &Show<frmLeftStr>;
    case 48:
      return &Show<frmInStr>;
    case 49:
      return &Show<frmCheckPath>;
    case 50:
      return &Show<frmCheckFile>;
    case 51:
      return &Show<frmDeleteFile>;
    case 52:
      return &Show<frmSoundFileCounter>;
    case 53:
      return &Show<frmRun>;
    case 54:
      return &Show<frmCTBusCon>;
    case 55:
      return &Show<frmPrototype>;
    default:
      return nullptr;
  }
}

}  // namespace

bool HasFuncDialog(int funcNo) {
  return DialogOf(funcNo) != nullptr;
}

bool ShowFuncDialog(int funcNo) {
  const ShowFn show = DialogOf(funcNo);
  if (show == nullptr) return false;
  show();
  return true;
}

}  // namespace kq
