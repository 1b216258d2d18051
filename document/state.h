// The one open document and the state that the editor and the dialogs share: the header,
// the line stores, the records, the flags, the file names and the hand-over fields.
// Plain globals, as the whole program has one document at a time.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "document/catalogue.h"
#include "document/header.h"
#include "document/records.h"

namespace ui {
class Form;
class ListBox;
}  // namespace ui

namespace kq {

extern ProgramHeader PrgHdr;
extern ProgramHeader CopyHdr;  // staging space of the file routines

// The line stores: the line table and the blocks, allocated once for 10,001 lines.
extern ProgramLine LineTable[kMaxLines];
extern uint8_t FuncBlock[kMaxLines][kBlockSize];

// The default and working record of every function.
extern RecordSet InitRecord;
extern RecordSet WorkRecord;

// The blank entries.
extern VarRef BlankVarRef;
extern LabelRef BlankLabelRef;
extern PathEntry BlankPathEntry;
extern ProgramLine BlankProgramLine;

extern bool ChangedFlag;  // the document differs from its file
// CompiledFlag is PrgHdr.CompiledFlag: 0, or -1 after a successful compile.

// The open application.
extern std::string ApplFileTitle;  // "Untitled": no document
extern std::string ApplFileName;   // empty: no document
extern std::string ApplPathName;
extern int16_t SpeechAudioFormat;
extern bool ShowAllFunctions;
extern int16_t DefineItemIndex;

// The hand-over fields between the editor and a function dialog, and the picker's flag.
extern int16_t FuncNo;
extern std::string FuncName;   // 17 characters, as FuncNames holds it
extern std::string FuncLine;   // on entry the function name; on return the DisplayLine
extern std::string FuncLabel;  // the label, with its NUL
extern bool FuncModify;
extern bool FuncOk;
extern bool FuncPick;

// The list of DisplayLines (lstEdit of the main window): the owner of the line count and
// of the line texts. The main window registers its list here at start.
ui::ListBox& EditList();
void SetEditList(ui::ListBox* list);
// The list registered now, or null.
ui::ListBox* InstalledEditList();

// The main window, on which CenterForm centres the dialogs; registered by the main window
// at start. Null until then: dialogs are then centred on the screen.
ui::Form* MainWindow();
void SetMainWindow(ui::Form* form);

// What the file routines ask of the main window.
struct ShellHooks {
  std::function<std::string()> caption;                        // the window's caption
  std::function<void()> fileOpened;                            // after a successful open
  std::function<void(const std::string& path)> addRecentFile;  // after a finished save
};
extern ShellHooks Shell;

inline bool VarRefEqual(const VarRef& a, const VarRef& b) {
  return a.VarRefType == b.VarRefType &&
         std::char_traits<char>::compare(a.VarRefName, b.VarRefName, 28) == 0;
}

}  // namespace kq
