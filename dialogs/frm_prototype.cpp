#include "dialogs/frm_prototype.h"

#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/state.h"
#include "document/text.h"

namespace kq {

namespace {

void SetUpList(ui::ComboBox& combo, int width) {
  combo.SetStyle(ui::ComboBox::Style::DropdownList);
  combo.SetWidth(width);
  combo.OnKeyPress = [](int& k) {
    if (k == 13) k = 0;
  };
}

}  // namespace

frmPrototype::frmPrototype() : FuncDialog("frmPrototype", "Prototype", 55) {
  cboVariable.SetWidth(1800);
  cboVariable.OnKeyPress = [this](int& k) { LegalInput(cboVariable, kVarLong, k); };
  for (ui::CheckBox& c : chkChoice) c.SetWidth(1100);
  for (ui::ComboBox& c : cboVar) SetUpList(c, 1800);
  for (ui::ComboBox& c : cboLabel) {
    c.SetWidth(1800);
    ui::ComboBox* combo = &c;
    c.OnKeyPress = [combo](int& k) { LegalLabelKey(*combo, k); };
  }
  SetUpList(cboPath, 1800);
  cboPath.OnClick = [this] { cboPath_Click(); };
  for (ui::ComboBox& c : cboPathVar) SetUpList(c, 1800);
  SetUpList(cboName, 1800);

  // Eight slots of a kind stand in two rows of four beside the caption of the kind.
  PlaceLabelRow();
  Place(lblFunction, 1, 0);
  Place(cboVariable, 1, 1);
  Place(lblSlots[0], 2, 0);
  for (int i = 0; i < 8; ++i) Place(chkChoice[i], 2 + i / 4, 1 + i % 4);
  Place(lblSlots[1], 4, 0);
  for (int i = 0; i < 8; ++i) Place(cboVar[i], 4 + i / 4, 1 + i % 4);
  Place(lblSlots[2], 6, 0);
  for (int i = 0; i < 8; ++i) Place(cboLabel[i], 6 + i / 4, 1 + i % 4);
  Place(lblSlots[3], 8, 0);
  Place(cboPath, 8, 1);
  for (int i = 0; i < 4; ++i) Place(cboPathVar[i], 9, 1 + i);
  Place(lblName, 10, 0);
  Place(cboName, 10, 1);
  PlaceButtonRow(11, 5);
  Move(0, 0, 10200, 5400);
}

int32_t frmPrototype::ShownPathType() {
  const int32_t letter = GetPathTypeLetter(cboPath);
  return letter == 0 ? -1 : letter;
}

void frmPrototype::LoadFields(const RecordSet& rec, bool /*modify*/) {
  const PrototypeRec& r = rec.Prototype;
  GetListBoxVar(true, false, false, cboVariable, r.ProtoFunction);
  for (int i = 0; i < 8; ++i) {
    chkChoice[i].SetValue(r.ProtoCheck[i] != 0 ? 1 : 0);
    GetListBoxVar(true, true, true, cboVar[i], r.ProtoVar[i]);
    GetListBoxLabel(cboLabel[i], View(r.ProtoLabel[i]));
  }
  // A record without a path type shows the first one declared.
  GetListBoxPath(cboPath, kPathExport, r.PathType >= kPathExport ? r.PathType : -1);
  for (int i = 0; i < 4; ++i)
    GetListBoxPathVar(cboPathVar[i], ShownPathType(), View(r.ProtoPath[i]));
  GetListBoxDBTbl(cboName, View(r.TableName));
}

void frmPrototype::cboPath_Click() {
  for (ui::ComboBox& c : cboPathVar) GetListBoxPathVar(c, ShownPathType(), "");
}

bool frmPrototype::Accept(std::string& parameters) {
  PrototypeRec& r = WorkRecord.Prototype;
  // Nothing is refused: a typed function value that is not a whole number leaves the
  // field as it was.
  AssignListBoxVar(cboVariable, kVarLong, r.ProtoFunction);
  for (int i = 0; i < 8; ++i) r.ProtoCheck[i] = chkChoice[i].Value();
  for (int i = 0; i < 8; ++i) AssignListBoxVar(cboVar[i], -1, r.ProtoVar[i]);
  for (int i = 0; i < 8; ++i) SetField(r.ProtoLabel[i], LabelText(cboLabel[i]));
  r.PathType = GetPathTypeLetter(cboPath);
  for (int i = 0; i < 4; ++i) SetField(r.ProtoPath[i], RTrim(cboPathVar[i].Text()));
  SetField(r.TableName, cboName.Text());

  // Every piece is closed by a blank but the table's, which keeps the field's NUL.
  std::string text = "F=" + RTrimZ(View(r.ProtoFunction.VarRefName)) + " ";
  for (int i = 0; i < 8; ++i) {
    if (r.ProtoCheck[i] != 0) text += "C" + Num(i) + "=Yes ";
  }
  for (int i = 0; i < 8; ++i) {
    if (!FieldEmpty(View(r.ProtoVar[i].VarRefName))) {
      text += "V" + Num(i) + "=" + RTrimZ(View(r.ProtoVar[i].VarRefName)) + " ";
    }
  }
  for (int i = 0; i < 8; ++i) {
    if (!FieldEmpty(View(r.ProtoLabel[i]))) {
      text += "L" + Num(i) + "=" + RTrimZ(View(r.ProtoLabel[i])) + " ";
    }
  }
  if (r.PathType >= kPathExport && r.PathType <= kPathGeneral) {
    text += "PT=" + RTrim(Row(PathTypeNames[r.PathType - kPathExport])) + " ";
  }
  for (int i = 0; i < 4; ++i) {
    if (!FieldEmpty(View(r.ProtoPath[i]))) {
      text += "PV" + Num(i) + "=" + RTrimZ(View(r.ProtoPath[i])) + " ";
    }
  }
  if (!FieldEmpty(View(r.TableName))) text += "DB=" + RTrim(View(r.TableName));
  parameters = text;
  return true;
}

}  // namespace kq
