#include "editor/frm_edit.h"
#include "editor/extra_windows.h"

#include <cmath>

#include "dialogs/dialogs.h"
#include "document/catalogue.h"
#include "document/document.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/commands.h"
#include "editor/frm_prompts.h"
#include "editor/frm_simulate.h"
#include "editor/line_editing.h"
#include "editor/settings.h"
#include "editor/tool_forms.h"
#include "editor/undo_menus.h"
#include "ui/platform/disk.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

FrmEdit* g_mainWindow = nullptr;

constexpr int kSpeechCodes[kSpeechItems] = {0, 1, 2, 3, 6, 7, 8};

std::string WithSeparator(const std::string& dir) {
  return ui::WithTrailingSeparator(dir);
}

int Scaled(int screen, double factor) {
  return static_cast<int>(std::nearbyint(screen * factor));
}

}  // namespace

FrmEdit* EditorWindow() {
  return g_mainWindow;
}

int SpeechFormatOfItem(int index) {
  return index >= 0 && index < kSpeechItems ? kSpeechCodes[index] : -1;
}

int SpeechItemOfFormat(int code) {
  for (int i = 0; i < kSpeechItems; ++i) {
    if (kSpeechCodes[i] == code) return i;
  }
  return -1;
}

FrmEdit::FrmEdit() : ui::Form("frmEdit", std::string(kTitlePrefix) + "Untitled") {
  lstEdit.SetMultiSelect(ui::ListBox::MultiSelect::Extended);
  mnuFileArray[0] = std::make_unique<ui::Menu>(*this, "mnuFileArray", "-", 0);
  BuildMenus();
  WireEvents();
  editMenus_ = std::make_unique<EditMenus>(*this);
  Place(lblBar, 0, 0);
  Place(lstEdit, 1, 0);
  g_mainWindow = this;
  SetMainWindow(this);
  SetEditList(&lstEdit);
  Shell.caption = [this] { return Caption(); };
  Shell.fileOpened = [this] { FileOpened(); };
  Shell.addRecentFile = [this](const std::string& path) { AddRecentFile(path); };
  StartFirstStage();
}

FrmEdit::~FrmEdit() {
  if (g_mainWindow == this) {
    g_mainWindow = nullptr;
    SetEditList(nullptr);
    SetMainWindow(nullptr);
    Shell = ShellHooks{};
  }
}

void FrmEdit::BuildMenus() {
  struct Top {
    ui::Menu* menu;
    int help;
    bool enabled;
  };
  const Top tops[] = {{&mnuFile, 20, true},    {&mnuEdit, 30, false},     {&mnuDefine, 40, false},
                      {&mnuGoto, 50, false},   {&mnuCompile, 60, false},  {&mnuCheckAll, 60, true},
                      {&mnuPrint, 70, false},  {&mnuRecording, 75, true}, {&mnuListen, 80, true},
                      {&mnuConvert, 90, true}, {&mnuRun, 0, true},        {&mnuHelp, 10, true}};
  for (const Top& t : tops) {
    t.menu->SetHelpContextID(t.help);
    t.menu->SetEnabled(t.enabled);
    AddMenu(*t.menu);
  }

  for (auto& item : mnuFileItem) mnuFile.Append(item);
  mnuFileItem[2].SetShortcut("F2");
  mnuFileItem[6].SetEnabled(false);
  mnuFile.Append(*mnuFileArray[0]);
  for (ui::Menu* item : {&mnuFileTextBar, &mnuFileExportText, &mnuFileImportText}) {
    mnuFile.Append(*item);
  }

  const char* editKeys[kEditItems] = {"Ctrl+A", "Ctrl+I", "Ctrl+M", "Ctrl+D", ""};
  for (int i = 0; i < kEditItems; ++i) {
    mnuEditItem[i].SetShortcut(editKeys[i]);
    mnuEdit.Append(mnuEditItem[i]);
  }

  const char* defineKeys[kDefineItems] = {"Ctrl+V", "Ctrl+X", "Ctrl+E", "Ctrl+N",
                                          "Ctrl+O", "Ctrl+G", "Ctrl+T", ""};
  for (int i = 0; i < kDefineItems; ++i) {
    mnuDefineItem[i].SetShortcut(defineKeys[i]);
    mnuDefine.Append(mnuDefineItem[i]);
  }
  for (auto& item : mnuSpeechItem) mnuDefineItem[7].Append(item);

  const char* gotoKeys[kGotoItems] = {"F3",      "F4", "F5",      "Ctrl+F6", "F6",
                                      "Ctrl+F7", "F7", "Ctrl+F8", "F8",      "Ctrl+F9"};
  for (int i = 0; i < kGotoItems; ++i) {
    mnuGotoItem[i].SetShortcut(gotoKeys[i]);
    mnuGoto.Append(mnuGotoItem[i]);
  }
  mnuGoto.Append(mnuGotoCallFlow);
  for (auto& item : mnuHelpItem) mnuHelp.Append(item);
  AddMenu(mnuTools);
  mnuTools.Append(mnuToolsPrompts);
}

void FrmEdit::WireEvents() {
  for (int i = 0; i < kFileItems; ++i) mnuFileItem[i].OnClick = [this, i] { mnuFileItem_Click(i); };
  for (int i = 0; i < kEditItems; ++i) mnuEditItem[i].OnClick = [this, i] { mnuEditItem_Click(i); };
  for (int i = 0; i < kDefineItems; ++i) {
    mnuDefineItem[i].OnClick = [this, i] { mnuDefineItem_Click(i); };
  }
  for (int i = 0; i < kSpeechItems; ++i) {
    mnuSpeechItem[i].OnClick = [this, i] { mnuSpeechItem_Click(i); };
  }
  for (int i = 0; i < kGotoItems; ++i) mnuGotoItem[i].OnClick = [this, i] { mnuGotoItem_Click(i); };
  for (int i = 0; i < kHelpItems; ++i) mnuHelpItem[i].OnClick = [this, i] { mnuHelpItem_Click(i); };
  mnuToolsPrompts.OnClick = [] { MakeMissingPromptsCommand(); };
  mnuCompile.OnClick = [this] { mnuCompile_Click(); };
  mnuCheckAll.OnClick = [] {
    if (ExtraWindowHooks().checkAll) ExtraWindowHooks().checkAll();
  };
  mnuGotoCallFlow.OnClick = [] {
    if (ExtraWindowHooks().callFlow) ExtraWindowHooks().callFlow();
  };
  mnuPrint.OnClick = [this] { mnuPrint_Click(); };
  mnuRecording.OnClick = [this] { mnuRecording_Click(); };
  mnuListen.OnClick = [this] { mnuListen_Click(); };
  mnuConvert.OnClick = [this] { mnuConvert_Click(); };
  mnuFileExportText.OnClick = [this] { mnuFileExportText_Click(); };
  mnuFileImportText.OnClick = [this] { mnuFileImportText_Click(); };
  mnuRun.Append(mnuRunSimulate);
  mnuRunSimulate.OnClick = [] { ShowSimulate(); };
  lstEdit.OnDblClick = [this] { lstEdit_DblClick(); };
  lstEdit.OnKeyDown = [this](int& keyCode, int shift) { lstEdit_KeyDown(keyCode, shift); };
  lstEdit.OnKeyPress = [this](int& keyAscii) { lstEdit_KeyPress(keyAscii); };
}

// ---- Start-up

void FrmEdit::StartFirstStage() {
  ShowAllFunctions = false;
  ApplFileTitle = "Untitled";
  ApplFileName.clear();
  iniFileName_ = WithSeparator(ui::platform().DataDirectory()) + "KQEDIT.INI";
  LoadWindowSettings();
}

void FrmEdit::LoadWindowSettings() {
  const int screenW = ui::platform().ScreenWidth();
  const int screenH = ui::platform().ScreenHeight();
  windowStateNumber_ = ReadSetting16(EditorSetting::WindowState);
  settingTop_ = ReadSetting16(EditorSetting::Top);
  if (settingTop_ == 0) settingTop_ = ToInt16(Scaled(screenH, 0.125));
  settingLeft_ = ReadSetting16(EditorSetting::Left);
  if (settingLeft_ == 0) settingLeft_ = ToInt16(Scaled(screenW, 0.125));
  settingWidth_ = ReadSetting16(EditorSetting::Width);
  if (settingWidth_ == 0) settingWidth_ = ToInt16(Scaled(screenW, 0.75));
  settingHeight_ = ReadSetting16(EditorSetting::Height);
  if (settingHeight_ == 0) settingHeight_ = ToInt16(Scaled(screenH, 0.75));
}

void FrmEdit::SaveWindowSettings() {
  WriteSetting16(EditorSetting::WindowState, windowStateNumber_);
  WriteSetting16(EditorSetting::Top, settingTop_);
  WriteSetting16(EditorSetting::Left, settingLeft_);
  WriteSetting16(EditorSetting::Width, settingWidth_);
  WriteSetting16(EditorSetting::Height, settingHeight_);
}

void FrmEdit::PlaceBarAndList(int width, int listHeight) {
  bar_ = Rect{0, 0, width, kBarHeight};
  lblBar.SetWidth(width);
  list_ = Rect{0, kBarHeight, width, listHeight};
  lstEdit.SetWidth(width);
}

void FrmEdit::Form_Load() {
  Move(settingLeft_, settingTop_, settingWidth_, settingHeight_);
  lastTop_ = lastLeft_ = lastWidth_ = lastHeight_ = -1;
  // The state comes from the geometry; the stored state number is never applied.
  if (settingLeft_ == settingTop_ &&
      2 * settingLeft_ + settingWidth_ == ui::platform().ScreenWidth()) {
    SetWindowState(2);
    lastWindowState_ = 2;
  } else {
    SetWindowState(0);
    lastWindowState_ = 0;
  }
  const int listHeight = Height() - 3 * kBarHeight - 100;
  PlaceBarAndList(settingWidth_, listHeight >= kMinListHeight ? listHeight : kMinListHeight);
  lstEdit.SetTabStops({25, 79, 150});
  SetTitleBar();
  LoadApplPathName();
  LoadRecentFiles();
  ResetSearchState();
  for (int i = 2; i <= 7; ++i) mnuFileItem[i].SetEnabled(false);
  for (auto& item : mnuEditItem) item.SetEnabled(false);
  LoadSpeechFormat();
  InitDocument();
  GetFuncRecordLength();
  helpFile_ = WithSeparator(ui::platform().DataDirectory()) + "KQEdit.chm";
  ShowAllFunctions = true;
}

void FrmEdit::Form_Resize() {
  if (!Loaded() || resizing_) return;
  const int state = WindowState();
  if (state != 1) {
    const int listHeight = Height() - 3 * kBarHeight - 100;
    PlaceBarAndList(Width() - 100, listHeight >= kMinListHeight ? listHeight : list_.height);
    const bool fromMinimisedToMaximised = state == 2 && lastWindowState_ == 1;
    if (!fromMinimisedToMaximised && lastWindowState_ != 0) {
      if (Top() == lastTop_ && Left() == lastLeft_ && Width() == lastWidth_ &&
          Height() == lastHeight_) {
        // Back to the rectangle it already had: the default rectangle instead.
        const int screenW = ui::platform().ScreenWidth();
        const int screenH = ui::platform().ScreenHeight();
        const int width = Scaled(screenW, 0.75);
        const int height = Scaled(screenH, 0.75);
        resizing_ = true;
        Move(Scaled(screenW, 0.125), Scaled(screenH, 0.125), width, height);
        resizing_ = false;
        PlaceBarAndList(width, height - 3 * kBarHeight);
      }
      lastTop_ = Top();
      lastLeft_ = Left();
      lastWidth_ = Width();
      lastHeight_ = Height();
    }
  }
  lastWindowState_ = state;
}

void FrmEdit::SetTitleBar() {
  SetCaption(kTitlePrefix + ApplFileTitle);
}

// ---- Closing

void FrmEdit::Form_QueryUnload(bool& cancel, ui::UnloadMode) {
  ConfirmChangedFile("Unload", cancel);
}

void FrmEdit::Form_Unload() {
  CloseSimulate();
  UnloadProcedure();
}

void FrmEdit::UnloadProcedure() {
  windowStateNumber_ = static_cast<int16_t>(WindowState());
  settingTop_ = ToInt16(Top());
  settingLeft_ = ToInt16(Left());
  settingWidth_ = ToInt16(Width());
  settingHeight_ = ToInt16(Height());
  SaveWindowSettings();
  ui::platform().Help(ui::HelpCommand::CloseAll);
}

// ---- Speech formats

void FrmEdit::LoadSpeechFormat() {
  SpeechAudioFormat = ReadSetting16(EditorSetting::SpeechFormat);
  if (SpeechAudioFormat == -1) {
    SpeechAudioFormat = 6;
    SaveSpeechFormat();
  }
  const int item = SpeechItemOfFormat(SpeechAudioFormat);
  if (item < 0) {
    ui::ProgramError("Illegal speech format =" + Str(int64_t{SpeechAudioFormat}) +
                     " in mnuSpeechItem_Click() in frmEdit.");
  }
  mnuSpeechItem[item].SetChecked(true);
}

void FrmEdit::SaveSpeechFormat() {
  WriteSetting16(EditorSetting::SpeechFormat, SpeechAudioFormat);
}

void FrmEdit::mnuSpeechItem_Click(int index) {
  if (index < 0 || index >= kSpeechItems) {
    ui::ProgramError("Illegal speech format index mnuSpeechItem_Click(" + Str(int64_t{index}) +
                     ") in frmEdit.");
  }
  for (auto& item : mnuSpeechItem) item.SetChecked(false);
  mnuSpeechItem[index].SetChecked(true);
  SpeechAudioFormat = static_cast<int16_t>(SpeechFormatOfItem(index));
  SaveSpeechFormat();
}

// ---- Menus that show other forms

void FrmEdit::mnuEditItem_Click(int index) {
  const EditScope scope = editMenus_->ScopeOfEditItem(index);
  switch (index) {
    case 0:
      AddLine(*this);
      break;
    case 1:
      InsertLine(*this);
      break;
    case 2:
      ModifyLine(*this);
      break;
    case 3:
      DeleteLines(*this);
      break;
    case 4:
      ClearLines(*this);
      break;
    default:
      break;
  }
}

void FrmEdit::mnuDefineItem_Click(int index) {
  if (index < 0 || index > 6) return;  // item 7 only opens its submenu
  const EditScope scope = editMenus_->ScopeOfDefineItem(index);
  DefineItemIndex = static_cast<int16_t>(index);
  if (index == 0) {
    ShowDefineVariables();
  } else if (index <= 5) {
    ShowDefinePaths();
  } else {
    ShowDefineTables();
  }
}

void FrmEdit::mnuGotoItem_Click(int index) {
  if (index >= 0 && index < kGotoItems) GotoCommand(index);
}

void FrmEdit::mnuHelpItem_Click(int index) {
  switch (index) {
    case 0:
      ui::platform().Help(ui::HelpCommand::Contents);
      break;
    case 1:
      ui::platform().Help(ui::HelpCommand::Index);
      break;
    case 2:
      ui::platform().Help(ui::HelpCommand::Search);
      break;
    case 4:
      ShowAbout();
      break;
    default:
      break;
  }
}

void FrmEdit::mnuCompile_Click() {
  CompileCommand();
}

void FrmEdit::mnuPrint_Click() {
  PrintCommand();
}

void FrmEdit::mnuRecording_Click() {
  ShowRecordingWave();
}

void FrmEdit::mnuListen_Click() {
  ShowListen();
}

void FrmEdit::mnuConvert_Click() {
  ShowConvert();
}

// ---- The list's keys

void FrmEdit::lstEdit_DblClick() {
  mnuEditItem_Click(2);
}

void FrmEdit::lstEdit_KeyDown(int& keyCode, int) {
  switch (keyCode) {
    case ui::vbKeyReturn:
      keyCode = 0;  // taken here: the Enter character does not follow
      mnuEditItem_Click(2);
      break;
    case ui::vbKeyInsert:
      mnuEditItem_Click(1);
      break;
    case ui::vbKeyDelete:
      mnuEditItem_Click(3);
      break;
    default:
      break;
  }
}

// Enter that reaches the list as a character, without its key going down first.
void FrmEdit::lstEdit_KeyPress(int& keyAscii) {
  if (keyAscii != 13) return;
  keyAscii = 0;
  mnuEditItem_Click(2);
}

}  // namespace kq
