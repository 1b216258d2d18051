// The main window frmEdit: the column caption, the list of DisplayLines, the menus, the
// start-up with its settings, the window's geometry rules, the File, Define, Help and
// speech-format menus, and the prompts that stand between the user and losing work.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"
#include "ui/model/menu.h"

namespace kq {

class EditMenus;

// A rectangle in twips.
struct Rect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

inline constexpr const char* kTitlePrefix = "Zelvox Voice Response Editor: ";
inline constexpr int kFileItems = 10;
inline constexpr int kEditItems = 5;
inline constexpr int kDefineItems = 8;
inline constexpr int kSpeechItems = 7;
inline constexpr int kGotoItems = 10;
inline constexpr int kHelpItems = 5;
// The height of the column caption, in twips.
inline constexpr int kBarHeight = 255;
// The smallest height lstEdit is given.
inline constexpr int kMinListHeight = 300;

// The speech format code of a mnuSpeechItem index; -1 outside 0 to 6.
int SpeechFormatOfItem(int index);
// The mnuSpeechItem index of a speech format code; -1 for a code without an item.
int SpeechItemOfFormat(int code);

class FrmEdit : public ui::Form {
 public:
  FrmEdit();
  ~FrmEdit() override;

  // The first stage of start-up, before the window exists: the flags, the file names and
  // the window settings. The constructor runs it.
  void StartFirstStage();

  ui::Label lblBar{*this, "lblBar",
                   " Line    Label                Function                   Parameters"};
  ui::ListBox lstEdit{*this, "lstEdit"};

  ui::Menu mnuFile{*this, "mnuFile", "&File"};
  ui::Menu mnuFileItem[kFileItems]{{*this, "mnuFileItem", "&New", 0},
                                   {*this, "mnuFileItem", "&Open...", 1},
                                   {*this, "mnuFileItem", "&Save", 2},
                                   {*this, "mnuFileItem", "Save &As...", 3},
                                   {*this, "mnuFileItem", "Save &Part As...", 4},
                                   {*this, "mnuFileItem", "&Insert...", 5},
                                   {*this, "mnuFileItem", "&Close", 6},
                                   {*this, "mnuFileItem", "&Delete", 7},
                                   {*this, "mnuFileItem", "-", 8},
                                   {*this, "mnuFileItem", "E&xit", 9}};
  // Item 0 is the separator; items 1 to 4 are the recent files, created at run time.
  std::unique_ptr<ui::Menu> mnuFileArray[5];
  // Behind the described items and the recent files.
  ui::Menu mnuFileTextBar{*this, "mnuFileTextBar", "-"};
  ui::Menu mnuFileExportText{*this, "mnuFileExportText", "Export as &Text..."};
  ui::Menu mnuFileImportText{*this, "mnuFileImportText", "I&mport Text..."};

  ui::Menu mnuEdit{*this, "mnuEdit", "&Edit"};
  ui::Menu mnuEditItem[kEditItems]{{*this, "mnuEditItem", "&Add", 0},
                                   {*this, "mnuEditItem", "&Insert", 1},
                                   {*this, "mnuEditItem", "&Modify", 2},
                                   {*this, "mnuEditItem", "&Delete", 3},
                                   {*this, "mnuEditItem", "&Clear", 4}};

  ui::Menu mnuDefine{*this, "mnuDefine", "&Define"};
  ui::Menu mnuDefineItem[kDefineItems]{{*this, "mnuDefineItem", "&Variables", 0},
                                       {*this, "mnuDefineItem", "E&xport Paths", 1},
                                       {*this, "mnuDefineItem", "M&essage Paths", 2},
                                       {*this, "mnuDefineItem", "&Number Paths", 3},
                                       {*this, "mnuDefineItem", "V&oice Paths", 4},
                                       {*this, "mnuDefineItem", "&General Paths", 5},
                                       {*this, "mnuDefineItem", "Database &Tables", 6},
                                       {*this, "mnuDefineItem", "&Speech Formats", 7}};
  ui::Menu mnuSpeechItem[kSpeechItems]{{*this, "mnuSpeechItem", "Rhetorex 32K ADPCM", 0},
                                       {*this, "mnuSpeechItem", "Rhetorex 24K ADPCM", 1},
                                       {*this, "mnuSpeechItem", "u-Law PCM", 2},
                                       {*this, "mnuSpeechItem", "A-Law PCM", 3},
                                       {*this, "mnuSpeechItem", "Linear 128Kbit/Sec", 4},
                                       {*this, "mnuSpeechItem", "OKI 32K ADPCM", 5},
                                       {*this, "mnuSpeechItem", "OKI 24K ADPCM", 6}};

  ui::Menu mnuGoto{*this, "mnuGoto", "&Goto"};
  ui::Menu mnuGotoItem[kGotoItems]{{*this, "mnuGotoItem", "Line &Number", 0},
                                   {*this, "mnuGotoItem", "&Label", 1},
                                   {*this, "mnuGotoItem", "&Function", 2},
                                   {*this, "mnuGotoItem", "Next Function", 3},
                                   {*this, "mnuGotoItem", "&Variable Parameter", 4},
                                   {*this, "mnuGotoItem", "Next Variable Parameter", 5},
                                   {*this, "mnuGotoItem", "L&abel Parameter", 6},
                                   {*this, "mnuGotoItem", "Next Label Parameter", 7},
                                   {*this, "mnuGotoItem", "&Path Parameter", 8},
                                   {*this, "mnuGotoItem", "Next Path Parameter", 9}};

  ui::Menu mnuCompile{*this, "mnuCompile", "&Compile"};
  ui::Menu mnuCheckAll{*this, "mnuCheckAll", "Chec&k All"};
  ui::Menu mnuGotoCallFlow{*this, "mnuGotoCallFlow", "Call &Flow"};
  ui::Menu mnuPrint{*this, "mnuPrint", "&Print"};
  ui::Menu mnuRecording{*this, "mnuRecording", "&Recording"};
  ui::Menu mnuListen{*this, "mnuListen", "&Listen"};
  ui::Menu mnuConvert{*this, "mnuConvert", "C&onvert"};
  // Beyond the described menus: the simulator.
  ui::Menu mnuRun{*this, "mnuRun", "&Run"};
  ui::Menu mnuRunSimulate{*this, "mnuRunSimulate", "&Simulate"};

  ui::Menu mnuHelp{*this, "mnuHelp", "&Help"};
  ui::Menu mnuHelpItem[kHelpItems]{{*this, "mnuHelpItem", "&Content", 0},
                                   {*this, "mnuHelpItem", "&Index", 1},
                                   {*this, "mnuHelpItem", "&Search", 2},
                                   {*this, "mnuHelpItem", "-", 3},
                                   {*this, "mnuHelpItem", "&About", 4}};

  // Beyond the described menus: Tools.
  ui::Menu mnuTools{*this, "mnuTools", "&Tools"};
  ui::Menu mnuToolsPrompts{*this, "mnuToolsPrompts", "Make Missing &Prompts..."};

  // ---- Menu handlers, dispatched by index.
  void mnuFileItem_Click(int index);
  void mnuFileArray_Click(int index);
  void mnuEditItem_Click(int index);
  void mnuDefineItem_Click(int index);
  void mnuSpeechItem_Click(int index);
  void mnuGotoItem_Click(int index);
  void mnuHelpItem_Click(int index);
  void mnuCompile_Click();
  void mnuPrint_Click();
  void mnuRecording_Click();
  void mnuListen_Click();
  void mnuConvert_Click();
  // File > Export as Text, Import Text (text_form_menu.cpp).
  void mnuFileExportText_Click();
  void mnuFileImportText_Click();

  // ---- The list's own paths, which do not look at the menus.
  void lstEdit_DblClick();
  void lstEdit_KeyDown(int& keyCode, int shift);
  void lstEdit_KeyPress(int& keyAscii);

  // ---- The shell's procedures.
  // The prompts of the closing sequence; operation "Close", "Exit" or "Unload".
  void ConfirmChangedFile(const std::string& operation, bool& cancel);
  void NewFile();
  void ResetEditor();
  // File > Open once a file is chosen (also a file named on the command line).
  void OpenChosenFile(const std::string& path);
  // What the window does after the file routines opened a file.
  void FileOpened();
  void LoadRecentFiles();
  void AddRecentFile(const std::string& path);
  const std::string& RecentFileName(int i) const { return recentFileName_[i - 1]; }
  void SetTitleBar();
  // The unload procedure: window settings written, help windows closed.
  void UnloadProcedure();

  EditMenus& Extras() { return *editMenus_; }

  // ---- Geometry, in twips.
  const Rect& BarRect() const { return bar_; }
  const Rect& ListRect() const { return list_; }
  int LastWindowState() const { return lastWindowState_; }

  // Where help file and ini name point; built at start and kept.
  const std::string& HelpFile() const { return helpFile_; }
  const std::string& IniFileName() const { return iniFileName_; }

 protected:
  void Form_Load() override;
  void Form_QueryUnload(bool& cancel, ui::UnloadMode mode) override;
  void Form_Unload() override;
  void Form_Resize() override;

 private:
  void BuildMenus();
  void WireEvents();
  void LoadWindowSettings();
  void SaveWindowSettings();
  void LoadSpeechFormat();
  void SaveSpeechFormat();
  bool GuardOpenDocument();
  void PlaceBarAndList(int width, int listHeight);

  // The window settings as read at start and written at unload.
  int16_t windowStateNumber_ = 0;
  int16_t settingTop_ = 0, settingLeft_ = 0, settingWidth_ = 0, settingHeight_ = 0;
  int lastWindowState_ = 0;
  bool resizing_ = false;  // a move made by the resize rules resizes once more
  int lastTop_ = -1, lastLeft_ = -1, lastWidth_ = -1, lastHeight_ = -1;
  Rect bar_;
  Rect list_;
  std::string recentFileName_[4];
  std::string iniFileName_;
  std::string helpFile_;
  std::unique_ptr<EditMenus> editMenus_;  // Undo, Redo, Cut, Copy, Paste; last, so it goes first
};

// The main window while it exists (the file routines and the runner reach it here).
FrmEdit* EditorWindow();

}  // namespace kq
