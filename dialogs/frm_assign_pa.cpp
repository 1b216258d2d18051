#include "dialogs/frm_assign_pa.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

frmAssignPa::frmAssignPa() : FuncDialog("frmAssignPa", "Assign Path", 1) {
  cboPath.SetStyle(ui::ComboBox::Style::DropdownList);
  cboPath.SetWidth(1800);
  cboPath.OnClick = [this] { cboPath_Click(); };
  cboPath.OnKeyPress = [](int& k) { SwallowEnter(k); };
  for (ui::ComboBox& c : cboPathVar) {
    c.SetStyle(ui::ComboBox::Style::DropdownList);
    c.SetWidth(2400);
    c.OnKeyPress = [](int& k) { SwallowEnter(k); };
  }
  PlaceLabelRow();
  Place(lblSelectPath, 1, 0);
  Place(cboPath, 1, 1);
  Place(lblAssignPath, 2, 0, 1, 3);
  Place(cboPathVar[0], 3, 0);
  Place(lblEqual, 3, 1);
  Place(cboPathVar[1], 3, 2);
  PlaceButtonRow(4, 3);
  Move(0, 0, 6600, 3000);
}

int32_t frmAssignPa::ShownPathType() {
  const int32_t letter = GetPathTypeLetter(cboPath);
  return letter == 0 ? -1 : letter;
}

void frmAssignPa::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const AssignPathRec& r = rec.AssignPath;
  GetListBoxPath(cboPath, kPathExport, r.PathType);
  // Both variables are of the type the combo shows: the stored one, or for a new line
  // the first type declared.
  GetListBoxPathVar(cboPathVar[0], ShownPathType(), View(r.TargetPath));
  GetListBoxPathVar(cboPathVar[1], ShownPathType(), View(r.SourcePath));
}

void frmAssignPa::cboPath_Click() {
  for (ui::ComboBox& c : cboPathVar) GetListBoxPathVar(c, ShownPathType(), "");
}

bool frmAssignPa::Accept(std::string& parameters) {
  AssignPathRec& r = WorkRecord.AssignPath;
  r.PathType = GetPathTypeLetter(cboPath);
  SetField(r.TargetPath, RTrim(cboPathVar[0].Text()));
  SetField(r.SourcePath, RTrim(cboPathVar[1].Text()));
  parameters = RTrim(cboPath.Text()) + ":  " + RTrimZ(View(r.TargetPath)) + " = " +
               RTrimZ(View(r.SourcePath));
  return true;
}

}  // namespace kq
