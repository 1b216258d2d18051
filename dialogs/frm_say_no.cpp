#include "dialogs/frm_say_no.h"

#include "dialogs/data_slots.h"
#include "dialogs/prompt_parts.h"
#include "dialogs/services.h"
#include "document/catalogue.h"
#include "document/header.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {
constexpr VarSlot kNumber{true, true, true, -1, -1};
// A pattern no file matches: a list without a path shows nothing.
constexpr const char* kNoFiles = "12345678.123";
}  // namespace

frmSayNo::frmSayNo() : FuncDialog("frmSayNo", "Say Number", 16) {
  SetUpVarSlot(cboVariable, kNumber);
  cboVariable.OnClick = [this] { cboVariable_Click(); };
  cboLayout.SetStyle(ui::ComboBox::Style::DropdownList);
  cboLayout.SetWidth(1200);
  cboLayout.OnKeyPress = [](int& k) { SwallowEnter(k); };
  for (int i = 0; i < 3; ++i) {
    cboPathVar[i].SetStyle(ui::ComboBox::Style::DropdownList);
    cboPathVar[i].SetWidth(2400);
    cboPathVar[i].OnKeyPress = [](int& k) { SwallowEnter(k); };
  }
  for (int i = 0; i < 2; ++i) {
    chkPlay[i].SetWidth(1800);
    chkPlay[i].OnClick = [this, i] { chkPlay_Click(i); };
    cboPathVar[i + 1].OnClick = [this, i] { cboPathVar_Click(i); };
    filVoice[i].OnClick = [this, i] { VoiceFileFits(i); };
    filVoice[i].SetWidth(2400);
    filVoice[i].SetPattern(kNoFiles);
    cboPathVar[i + 1].SetEnabled(false);
    filVoice[i].SetEnabled(false);
  }
  SetUpLabelCombo(cboLabel);
  chkDisableHangup.SetWidth(3000);
  PlaceLabelRow();
  Place(lblVariable, 1, 0);
  Place(cboVariable, 1, 1);
  Place(lblLayout, 2, 0);
  Place(cboLayout, 2, 1);
  Place(lblNumberPath, 3, 0);
  Place(cboPathVar[0], 3, 1);
  Place(lblPlayVoiceFile, 4, 0);
  for (int i = 0; i < 2; ++i) {
    const int column = 1 + 2 * i;
    Place(chkPlay[i], 4, column, 1, 2);
    Place(lblVoicePath[i], 5, column);
    Place(cboPathVar[i + 1], 5, column + 1);
    Place(lblVoiceFile[i], 6, column);
    Place(filVoice[i], 6, column + 1, 3, 1);
  }
  Place(chkDisableHangup, 9, 0, 1, 2);
  Place(lblHangup, 10, 0);
  Place(cboLabel, 10, 1);
  PlaceButtonRow(11, 5);
  Move(0, 0, 9000, 6200);
}

int32_t frmSayNo::ShownType() {
  if (cboVariable.ListCount() == 0) return kVarNone;
  return PrgHdr.Variable[GetListboxVarNo(cboVariable)].VarRefType;
}

void frmSayNo::GetListBoxLayout(int32_t layout) {
  const int32_t type = ShownType();
  int32_t first = 0;
  switch (type) {
    case kVarLong:
    case kVarDouble:
      break;
    case kVarString:
      first = 1;  // a text has no "All"
      break;
    default:
      ui::ProgramError("Illegal Variable.Type " + Str(int64_t{type}) +
                       " in Private GetListBoxLayout.");
  }
  cboLayout.Clear();
  for (int32_t row = first; row < 3; ++row) cboLayout.AddItem(RTrim(Row(SayLayoutNames[row])));
  const int32_t index = layout - first;
  if (index >= 0 && index < cboLayout.ListCount()) cboLayout.SetListIndex(index);
}

void frmSayNo::EnableAfterPeriod() {
  const bool decimals = ShownType() == kVarDouble;
  chkPlay[0].SetEnabled(decimals);
  if (!decimals) chkPlay[0].SetValue(0);
}

void frmSayNo::LoadFields(const RecordSet& rec, bool modify) {
  const SayNumberRec& r = rec.SayNumber;
  FillVarSlot(cboVariable, kNumber, r.Number);
  GetListBoxLayout(r.Layout);
  GetListBoxPathVar(cboPathVar[0], kPathNumber, View(r.SayPath[2]));
  chkDisableHangup.SetValue(r.DisableHangup == 1 ? 1 : 0);
  GetListBoxLabel(cboLabel, View(r.HangupLabel.LabelRefName));
  for (int i = 0; i < 2; ++i) {
    if (modify) {
      loadPath_[i] = std::string(View(r.SayPath[i]));
      loadFile_[i] = std::string(View(r.SayVoiceFile[i]));
    }
    chkPlay[i].SetValue(r.PlayFlag[i] == 1 ? 1 : 0);
    loadPath_[i].clear();
    loadFile_[i].clear();
  }
  EnableAfterPeriod();
}

void frmSayNo::cboVariable_Click() {
  SayNumberRec& r = WorkRecord.SayNumber;
  AssignListBoxVar(cboVariable, -1, r.Number);
  GetListBoxLayout(r.Layout);
  EnableAfterPeriod();
}

void frmSayNo::ShowPlay(int index, bool on) {
  cboPathVar[index + 1].SetEnabled(on);
  filVoice[index].SetEnabled(on);
  if (!on) {
    filVoice[index].SetPattern(kNoFiles);
    return;
  }
  GetListBoxPathVar(cboPathVar[index + 1], kPathVoice, loadPath_[index]);
  filVoice[index].SetPattern("*.*");
  const int error =
      SetFileListBox(filVoice[index], kPathVoice, cboPathVar[index + 1].Text(), loadFile_[index]);
  if (error != 0) HandlePathError(error);
}

void frmSayNo::chkPlay_Click(int index) {
  if (chkPlay[index].Value() == 0) {
    ShowPlay(index, false);
    return;
  }
  // A voice path is what the file is played from.
  if (!DefinedPath(true, 18)) {
    chkPlay[index].SetValue(0);
    ShowPlay(index, false);
    return;
  }
  ShowPlay(index, true);
}

void frmSayNo::cboPathVar_Click(int index) {
  const int error = SetFileListBox(filVoice[index], kPathVoice, cboPathVar[index + 1].Text(), "");
  if (error != 0) HandlePathError(error);
}

bool frmSayNo::VoiceFileFits(int index) {
  const std::string name = filVoice[index].FileName();
  if (NameFits(name, sizeof(SayNumberRec::SayVoiceFile[0]), "Voice file", Caption())) return true;
  filVoice[index].SetListIndex(-1);
  filVoice[index].SetFocus();
  return false;
}

bool frmSayNo::CheckBeforeLabel() {
  for (int i = 0; i < 2; ++i) {
    if (chkPlay[i].Value() != 1) continue;
    if (filVoice[i].FileName().empty()) return Refuse(filVoice[i]);
    // A file the list selected by itself is checked here, as one clicked is at once.
    if (!VoiceFileFits(i)) return false;
  }
  return true;
}

bool frmSayNo::Accept(std::string& parameters) {
  SayNumberRec& r = WorkRecord.SayNumber;
  AssignListBoxVar(cboVariable, -1, r.Number);
  r.Layout = cboLayout.ListIndex() + (r.Number.VarRefType == kVarString ? 1 : 0);
  for (int i = 0; i < 2; ++i) {
    r.PlayFlag[i] = chkPlay[i].Value();
    if (r.PlayFlag[i] == 0) continue;
    SetField(r.SayPath[i], cboPathVar[i + 1].Text());
    SetField(r.SayVoiceFile[i], filVoice[i].FileName());
  }
  SetField(r.SayPath[2], cboPathVar[0].Text());
  r.DisableHangup = chkDisableHangup.Value();
  SetField(r.HangupLabel.LabelRefName, LabelText(cboLabel));
  parameters = RTrimZ(View(r.SayPath[2])) + "\\" + VarName(r.Number) +
               "  Layout=" + NameRow(SayLayoutNames, r.Layout);
  const char* captions[] = {"  After period=", "  At the end="};
  for (int i = 0; i < 2; ++i) {
    if (r.PlayFlag[i] == 0) continue;
    parameters += captions[i] + RTrimZ(View(r.SayPath[i])) + "\\" + RTrimZ(View(r.SayVoiceFile[i]));
  }
  parameters += HangupParm(r.DisableHangup);
  parameters = AppendLabelParm(parameters, " H=", View(r.HangupLabel.LabelRefName));
  return true;
}

}  // namespace kq
