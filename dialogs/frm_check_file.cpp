#include "dialogs/frm_check_file.h"

#include "document/state.h"
#include "document/text.h"

namespace kq {

frmCheckFile::frmCheckFile()
    : FileCheckDialog("frmCheckFile", "Check File", 50, "DOESN'T EXIST THEN GOTO") {
  SetUpFileVar(cboFileVar);
  PlaceLabelRow();
  Place(lblCondition, 1, 0);
  Place(lblPathType, 2, 0);
  Place(cboPath, 2, 1);
  Place(lblPathVar, 3, 0);
  Place(cboPathVar, 3, 1);
  Place(lblIf, 4, 0);
  Place(cboFileVar, 4, 1);
  Place(lblThenLabel, 5, 0);
  Place(cboLabel[0], 5, 1);
  Place(lblElseLabel, 6, 0);
  Place(cboLabel[1], 6, 1);
  PlaceButtonRow(7, 3);
  Move(0, 0, 6600, 4400);
}

void frmCheckFile::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const CheckFileRec& r = rec.CheckFile;
  LoadPath(r.PathType, View(r.PathVar));
  LoadFileVar(cboFileVar, r.FileVar);
  LoadLabels(r.CheckLabel);
}

bool frmCheckFile::Accept(std::string& parameters) {
  if (!LabelsGiven()) return false;
  CheckFileRec& r = WorkRecord.CheckFile;
  ReadPath(r.PathType, r.PathVar);
  ReadFileVar(cboFileVar, r.FileVar);
  ReadLabels(r.CheckLabel);
  parameters = TypeName(r.PathType) + "\\" + RTrimZ(View(r.PathVar)) + ":  IF " +
               RTrimZ(View(r.FileVar.VarRefName)) + Targets(" DO NOT EXISTS THEN ", r.CheckLabel);
  return true;
}

}  // namespace kq
