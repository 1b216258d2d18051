#include "dialogs/frm_connect_tbl.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

frmConnectTbl::frmConnectTbl() : TableDialog("frmConnectTbl", "Connect Table", 24) {
  cboTimeout.SetStyle(ui::ComboBox::Style::DropdownList);
  cboTimeout.SetWidth(800);
  cboTimeout.OnKeyPress = [](int& k) { SwallowEnter(k); };
  for (ui::ComboBox& c : cboLabel) SetUpLabelCombo(c);
  PlaceNameRow();
  Place(lblTimeout1, 2, 0);
  Place(cboTimeout, 2, 1);
  Place(lblBusy, 3, 0);
  Place(cboLabel[0], 3, 1, 1, 2);
  Place(lblError, 4, 0);
  Place(cboLabel[1], 4, 1, 1, 2);
  PlaceButtonRow(5, 3);
  Move(0, 0, 4800, 3300);
}

void frmConnectTbl::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const ConnectTableRec& r = rec.ConnectTable;
  GetListBoxDBTbl(cboName, View(r.TableName));
  GetListBoxNumber(cboTimeout, 1, 14, 1, r.TimeoutSec);
  GetListBoxLabel(cboLabel[0], View(r.BusyLabel.LabelRefName));
  GetListBoxLabel(cboLabel[1], View(r.ErrorLabel.LabelRefName));
}

bool frmConnectTbl::Accept(std::string& parameters) {
  if (!RequireLabel(cboLabel[0]) || !RequireLabel(cboLabel[1])) return false;
  ConnectTableRec& r = WorkRecord.ConnectTable;
  SetField(r.TableName, cboName.Text());
  r.TimeoutSec = static_cast<int32_t>(Val(cboTimeout.Text()));
  SetField(r.BusyLabel.LabelRefName, LabelText(cboLabel[0]));
  SetField(r.ErrorLabel.LabelRefName, LabelText(cboLabel[1]));
  parameters = RTrimZ(View(r.TableName)) + " T=" + Num(r.TimeoutSec) + "sec.";
  return true;
}

std::string frmConnectTbl::Decorate(std::string line) {
  const ConnectTableRec& r = WorkRecord.ConnectTable;
  line = AppendLabelParm(line, " B=", View(r.BusyLabel.LabelRefName));
  return AppendLabelParm(line, " E=", View(r.ErrorLabel.LabelRefName));
}

}  // namespace kq
