#include "dialogs/frm_check_path.h"

#include "document/state.h"
#include "document/text.h"

namespace kq {

frmCheckPath::frmCheckPath()
    : FileCheckDialog("frmCheckPath", "Check Path", 49, "DOESN'T EXIST THEN GOTO") {
  PlaceLabelRow();
  Place(lblCondition, 1, 0);
  Place(lblSelectPath, 2, 0);
  Place(cboPath, 2, 1);
  Place(lblIf, 3, 0);
  Place(cboPathVar, 3, 1);
  Place(lblThenLabel, 4, 0);
  Place(cboLabel[0], 4, 1);
  Place(lblElseLabel, 5, 0);
  Place(cboLabel[1], 5, 1);
  PlaceButtonRow(6, 3);
  Move(0, 0, 6600, 3900);
}

void frmCheckPath::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const CheckPathRec& r = rec.CheckPath;
  LoadPath(r.PathType, View(r.PathVar));
  LoadLabels(r.CheckLabel);
}

bool frmCheckPath::Accept(std::string& parameters) {
  if (!LabelsGiven()) return false;
  CheckPathRec& r = WorkRecord.CheckPath;
  ReadPath(r.PathType, r.PathVar);
  ReadLabels(r.CheckLabel);
  parameters = TypeName(r.PathType) + ":  IF " + RTrimZ(View(r.PathVar)) +
               Targets(" DO NOT EXISTS THEN ", r.CheckLabel);
  return true;
}

}  // namespace kq
