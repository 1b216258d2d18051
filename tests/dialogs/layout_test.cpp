// Every form declares a layout from which the desktop binding builds it: each control a
// person uses has a place, and no two share a cell.
#include <memory>
#include <set>

#include "dialogs/frm_assign.h"
#include "dialogs/frm_assign_pa.h"
#include "dialogs/frm_calculate.h"
#include "dialogs/frm_call_out.h"
#include "dialogs/frm_check_file.h"
#include "dialogs/frm_check_path.h"
#include "dialogs/frm_condition.h"
#include "dialogs/frm_ct_bus_con.h"
#include "dialogs/frm_def_path.h"
#include "dialogs/frm_def_var.h"
#include "dialogs/frm_delay.h"
#include "dialogs/frm_delete_file.h"
#include "dialogs/frm_dial_no.h"
#include "dialogs/frm_func.h"
#include "dialogs/frm_get_ch_no.h"
#include "dialogs/frm_get_date.h"
#include "dialogs/frm_get_day_of_week.h"
#include "dialogs/frm_get_key.h"
#include "dialogs/frm_get_time.h"
#include "dialogs/frm_gosub.h"
#include "dialogs/frm_goto.h"
#include "dialogs/frm_in_str.h"
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
#include "dialogs/frm_sound_file_counter.h"
#include "dialogs/frm_trim_str.h"
#include "dialogs/frm_var_exp.h"
#include "dialogs/frm_voice.h"
#include "dialogs/frm_wait_for_call.h"
#include "dialogs/frm_wait_for_key.h"
#include "tests/dialogs/dialog_fixture.h"

namespace kqtest {
namespace {

void CollectPlaced(const ui::Layout& layout, std::set<const ui::Control*>& placed,
                   const std::string& where) {
  std::set<std::pair<int, int>> cells;
  for (const ui::LayoutItem& item : layout.Items()) {
    EXPECT_TRUE(placed.insert(item.control).second) << item.control->Name() << " placed twice";
    for (int r = item.row; r < item.row + item.rowSpan; ++r) {
      for (int c = item.column; c < item.column + item.columnSpan; ++c) {
        EXPECT_TRUE(cells.insert({r, c}).second)
            << where << ": cell " << r << "," << c << " taken again by " << item.control->Name();
      }
    }
    if (item.control->Kind() == ui::ControlKind::Frame) {
      CollectPlaced(static_cast<const ui::Frame*>(item.control)->layout(), placed,
                    item.control->Name());
    }
  }
}

void ExpectLaidOut(const ui::Form& form) {
  std::set<const ui::Control*> placed;
  CollectPlaced(form.layout(), placed, form.Name());
  for (const ui::Control* c : form.Controls()) {
    if (!c->Visible()) continue;  // hidden companions are not shown
    EXPECT_TRUE(placed.count(c)) << form.Name() << "." << c->Name() << " has no place";
  }
  EXPECT_GT(form.Width(), 0);
  EXPECT_GT(form.Height(), 0);
}

TEST(DialogLayout, EveryFormPlacesEveryVisibleControlOnce) {
  std::vector<std::unique_ptr<ui::Form>> forms;
  forms.push_back(std::make_unique<kq::frmCondition>());
  forms.push_back(std::make_unique<kq::frmCheckPath>());
  forms.push_back(std::make_unique<kq::frmCheckFile>());
  forms.push_back(std::make_unique<kq::frmDeleteFile>());
  forms.push_back(std::make_unique<kq::frmSoundFileCounter>());
  forms.push_back(std::make_unique<kq::frmRun>());
  forms.push_back(std::make_unique<kq::frmVarExp>());
  forms.push_back(std::make_unique<kq::frmPrototype>());
  forms.push_back(std::make_unique<kq::frmDelay>());
  forms.push_back(std::make_unique<kq::frmGosub>());
  forms.push_back(std::make_unique<kq::frmGoto>());
  forms.push_back(std::make_unique<kq::frmRandom>());
  forms.push_back(std::make_unique<kq::frmRemark>());
  forms.push_back(std::make_unique<kq::frmReturn>());
  forms.push_back(std::make_unique<kq::frmFunc>());
  forms.push_back(std::make_unique<kq::frmDefVar>());
  forms.push_back(std::make_unique<kq::frmDefPath>());
  forms.push_back(std::make_unique<kq::frmAssign>());
  forms.push_back(std::make_unique<kq::frmAssignPa>());
  forms.push_back(std::make_unique<kq::frmCalculate>());
  forms.push_back(std::make_unique<kq::frmGetChNo>());
  forms.push_back(std::make_unique<kq::frmGetDate>());
  forms.push_back(std::make_unique<kq::frmGetDayOfWeek>());
  forms.push_back(std::make_unique<kq::frmGetTime>());
  forms.push_back(std::make_unique<kq::frmInStr>());
  forms.push_back(std::make_unique<kq::frmLeftStr>());
  forms.push_back(std::make_unique<kq::frmLenStr>());
  forms.push_back(std::make_unique<kq::frmRightStr>());
  forms.push_back(std::make_unique<kq::frmTrimStr>());
  forms.push_back(std::make_unique<kq::frmWaitForCall>());
  forms.push_back(std::make_unique<kq::frmOnOffHook>());
  forms.push_back(std::make_unique<kq::frmDialNo>());
  forms.push_back(std::make_unique<kq::frmCallOut>());
  forms.push_back(std::make_unique<kq::frmRSwitch>());
  forms.push_back(std::make_unique<kq::frmCTBusCon>());
  forms.push_back(std::make_unique<kq::frmSayFile>());
  forms.push_back(std::make_unique<kq::frmSayNo>());
  forms.push_back(std::make_unique<kq::frmVoice>());
  forms.push_back(std::make_unique<kq::frmGetKey>());
  forms.push_back(std::make_unique<kq::frmWaitForKey>());
  forms.push_back(std::make_unique<kq::frmRecordSound>());
  for (const auto& f : forms) ExpectLaidOut(*f);
}

}  // namespace
}  // namespace kqtest
