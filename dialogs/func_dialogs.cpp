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
#include "document/functions.h"

namespace kq {

namespace {

template <typename Dialog>
void Show() {
  Dialog dialog;
  dialog.ShowModal();
}

using ShowFn = void (*)();

ShowFn DialogOf(int funcNo) {
  switch (ToFn(funcNo)) {
    case Fn::Assign:
      return &Show<frmAssign>;
    case Fn::AssignPath:
      return &Show<frmAssignPa>;
    case Fn::Calculate:
      return &Show<frmCalculate>;
    case Fn::Condition:
      return &Show<frmCondition>;
    case Fn::Delay:
      return &Show<frmDelay>;
    case Fn::CallOut:
      return &Show<frmCallOut>;
    case Fn::GetDate:
      return &Show<frmGetDate>;
    case Fn::GetKeys:
      return &Show<frmGetKey>;
    case Fn::GetTime:
      return &Show<frmGetTime>;
    case Fn::Gosub:
      return &Show<frmGosub>;
    case Fn::Goto:
      return &Show<frmGoto>;
    case Fn::Random:
      return &Show<frmRandom>;
    case Fn::RecordSound:
      return &Show<frmRecordSound>;
    case Fn::Remark:
      return &Show<frmRemark>;
    case Fn::Return:
      return &Show<frmReturn>;
    case Fn::RSwitch:
      return &Show<frmRSwitch>;
    case Fn::SayNumber:
      return &Show<frmSayNo>;
    case Fn::VariableExport:
      return &Show<frmVarExp>;
    case Fn::Voice:
      return &Show<frmVoice>;
    case Fn::WaitForCall:
      return &Show<frmWaitForCall>;
    case Fn::WaitForKey:
      return &Show<frmWaitForKey>;
    case Fn::SayFile:
      return &Show<frmSayFile>;
    case Fn::ConnectTable:
      return &Show<frmConnectTbl>;
    case Fn::DisconnectTable:
      return &Show<frmDisconnectTbl>;
    case Fn::AddRecord:
      return &Show<frmAddRec>;
    case Fn::DeleteRecord:
      return &Show<frmDeleteRec>;
    case Fn::GetFirstRecord:
      return &Show<frmGetFirstRec>;
    case Fn::SelectRecords:
      return &Show<frmSelectRec>;
    case Fn::InsertRecord:
      return &Show<frmInsertRec>;
    case Fn::GetLastRecord:
      return &Show<frmGetLastRec>;
    case Fn::GetNextRecord:
      return &Show<frmGetNextRec>;
    case Fn::GetPrevRecord:
      return &Show<frmGetPrevRec>;
    case Fn::UpdateRecord:
      return &Show<frmUpdateRec>;
    case Fn::GetDayOfWeek:
      return &Show<frmGetDayOfWeek>;
    case Fn::DialNumber:
      return &Show<frmDialNo>;
    case Fn::GetRecordNo:
      return &Show<frmGetRecNo>;
    case Fn::GetNoOfRec:
      return &Show<frmGetNoRec>;
    case Fn::EmptyTable:
      return &Show<frmEmptyTbl>;
    case Fn::GetChannelNo:
      return &Show<frmGetChNo>;
    case Fn::OnOffHook:
      return &Show<frmOnOffHook>;
    case Fn::TrimString:
      return &Show<frmTrimStr>;
    case Fn::LenString:
      return &Show<frmLenStr>;
    case Fn::RightString:
      return &Show<frmRightStr>;
    case Fn::LeftString:
      return &Show<frmLeftStr>;
    case Fn::InString:
      return &Show<frmInStr>;
    case Fn::CheckPath:
      return &Show<frmCheckPath>;
    case Fn::CheckFile:
      return &Show<frmCheckFile>;
    case Fn::DeleteFile:
      return &Show<frmDeleteFile>;
    case Fn::SoundFileCount:
      return &Show<frmSoundFileCounter>;
    case Fn::Run:
      return &Show<frmRun>;
    case Fn::CTBusConnect:
      return &Show<frmCTBusCon>;
    case Fn::Prototype:
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
