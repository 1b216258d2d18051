#include "document/state.h"

#include <cstdlib>

namespace kq {

ProgramHeader PrgHdr;
ProgramHeader CopyHdr;
ProgramLine LineTable[kMaxLines];
uint8_t FuncBlock[kMaxLines][kBlockSize];
RecordSet InitRecord;
RecordSet WorkRecord;
VarRef BlankVarRef;
LabelRef BlankLabelRef;
PathEntry BlankPathEntry;
ProgramLine BlankProgramLine;
bool ChangedFlag = false;
std::string ApplFileTitle = "Untitled";
std::string ApplFileName;
std::string ApplPathName;
int16_t SpeechAudioFormat = 6;
bool ShowAllFunctions = false;
int16_t DefineItemIndex = 0;
int16_t FuncNo = 0;
std::string FuncName;
std::string FuncLine;
std::string FuncLabel;
bool FuncModify = false;
bool FuncOk = false;
bool FuncPick = false;
ShellHooks Shell;

namespace {
ui::ListBox* g_editList = nullptr;
ui::Form* g_mainWindow = nullptr;
}  // namespace

ui::Form* MainWindow() {
  return g_mainWindow;
}

void SetMainWindow(ui::Form* form) {
  g_mainWindow = form;
}

ui::ListBox& EditList() {
  if (g_editList == nullptr) std::abort();  // the main window registers it at start
  return *g_editList;
}

ui::ListBox* InstalledEditList() {
  return g_editList;
}

void SetEditList(ui::ListBox* list) {
  g_editList = list;
}

}  // namespace kq
