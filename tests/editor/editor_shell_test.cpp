// The main window: start-up settings and geometry, the speech formats, the menus of the
// three document states, the closing prompts, the recent files and the list's own keys.
#include <filesystem>
#include <fstream>

#include "dialogs/frm_func.h"
#include "dialogs/frm_remark.h"
#include "document/functions.h"
#include "document/state.h"
#include "editor/settings.h"
#include "tests/editor/editor_fixture.h"

namespace kq::test {
namespace {

// Drives the picker to Remark and the Remark dialog to OK.
void QueueRemarkLine(ui::HeadlessPlatform& p, const std::string& text) {
  p.QueueModal("frmFunc", [](ui::Form& f) {
    auto& picker = static_cast<frmFunc&>(f);
    for (int i = 0; i < picker.lstFunc.ListCount(); ++i) {
      if (picker.lstFunc.List(i) == "Remark") picker.lstFunc.UserSelect(i);
    }
    picker.cmdOk.UserClick();
  });
  p.QueueModal("frmRemark", [text](ui::Form& f) {
    auto& d = static_cast<frmRemark&>(f);
    d.txtRemark.SetText(text);
    d.cmdOk.UserClick();
  });
}

// ---- Start-up and geometry

TEST_F(EditorTest, EmptySettingsGiveTheDefaultRectangleAndFormat) {
  platform_.SetUserDirectory("/home/user");
  FrmEdit& f = Start();
  EXPECT_EQ(3600, f.Left());
  EXPECT_EQ(2025, f.Top());
  EXPECT_EQ(21600, f.Width());
  EXPECT_EQ(12150, f.Height());
  EXPECT_EQ(0, f.WindowState());
  EXPECT_EQ(21600, f.BarRect().width);
  EXPECT_EQ(12150 - 3 * kBarHeight - 100, f.ListRect().height);
  EXPECT_EQ(kBarHeight, f.ListRect().top);
  EXPECT_EQ((std::vector<int>{25, 79, 150}), f.lstEdit.TabStops());
  EXPECT_EQ("Zelvox Voice Response Editor: Untitled", f.Caption());
  EXPECT_EQ(6, SpeechAudioFormat);
  EXPECT_EQ("6", Settings()["SpeechAudioFormat"]);
  EXPECT_TRUE(f.mnuSpeechItem[4].Checked());
  EXPECT_EQ("/home/user", ApplPathName);
  EXPECT_EQ(0u, Settings().count("ApplPathName"));
  EXPECT_TRUE(ShowAllFunctions);
  EXPECT_EQ(&f.lstEdit, &EditList());
}

TEST_F(EditorTest, MaximisedComesFromTheGeometryNotFromTheStateNumber) {
  Settings() = {{"frmEditWindowStateNumber", "0"},
                {"frmEditLeftPosition", "1800"},
                {"frmEditTopPosition", "1800"},
                {"frmEditWidthPosition", "25200"},
                {"frmEditHeightPosition", "9000"}};
  EXPECT_EQ(2, Start().WindowState());
  EXPECT_EQ(2, form_->LastWindowState());
  form_.reset();

  Settings()["frmEditWindowStateNumber"] = "2";
  Settings()["frmEditTopPosition"] = "1700";  // left differs from top
  EXPECT_EQ(0, Start().WindowState());
}

TEST_F(EditorTest, ListHeightIsAtLeast300AtLoadAndKeptOnASmallResize) {
  Settings() = {{"frmEditLeftPosition", "100"},
                {"frmEditTopPosition", "100"},
                {"frmEditWidthPosition", "6000"},
                {"frmEditHeightPosition", "800"}};
  FrmEdit& f = Start();
  EXPECT_EQ(kMinListHeight, f.ListRect().height);
  f.Move(100, 100, 7000, 5000);
  EXPECT_EQ(5000 - 3 * kBarHeight - 100, f.ListRect().height);
  EXPECT_EQ(6900, f.ListRect().width);
  f.Move(100, 100, 7000, 900);  // too small: the list keeps its height
  EXPECT_EQ(5000 - 3 * kBarHeight - 100, f.ListRect().height);
  f.SetWindowState(1);  // minimised: nothing is laid out
  f.Move(100, 100, 3000, 3000);
  EXPECT_EQ(6900, f.ListRect().width);
}

TEST_F(EditorTest, ComingBackToTheSameRectangleGivesTheDefaultRectangle) {
  Settings() = {{"frmEditLeftPosition", "1000"},
                {"frmEditTopPosition", "1000"},
                {"frmEditWidthPosition", "9000"},
                {"frmEditHeightPosition", "7000"}};
  FrmEdit& f = Start();
  f.SetWindowState(2);
  f.SetWindowState(0);  // first restore: the rectangle is remembered
  EXPECT_EQ(1000, f.Left());
  f.SetWindowState(2);
  f.SetWindowState(0);  // back to the remembered rectangle
  EXPECT_EQ(3600, f.Left());
  EXPECT_EQ(2025, f.Top());
  EXPECT_EQ(21600, f.Width());
  EXPECT_EQ(12150, f.Height());
  EXPECT_EQ(12150 - 3 * kBarHeight, f.ListRect().height);
}

TEST_F(EditorTest, SettingsThatAreNoNumbersReadAsZeroAndTakeTheDefaults) {
  Settings() = {{"frmEditLeftPosition", "wide"}, {"frmEditWidthPosition", ""}};
  FrmEdit& f = Start();
  EXPECT_EQ(3600, f.Left());
  EXPECT_EQ(21600, f.Width());
}

TEST_F(EditorTest, CloseWritesTheWindowSettingsAsSixteenBitNumbers) {
  FrmEdit& f = Start();
  f.Move(500, 400, 40000, 6000);
  EXPECT_TRUE(f.Close());
  EXPECT_EQ("500", Settings()["frmEditLeftPosition"]);
  EXPECT_EQ("400", Settings()["frmEditTopPosition"]);
  EXPECT_EQ("32767", Settings()["frmEditWidthPosition"]);
  EXPECT_EQ("6000", Settings()["frmEditHeightPosition"]);
  EXPECT_EQ("0", Settings()["frmEditWindowStateNumber"]);
}

// ---- Speech formats

TEST_F(EditorTest, ChoosingAFormatMovesTheCheckAndWritesTheCode) {
  Settings()["SpeechAudioFormat"] = "1";
  FrmEdit& f = Start();
  EXPECT_TRUE(f.mnuSpeechItem[1].Checked());
  f.mnuSpeechItem[6].UserClick();
  EXPECT_EQ(8, SpeechAudioFormat);
  EXPECT_EQ("8", Settings()["SpeechAudioFormat"]);
  for (int i = 0; i < kSpeechItems; ++i) EXPECT_EQ(i == 6, f.mnuSpeechItem[i].Checked()) << i;
  EXPECT_THROW(f.mnuSpeechItem_Click(7), ui::ProgramEnded);
  EXPECT_EQ("Illegal speech format index mnuSpeechItem_Click( 7) in frmEdit.",
            ui::LastProgramError());
}

// ---- The menus of the document states

TEST_F(EditorTest, AddIsOfferedBelow9999LinesAndDeleteOffersItAgain) {
  FrmEdit& f = Start();
  f.mnuFileItem[0].UserClick();
  PutLines(kUserLines - 2);
  QueueRemarkLine(platform_, "last");
  f.mnuEditItem[0].UserClick();
  EXPECT_EQ(kUserLines - 1, f.lstEdit.ListCount());
  EXPECT_EQ("9997", f.lstEdit.List(kUserLines - 2).substr(0, 4));
  EXPECT_TRUE(f.mnuEditItem[0].Enabled());
  QueueRemarkLine(platform_, "one more");
  f.mnuEditItem[0].UserClick();
  EXPECT_EQ(kUserLines, f.lstEdit.ListCount());
  EXPECT_FALSE(f.mnuEditItem[0].Enabled());
  EXPECT_FALSE(f.mnuEditItem[1].Enabled());
  f.mnuEditItem[3].UserClick();  // the new last line is selected
  EXPECT_EQ(kUserLines - 1, f.lstEdit.ListCount());
  EXPECT_TRUE(f.mnuEditItem[0].Enabled());
  EXPECT_TRUE(f.mnuEditItem[1].Enabled());
}

TEST_F(EditorTest, DeletingTheOnlyLineLeavesSaveGotoCompilePrintDisabled) {
  FrmEdit& f = Start();
  f.mnuFileItem[0].UserClick();
  QueueRemarkLine(platform_, "only");
  f.mnuEditItem[0].UserClick();
  PrgHdr.CompiledFlag = -1;
  ChangedFlag = false;
  f.mnuEditItem[3].UserClick();
  EXPECT_EQ(0, f.lstEdit.ListCount());
  EXPECT_EQ(0, PrgHdr.LineCount);
  EXPECT_TRUE(ChangedFlag);
  EXPECT_EQ(0, PrgHdr.CompiledFlag);
  EXPECT_FALSE(f.mnuFileItem[2].Enabled());
  EXPECT_FALSE(f.mnuGoto.Enabled() || f.mnuCompile.Enabled() || f.mnuPrint.Enabled());
  EXPECT_TRUE(f.mnuEditItem[0].Enabled());
  for (int i = 1; i <= 4; ++i) EXPECT_FALSE(f.mnuEditItem[i].Enabled()) << i;
}

TEST_F(EditorTest, ClearLeavesSaveEnabledAndTheStoresAsTheyAre) {
  FrmEdit& f = Start();
  f.mnuFileItem[0].UserClick();
  QueueRemarkLine(platform_, "gone");
  f.mnuEditItem[0].UserClick();
  const ProgramLine entry = LineTable[0];
  f.mnuEditItem[4].UserClick();
  EXPECT_EQ(0, f.lstEdit.ListCount());
  EXPECT_TRUE(f.mnuFileItem[2].Enabled());
  EXPECT_TRUE(f.mnuEditItem[0].Enabled());
  EXPECT_FALSE(f.mnuEditItem[1].Enabled() || f.mnuEditItem[4].Enabled());
  EXPECT_FALSE(f.mnuGoto.Enabled() || f.mnuCompile.Enabled() || f.mnuPrint.Enabled());
  EXPECT_EQ(entry.LineFuncNo, LineTable[0].LineFuncNo);
}

TEST_F(EditorTest, TheGuardRefusesNewOverADocumentWithLinesOnly) {
  FrmEdit& f = Start();
  f.mnuFileItem[0].UserClick();
  f.mnuFileItem[0].UserClick();  // a document without lines is replaced without a word
  EXPECT_EQ(0, platform_.CountOf("msgbox"));
  PutLines(1);
  f.mnuFileItem[0].UserClick();
  EXPECT_EQ((std::vector<std::string>{"File Error"}), BoxTitles());
  EXPECT_EQ((std::vector<std::string>{"File temp.kqx is already open."}), BoxTexts());
  EXPECT_EQ(1, f.lstEdit.ListCount());
}

TEST_F(EditorTest, AnOpenedFileEnablesTheMenusAndSelectsLineZero) {
  FrmEdit& f = Start();
  PutLines(3);
  f.lstEdit.SetSelected(2, true);
  Shell.fileOpened();
  EXPECT_EQ(std::vector<int>{0}, f.lstEdit.SelectedIndexes());
  for (int i = 2; i <= 7; ++i) EXPECT_TRUE(f.mnuFileItem[i].Enabled()) << i;
  EXPECT_TRUE(f.mnuEdit.Enabled() && f.mnuDefine.Enabled() && f.mnuPrint.Enabled());
  f.lstEdit.Clear();
  Shell.fileOpened();
  ASSERT_EQ(1, platform_.CountOf("focus"));
  EXPECT_EQ("lstEdit", platform_.EventsOf("focus")[0].fields["control"].Str());
}

TEST_F(EditorTest, FileDeleteAsksOnceAndGoesBackToNoDocument) {
  const auto dir =
      std::filesystem::temp_directory_path() / ("kq-shell-delete-" + std::to_string(::getpid()));
  std::filesystem::create_directories(dir);
  platform_.SetUserDirectory(dir.string());
  FrmEdit& f = Start();
  f.mnuFileItem[0].UserClick();
  PutLines(1);
  ChangedFlag = true;
  platform_.QueueAnswer(ui::vbCancel);
  f.mnuFileItem[7].UserClick();
  EXPECT_EQ("temp.kqx", ApplFileTitle);
  platform_.QueueAnswer(ui::vbOK);
  f.mnuFileItem[7].UserClick();  // a file that was never saved: nothing to delete, no word
  EXPECT_EQ((std::vector<std::string>{"Delete file: " + dir.string() + "/temp.kqx ?",
                                      "Delete file: " + dir.string() + "/temp.kqx ?"}),
            BoxTexts());
  EXPECT_EQ("Untitled", ApplFileTitle);
  EXPECT_EQ("", ApplFileName);
  EXPECT_EQ(0, f.lstEdit.ListCount());
  EXPECT_FALSE(f.mnuEdit.Enabled() || f.mnuDefine.Enabled() || f.mnuFileItem[7].Enabled());
  std::filesystem::remove_all(dir);
}

// Delete removes the document's file, as a file; a folder that stands under that name is not
// the document and stays, and the editor goes back to no document either way.
TEST_F(EditorTest, FileDeleteRemovesTheFileButNeverAFolder) {
  const auto dir = std::filesystem::temp_directory_path() /
                   ("kq-shell-delete-kinds-" + std::to_string(::getpid()));
  std::filesystem::remove_all(dir);
  std::filesystem::create_directories(dir);
  platform_.SetUserDirectory(dir.string());
  FrmEdit& f = Start();
  const auto file = dir / "temp.kqx";

  f.mnuFileItem[0].UserClick();
  std::ofstream(file) << "x";
  platform_.QueueAnswer(ui::vbOK);
  f.mnuFileItem[7].UserClick();
  EXPECT_FALSE(std::filesystem::exists(file));
  EXPECT_EQ("Untitled", ApplFileTitle);

  f.mnuFileItem[0].UserClick();
  std::filesystem::create_directory(file);
  platform_.QueueAnswer(ui::vbOK);
  f.mnuFileItem[7].UserClick();
  EXPECT_TRUE(std::filesystem::is_directory(file));
  EXPECT_EQ("Untitled", ApplFileTitle);
  EXPECT_EQ("", ApplFileName);
  std::filesystem::remove_all(dir);
}

// ---- The closing prompts

TEST_F(EditorTest, NoPromptWithoutLinesOrWithoutAFileName) {
  FrmEdit& f = Start();
  f.mnuFileItem[0].UserClick();
  ChangedFlag = true;
  bool cancel = false;
  f.ConfirmChangedFile("Close", cancel);
  EXPECT_FALSE(cancel);
  EXPECT_EQ(0, platform_.CountOf("msgbox"));
  EXPECT_EQ("Untitled", ApplFileTitle);
}

TEST_F(EditorTest, ACompiledChangedFileIsOnlyOfferedForSaving) {
  FrmEdit& f = Start();
  f.mnuFileItem[0].UserClick();
  PutLines(2);
  ChangedFlag = true;
  PrgHdr.CompiledFlag = -1;
  platform_.QueueAnswer(ui::vbCancel);
  bool cancel = false;
  f.ConfirmChangedFile("Close", cancel);
  EXPECT_TRUE(cancel);
  EXPECT_EQ((std::vector<std::string>{"Confirm Exit"}), BoxTitles());
  EXPECT_EQ("Save changed and successfully compiled file: \r" + ApplFileName + " ?", BoxTexts()[0]);
  EXPECT_EQ(2, f.lstEdit.ListCount());  // nothing closed
}

TEST_F(EditorTest, ExitWritesTheSettingsAndKeepsTheWindow) {
  FrmEdit& f = Start();
  f.mnuFileItem[0].UserClick();
  PutLines(1);
  ChangedFlag = true;
  platform_.QueueAnswer(ui::vbCancel);
  f.mnuFileItem[9].UserClick();
  EXPECT_EQ((std::vector<std::string>{"Confirm Exit"}), BoxTitles());
  EXPECT_EQ(0u, Settings().count("frmEditWidthPosition"));

  platform_.QueueAnswer(ui::vbNo);
  platform_.QueueAnswer(ui::vbNo);
  f.mnuFileItem[9].UserClick();
  EXPECT_EQ("Save changed, but uncompiled file: \r" + ApplFileName + " ?", BoxTexts().back());
  EXPECT_EQ("21600", Settings()["frmEditWidthPosition"]);
  EXPECT_TRUE(f.Loaded());
  EXPECT_EQ(1, f.lstEdit.ListCount());
}

// ---- Recent files

TEST_F(EditorTest, RecentFilesKeepTheirOrderAndTheFourthFallsOut) {
  FrmEdit& f = Start();
  f.AddRecentFile("/a.kqx");
  f.AddRecentFile("/b.kqx");
  f.AddRecentFile("/c.kqx");
  f.AddRecentFile("/a.kqx");  // already listed: nothing moves
  f.AddRecentFile("");
  EXPECT_EQ("/c.kqx", f.RecentFileName(1));
  EXPECT_EQ("/b.kqx", f.RecentFileName(2));
  EXPECT_EQ("/a.kqx", f.RecentFileName(3));
  f.AddRecentFile("/d.kqx");
  f.AddRecentFile("/e.kqx");
  EXPECT_EQ("/e.kqx", Settings()["RecentFileName1"]);
  EXPECT_EQ("/d.kqx", Settings()["RecentFileName2"]);
  EXPECT_EQ("/c.kqx", Settings()["RecentFileName3"]);
  EXPECT_EQ("/b.kqx", Settings()["RecentFileName4"]);
  ASSERT_NE(nullptr, f.mnuFileArray[4]);
  EXPECT_EQ("&4 /b.kqx", f.mnuFileArray[4]->Caption());
  // The items stand behind the separator, in their order, before the text form's items.
  const auto& items = f.mnuFile.Items();
  ASSERT_EQ(static_cast<size_t>(kFileItems + 5 + 3), items.size());
  EXPECT_EQ(&f.mnuFileTextBar, items[kFileItems + 5]);
  EXPECT_EQ(&f.mnuFileImportText, items.back());
  EXPECT_EQ(f.mnuFileArray[0].get(), items[kFileItems]);
  EXPECT_EQ(f.mnuFileArray[1].get(), items[kFileItems + 1]);
  EXPECT_EQ(f.mnuFileArray[4].get(), items[kFileItems + 4]);
}

TEST_F(EditorTest, EmptyRecentEntriesLeaveGapsInTheNumbers) {
  const auto dir =
      std::filesystem::temp_directory_path() / ("kq-shell-recent-" + std::to_string(::getpid()));
  std::filesystem::create_directories(dir);
  const std::string two = (dir / "two.kqx").string();
  std::filesystem::remove(two);
  Settings() = {{"RecentFileName2", two}, {"RecentFileName4", "/four.kqx"}};
  FrmEdit& f = Start();
  EXPECT_EQ(nullptr, f.mnuFileArray[1]);
  EXPECT_EQ(nullptr, f.mnuFileArray[3]);
  ASSERT_NE(nullptr, f.mnuFileArray[2]);
  EXPECT_EQ("&2 " + two, f.mnuFileArray[2]->Caption());
  EXPECT_EQ("&4 /four.kqx", f.mnuFileArray[4]->Caption());
  EXPECT_EQ(f.mnuFileArray[2].get(), f.FindControl("mnuFileArray", 2));
  // Opening it takes the name behind "&2 " and does not reorder the list.
  f.mnuFileArray[2]->UserClick();
  EXPECT_EQ((std::vector<std::string>{"File Error"}), BoxTitles());
  EXPECT_EQ("File two.kqx doesn't exist.", BoxTexts()[0]);
  EXPECT_EQ(two, Settings()["RecentFileName2"]);
  EXPECT_EQ("Untitled", ApplFileTitle);
  std::filesystem::remove_all(dir);
}

// ---- The list's keys, which do not look at the menus

TEST_F(EditorTest, KeysOnAnEmptyListChangeNoStore) {
  FrmEdit& f = Start();
  LineTable[0].LineFuncNo = 13;
  int key = ui::vbKeyInsert;
  f.lstEdit.RaiseKeyDown(key);
  key = ui::vbKeyReturn;
  f.lstEdit.RaiseKeyDown(key);
  f.lstEdit.RaiseDblClick();
  EXPECT_EQ(0, platform_.CountOf("show"));
  EXPECT_EQ(13, LineTable[0].LineFuncNo);
  key = ui::vbKeyDelete;
  f.lstEdit.RaiseKeyDown(key);
  EXPECT_EQ(0, f.lstEdit.ListCount());
  EXPECT_EQ(0, PrgHdr.LineCount);
  EXPECT_TRUE(ChangedFlag);  // Delete marks the document, as its menu item does
}

TEST_F(EditorTest, TheInsertKeyWorksWhateverTheMenuSays) {
  FrmEdit& f = Start();
  f.mnuFileItem[0].UserClick();
  QueueRemarkLine(platform_, "second");
  f.mnuEditItem[0].UserClick();
  f.mnuEditItem[1].SetEnabled(false);
  f.lstEdit.UserSelect(0);
  QueueRemarkLine(platform_, "first");
  int key = ui::vbKeyInsert;
  f.lstEdit.RaiseKeyDown(key);
  ASSERT_EQ(2, f.lstEdit.ListCount());
  EXPECT_EQ("0000\t\tRemark           \tfirst", f.lstEdit.List(0));
  EXPECT_EQ("0001\t\tRemark           \tsecond", f.lstEdit.List(1));
  EXPECT_EQ(1, f.lstEdit.ListIndex());
  EXPECT_EQ(2, PrgHdr.LineCount);
}

TEST_F(EditorTest, TheInsertKeyFillsTheStoresToTheirLastLine) {
  FrmEdit& f = Start();
  f.mnuFileItem[0].UserClick();
  PutLines(kUserLines + 1);
  for (ProgramLine& line : LineTable) line.LineFuncNo = static_cast<int16_t>(Fn::Remark);
  f.lstEdit.UserSelect(3);
  QueueRemarkLine(platform_, "ten thousand and one");
  int key = ui::vbKeyInsert;
  f.lstEdit.RaiseKeyDown(key);
  ASSERT_EQ(kMaxLines, f.lstEdit.ListCount());
  EXPECT_EQ(kMaxLines, PrgHdr.LineCount);
  EXPECT_EQ("0003\t\tRemark           \tten thousand and one", f.lstEdit.List(3));
  EXPECT_EQ("10000", f.lstEdit.List(kMaxLines - 1));
  EXPECT_EQ(0, platform_.CountOf("beep"));
  // No room for another: the key beeps and shows no dialog.
  platform_.ClearEvents();
  key = ui::vbKeyInsert;
  f.lstEdit.RaiseKeyDown(key);
  EXPECT_EQ(kMaxLines, f.lstEdit.ListCount());
  EXPECT_EQ(1, platform_.CountOf("beep"));
  EXPECT_EQ(0, platform_.CountOf("show"));
}

// Enter on the list modifies the line once, whether it arrives as the key going down or as
// the character it types; the key going down is taken, so no character follows it.
TEST_F(EditorTest, EnterOnTheListModifiesOnce) {
  FrmEdit& f = Start();
  f.mnuFileItem[0].UserClick();
  QueueRemarkLine(platform_, "a");
  f.mnuEditItem[0].UserClick();
  auto modifyTo = [this](const std::string& text) {
    platform_.QueueModal("frmRemark", [text](ui::Form& form) {
      auto& d = static_cast<frmRemark&>(form);
      d.txtRemark.SetText(text);
      d.cmdOk.UserClick();
    });
  };
  platform_.ClearEvents();
  modifyTo("typed");
  f.UserKey(f.lstEdit, 13);
  EXPECT_EQ("0000\t\tRemark           \ttyped", f.lstEdit.List(0));
  EXPECT_EQ(1, platform_.CountOf("show"));

  modifyTo("pressed");
  EXPECT_EQ(0, f.lstEdit.RaiseKeyDown(ui::vbKeyReturn, 0));
  EXPECT_EQ("0000\t\tRemark           \tpressed", f.lstEdit.List(0));
  EXPECT_EQ(2, platform_.CountOf("show"));
  EXPECT_EQ(1, PrgHdr.LineCount);
}

TEST_F(EditorTest, ModifyTakesTheLineWithTheFocusAndKeepsTheCount) {
  FrmEdit& f = Start();
  f.mnuFileItem[0].UserClick();
  QueueRemarkLine(platform_, "a");
  f.mnuEditItem[0].UserClick();
  QueueRemarkLine(platform_, "b");
  f.mnuEditItem[0].UserClick();
  f.lstEdit.SetSelected(0, true);  // two selected, the focus on line 0
  platform_.QueueModal("frmRemark", [](ui::Form& form) {
    auto& d = static_cast<frmRemark&>(form);
    EXPECT_EQ("a", d.txtRemark.Text());  // loaded from the line's block
    d.txtRemark.SetText("changed");
    d.cmdOk.UserClick();
  });
  f.lstEdit.RaiseDblClick();
  EXPECT_EQ("0000\t\tRemark           \tchanged", f.lstEdit.List(0));
  EXPECT_EQ(std::vector<int>{0}, f.lstEdit.SelectedIndexes());
  EXPECT_EQ(2, PrgHdr.LineCount);
  EXPECT_TRUE(FuncModify);
}

TEST_F(EditorTest, ACancelledDialogChangesNothing) {
  FrmEdit& f = Start();
  f.mnuFileItem[0].UserClick();
  ChangedFlag = false;
  platform_.QueueModal("frmFunc",
                       [](ui::Form& form) { static_cast<frmFunc&>(form).cmdCancel.UserClick(); });
  f.mnuEditItem[0].UserClick();
  EXPECT_FALSE(ChangedFlag);
  EXPECT_EQ(0, f.lstEdit.ListCount());
  EXPECT_EQ(0, PrgHdr.LineCount);
}

}  // namespace
}  // namespace kq::test
