#include "dialogs/frm_delete_file.h"

#include "document/state.h"
#include "document/text.h"

namespace kq {

frmDeleteFile::frmDeleteFile()
    : FileCheckDialog("frmDeleteFile", "Delete File", 51, "IF THE FILE WASN'T DELETED THEN GOTO") {
  SetUpFileVar(cboFileVar);
  PlaceLabelRow();
  Place(lblCondition, 1, 0);
  Place(lblPathType, 2, 0);
  Place(cboPath, 2, 1);
  Place(lblPathVar, 3, 0);
  Place(cboPathVar, 3, 1);
  Place(lblFileName, 4, 0);
  Place(cboFileVar, 4, 1);
  Place(lblThenLabel, 5, 0);
  Place(cboLabel[0], 5, 1);
  Place(lblElseLabel, 6, 0);
  Place(cboLabel[1], 6, 1);
  PlaceButtonRow(7, 3);
  Move(0, 0, 7200, 4400);
}

// All five path types are offered here, though any of the first four lets the dialog open.
void frmDeleteFile::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const CheckFileRec& r = rec.DeleteFile;
  LoadPath(r.PathType, View(r.PathVar));
  LoadFileVar(cboFileVar, r.FileVar);
  LoadLabels(r.CheckLabel);
}

bool frmDeleteFile::Accept(std::string& parameters) {
  if (!LabelsGiven()) return false;
  CheckFileRec& r = WorkRecord.DeleteFile;
  ReadPath(r.PathType, r.PathVar);
  ReadFileVar(cboFileVar, r.FileVar);
  ReadLabels(r.CheckLabel);
  parameters = TypeName(r.PathType) + "\\" + RTrimZ(View(r.PathVar)) + "\\" +
               RTrimZ(View(r.FileVar.VarRefName)) +
               Targets(":  IF THE FILE WASN'T DELETED THEN ", r.CheckLabel);
  return true;
}

}  // namespace kq
