#include "dialogs/frm_delete_file.h"

#include "document/state.h"
#include "document/text.h"

namespace kq {

frmDeleteFile::frmDeleteFile()
    : FileCheckDialog("frmDeleteFile", "Delete File", 51, "IF THE FILE WASN'T DELETED THEN GOTO") {
  SetUpFileVar(cboFileVar);
  PlaceFileRows(lblPathType, lblPathVar, lblFileName, cboFileVar);
  Move(0, 0, 7200, 4400);
}

// All five path types are offered here, though any of the first four lets the dialog open.
void frmDeleteFile::LoadFields(const RecordSet& rec, bool /*modify*/) {
  LoadFileCheck(rec.DeleteFile, cboFileVar);
}

bool frmDeleteFile::Accept(std::string& parameters) {
  if (!LabelsGiven()) return false;
  CheckFileRec& r = WorkRecord.DeleteFile;
  ReadFileCheck(r, cboFileVar);
  parameters = TypeName(r.PathType) + "\\" + RTrimZ(View(r.PathVar)) + "\\" +
               RTrimZ(View(r.FileVar.VarRefName)) +
               Targets(":  IF THE FILE WASN'T DELETED THEN ", r.CheckLabel);
  return true;
}

}  // namespace kq
