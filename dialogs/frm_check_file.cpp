#include "dialogs/frm_check_file.h"

#include "document/state.h"
#include "document/text.h"

namespace kq {

frmCheckFile::frmCheckFile()
    : FileCheckDialog("frmCheckFile", "Check File", 50, "DOESN'T EXIST THEN GOTO") {
  SetUpFileVar(cboFileVar);
  PlaceFileRows(lblPathType, lblPathVar, lblIf, cboFileVar);
  Move(0, 0, 6600, 4400);
}

void frmCheckFile::LoadFields(const RecordSet& rec, bool /*modify*/) {
  LoadFileCheck(rec.CheckFile, cboFileVar);
}

bool frmCheckFile::Accept(std::string& parameters) {
  if (!LabelsGiven()) return false;
  CheckFileRec& r = WorkRecord.CheckFile;
  ReadFileCheck(r, cboFileVar);
  parameters = TypeName(r.PathType) + "\\" + RTrimZ(View(r.PathVar)) + ":  IF " +
               RTrimZ(View(r.FileVar.VarRefName)) + Targets(" DO NOT EXISTS THEN ", r.CheckLabel);
  return true;
}

}  // namespace kq
