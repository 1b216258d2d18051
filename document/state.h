// The one open document and the state that the editor and the dialogs share: the header,
// the line stores, the records, the flags, the file names and the hand-over fields, and
// what the run installs around them (the platform, the list of DisplayLines, the main
// window, the shell hooks). All of it is one object, the run's state (RunState); a
// RunScope (run_scope.h) installs a run over it and puts back what was there before.
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
class Platform;
}  // namespace ui

namespace kq {

// What the file routines ask of the main window.
struct ShellHooks {
  std::function<std::string()> caption;                        // the window's caption
  std::function<void()> fileOpened;                            // after a successful open
  std::function<void(const std::string& path)> addRecentFile;  // after a finished save
};

// What a run installs around the document.
struct RunParts {
  ui::Platform* platform = nullptr;
  ui::ListBox* editList = nullptr;  // lstEdit: the owner of the line count and line texts
  ui::Form* mainWindow = nullptr;   // null: dialogs centre on the screen
};

// The document tables of fixed size and the fields the editor and the dialogs hand over.
struct DocumentState {
  ProgramHeader PrgHdr;
  ProgramHeader CopyHdr;  // staging space of the file routines
  // The default and working record of every function.
  RecordSet InitRecord;
  RecordSet WorkRecord;
  // The blank entries.
  VarRef BlankVarRef;
  LabelRef BlankLabelRef;
  PathEntry BlankPathEntry;
  ProgramLine BlankProgramLine;

  bool ChangedFlag = false;  // the document differs from its file
  // CompiledFlag is PrgHdr.CompiledFlag: 0, or -1 after a successful compile.

  // The open application.
  std::string ApplFileTitle = "Untitled";  // "Untitled": no document
  std::string ApplFileName;                // empty: no document
  std::string ApplPathName;
  int16_t SpeechAudioFormat = 6;
  bool ShowAllFunctions = false;
  int16_t DefineItemIndex = 0;

  // The hand-over fields between the editor and a function dialog, and the picker's flag.
  int16_t FuncNo = 0;
  std::string FuncName;   // 17 characters, as FuncNames holds it
  std::string FuncLine;   // on entry the function name; on return the DisplayLine
  std::string FuncLabel;  // the label, with its NUL
  bool FuncModify = false;
  bool FuncOk = false;
  bool FuncPick = false;
};

// The line stores: the line table and the blocks, allocated once for 10,001 lines (10 MB).
struct LineStores {
  ProgramLine LineTable[kMaxLines];
  uint8_t FuncBlock[kMaxLines][kBlockSize];
};

// The state of the run: one object.
struct RunState {
  RunParts parts;
  ShellHooks Shell;
  DocumentState document;
  LineStores stores;
};

// The run's state has one home for the whole process, and the names the program uses
// (PrgHdr, LineTable[i], WorkRecord.Voice, FuncOk ...) are references bound to its
// members at compile time. Why not a pointer to an installed object: the names are used as
// objects (`PrgHdr.LineCount`, `sizeof LineTable`, `std::memcpy(&WorkRecord, ...)`) in
// some 1,600 places, and neither a reference nor a `.` can be re-pointed, so an indirection
// would change every one of them; a proxy type would also change what `sizeof` says. The
// home costs nothing per use, and a RunScope that installs a new run keeps aside what it
// replaces (the 10 MB of line stores only when an outer run is using them).
extern RunState TheRun;

inline constexpr ProgramHeader& PrgHdr = TheRun.document.PrgHdr;
inline constexpr ProgramHeader& CopyHdr = TheRun.document.CopyHdr;
inline constexpr ProgramLine (&LineTable)[kMaxLines] = TheRun.stores.LineTable;
inline constexpr uint8_t (&FuncBlock)[kMaxLines][kBlockSize] = TheRun.stores.FuncBlock;
inline constexpr RecordSet& InitRecord = TheRun.document.InitRecord;
inline constexpr RecordSet& WorkRecord = TheRun.document.WorkRecord;
inline constexpr VarRef& BlankVarRef = TheRun.document.BlankVarRef;
inline constexpr LabelRef& BlankLabelRef = TheRun.document.BlankLabelRef;
inline constexpr PathEntry& BlankPathEntry = TheRun.document.BlankPathEntry;
inline constexpr ProgramLine& BlankProgramLine = TheRun.document.BlankProgramLine;
inline constexpr bool& ChangedFlag = TheRun.document.ChangedFlag;
inline constexpr std::string& ApplFileTitle = TheRun.document.ApplFileTitle;
inline constexpr std::string& ApplFileName = TheRun.document.ApplFileName;
inline constexpr std::string& ApplPathName = TheRun.document.ApplPathName;
inline constexpr int16_t& SpeechAudioFormat = TheRun.document.SpeechAudioFormat;
inline constexpr bool& ShowAllFunctions = TheRun.document.ShowAllFunctions;
inline constexpr int16_t& DefineItemIndex = TheRun.document.DefineItemIndex;
inline constexpr int16_t& FuncNo = TheRun.document.FuncNo;
inline constexpr std::string& FuncName = TheRun.document.FuncName;
inline constexpr std::string& FuncLine = TheRun.document.FuncLine;
inline constexpr std::string& FuncLabel = TheRun.document.FuncLabel;
inline constexpr bool& FuncModify = TheRun.document.FuncModify;
inline constexpr bool& FuncOk = TheRun.document.FuncOk;
inline constexpr bool& FuncPick = TheRun.document.FuncPick;
inline constexpr ShellHooks& Shell = TheRun.Shell;

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

inline bool VarRefEqual(const VarRef& a, const VarRef& b) {
  return a.VarRefType == b.VarRefType &&
         std::char_traits<char>::compare(a.VarRefName, b.VarRefName, 28) == 0;
}

}  // namespace kq
